#include "support/FileMarks.h"

namespace quorin {

bool MarkHidden(const std::string& /*path*/) {
    return false;
}

bool MarkSystem(const std::string& /*path*/) {
    return false;
}

}  // namespace quorin
