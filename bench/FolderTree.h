#pragma once

#include "NameGenerator.h"
#include "Random.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quorin::bench {

// The folders of a generated tree in breadth-first order, as full paths: slot 0 is the root,
// each later folder sits below an earlier one. Sibling names differ even without regard to
// case, so the tree means the same on a case-insensitive file system.
class FolderTree {
  public:
    FolderTree(std::string_view root, char separator, uint32_t folderCount, NameGenerator& names,
               Random& random);

    const std::vector<std::string>& Paths() const { return paths_; }

  private:
    std::vector<std::string> paths_;
};

// Adds `name` to `taken` when no name there equals it without regard to case.
bool TakeUniqueName(std::vector<std::string>& taken, const std::string& name);

}  // namespace quorin::bench
