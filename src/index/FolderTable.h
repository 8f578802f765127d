#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorin {

inline constexpr int32_t kFolderSlots = 5001;

// The folders of the index by slot: the drive roots first, then every folder in the order the
// walk found it. The fixed table has slots 0 to 5000; a growable one ("AllFolders") starts with
// the same slots and adds one for every folder beyond them. Clearing keeps what the slots held.
class FolderTable {
  public:
    explicit FolderTable(bool growable = false);

    int32_t Count() const { return count_; }
    // 5001, or more once a growable table has grown.
    int32_t Slots() const { return static_cast<int32_t>(paths_.size()); }
    bool Growable() const { return growable_; }

    // Throws OutOfRangeError outside 0..Slots()-1. A slot from Count() on holds what it last held.
    const std::string& Path(int32_t slot) const;

    // Stores the path in slot Count(); false, storing nothing, when a fixed table's 5001 slots
    // are used.
    bool Append(std::string_view path);

    void Clear() { count_ = 0; }

    // The first used slot whose path equals path when both are upper-cased.
    std::optional<int32_t> Find(std::string_view path) const;

  private:
    std::vector<std::string> paths_;
    std::vector<std::string> upperPaths_;
    int32_t count_ = 0;
    bool growable_ = false;
};

}  // namespace quorin
