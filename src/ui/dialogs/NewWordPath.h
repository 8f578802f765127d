#pragma once

#include <string>
#include <string_view>

namespace quorin {

struct FolderAndFile {
    std::string folder;
    std::string fileName;
};

// Splits the Add New Word dialog's path at its last backslash, looking from the second-to-last
// character back, so that a path ending in "\" splits at the one before. The folder is what
// stands before that backslash, the file name what follows it; without one, both are empty.
FolderAndFile SplitAtLastBackslash(std::string_view path);

}  // namespace quorin
