#pragma once

#include "platform/Errors.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace quorin {

// GetKeyNames' failure on a key with more subkeys than it lists. It carries the names listed
// before the bound, so that a caller that can do with those keeps them.
class TooManyKeyNamesError : public OutOfRangeError {
  public:
    TooManyKeyNamesError(const std::string& message, std::vector<std::string> names)
        : OutOfRangeError(message),
          names_(std::make_shared<const std::vector<std::string>>(std::move(names))) {}

    const std::vector<std::string>& NamesBeforeBound() const { return *names_; }

  private:
    // Shared, so that copying the exception cannot throw.
    std::shared_ptr<const std::vector<std::string>> names_;
};

}  // namespace quorin
