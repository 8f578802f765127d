#pragma once

#include <string>

namespace quorin {

// Give a file or folder the hidden or the system attribute. False where the platform or the
// file system has no such attribute (POSIX, where a leading "." hides a name instead), so that
// a test can skip itself.
bool MarkHidden(const std::string& path);
bool MarkSystem(const std::string& path);

}  // namespace quorin
