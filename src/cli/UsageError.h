#pragma once

#include "platform/Errors.h"

namespace quorin {

// A command line that asks for nothing quorin-cli knows; reported with the usage line.
class UsageError : public Error {
  public:
    using Error::Error;
};

}  // namespace quorin
