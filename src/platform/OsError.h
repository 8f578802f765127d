#pragma once

#include <string>

namespace quorin {

// The OS's own description of an error code (errno on POSIX, a Win32 error on Windows),
// without a final period so that callers can end their sentence themselves.
std::string OsErrorText(unsigned long code);

// OsErrorText of the calling thread's last error.
std::string LastOsErrorText();

}  // namespace quorin
