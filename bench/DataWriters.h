#pragma once

#include <cstdint>
#include <string>

namespace quorin::bench {

// Creates `folders` folders (the root included) and `files` empty files, spread at random over
// them, below `root`, which must not exist yet.
void WriteTree(const std::string& root, uint32_t folders, uint32_t files, uint64_t seed);

// The same for a tree shaped like a Windows system drive (see WindowsTree).
void WriteWindowsTree(const std::string& root, uint32_t folders, uint32_t files, uint64_t seed);

// Writes `folder`/index.txt in the index file's layout (CR LF) with `records` records over
// `folders` folders, and `folder`/names.txt with the same names, one per LF line, in order.
void WriteIndexCorpus(const std::string& folder, uint32_t folders, uint32_t records, uint64_t seed);

}  // namespace quorin::bench
