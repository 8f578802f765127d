#pragma once

#include <string_view>

#include "platform/WinHandles.h"

namespace quorin {

inline constexpr std::string_view kInstanceMutexName = "Local\\Quorin.SingleInstance";

// Held by the first running copy of the program for its whole life; a second copy finds it
// taken and ends silently.
class MainInstance {
  public:
    explicit MainInstance(std::string_view name = kInstanceMutexName);
    bool IsFirst() const { return first_; }

  private:
    UniqueKernelHandle mutex_;
    bool first_ = false;
};

}  // namespace quorin
