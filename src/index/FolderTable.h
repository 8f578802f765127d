#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorin {

inline constexpr int32_t kFolderSlots = 5001;

// The folders of the index by slot, 0 to 5000: the drive roots first, then every folder in the
// order the walk found it. The table is fixed; clearing it keeps what the slots held.
class FolderTable {
  public:
    FolderTable();

    int32_t Count() const { return count_; }

    // Throws OutOfRangeError outside 0..5000. A slot from Count() on holds what it last held.
    const std::string& Path(int32_t slot) const;

    // Stores the path in slot Count(); false, storing nothing, when all 5001 slots are used.
    bool Append(std::string_view path);

    void Clear() { count_ = 0; }

    // The first used slot whose path equals path when both are upper-cased.
    std::optional<int32_t> Find(std::string_view path) const;

  private:
    std::vector<std::string> paths_;
    std::vector<std::string> upperPaths_;
    int32_t count_ = 0;
};

}  // namespace quorin
