#pragma once

#include "NameGenerator.h"
#include "Random.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace quorin::bench {

// The folders of a generated tree shaped like a Windows system drive, as full paths, parents
// before their children: "Windows\WinSxS" with 15,000 flat folders of long names, 300 programs
// four levels down in "Program Files", and the rest grown at random below the places where
// folders pile up on a real drive (System32, the programs, ProgramData, the users' documents
// and application data). Sibling names differ even without regard to case. (updatedb keeps a
// folder open for each subfolder, and 20,000 open files is the limit here.)
class WindowsTree {
  public:
    WindowsTree(std::string_view root, char separator, uint32_t folderCount, NameGenerator& names,
                Random& random);

    const std::vector<std::string>& Paths() const { return paths_; }

  private:
    // False, adding nothing, when the name is taken or the tree is full.
    bool Add(size_t parent, const std::string& name);
    size_t AddFixed(size_t parent, const std::string& name);  // the new folder's slot
    void AddComponentStore(size_t windows);
    void AddPrograms(size_t programFiles);
    void AddUsers(size_t users);
    void Grow();

    char separator_;
    uint32_t folderCount_;
    NameGenerator& names_;
    Random& random_;
    std::vector<std::string> paths_;
    std::unordered_set<std::string> upperPaths_;
    std::vector<size_t> growing_;  // the folders that random folders may be added below
};

}  // namespace quorin::bench
