#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "index/clsItem.h"

namespace quorin {

class clsIndex;

struct FolderAndFile {
    std::string folder;
    std::string fileName;
};

// Splits the Add New Word dialog's path at its last separator, looking from the second-to-last
// character back, so that a path ending in "\" splits at the one before. The folder is what
// stands before that separator, the file name what follows it; without one, both are empty.
FolderAndFile SplitAtLastSeparator(std::string_view path);

enum class NewWordFault { NoWord, NoFile, WordAssigned };

// The checks of Add New Word, for the dialog and quorin-cli alike, in the dialog's order: a word
// that is not all blanks, a path that names an existing ordinary file, and a word that no
// assignment has yet in any case. Nothing when all pass.
std::optional<NewWordFault> CheckNewWord(const clsIndex& index, std::string_view word,
                                         const std::string& path);

// The assignment of word to the file at a checked path; a folder that is not indexed gives the
// first root's slot.
clsItem NewWordItem(const clsIndex& index, std::string_view word, std::string_view path);

}  // namespace quorin
