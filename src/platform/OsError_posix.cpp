#include "platform/OsError.h"

#include <cerrno>
#include <system_error>

namespace quorin {

std::string OsErrorText(unsigned long code) {
    return std::system_category().message(static_cast<int>(code));
}

std::string LastOsErrorText() {
    return OsErrorText(static_cast<unsigned long>(errno));
}

}  // namespace quorin
