#pragma once

#include <cstdint>
#include <string>

namespace quorin {

// One file: an index record (Word empty) or a word the user assigned to it.
struct clsItem {
    std::string Word;
    std::string Filename;
    int32_t Directory = 0;  // slot of the file's folder in the folder table
    std::string UCFilename;
};

}  // namespace quorin
