#include "index/FolderTable.h"

#include "platform/Errors.h"
#include "platform/Text.h"

namespace quorin {

FolderTable::FolderTable(bool growable)
    : paths_(kFolderSlots), upperPaths_(kFolderSlots), growable_(growable) {}

const std::string& FolderTable::Path(int32_t slot) const {
    if (slot < 0 || slot >= Slots()) {
        throw OutOfRangeError("The folder number " + std::to_string(slot) +
                              " is outside the folder table, which holds folders 0 to " +
                              std::to_string(Slots() - 1) + ".");
    }
    return paths_[static_cast<size_t>(slot)];
}

bool FolderTable::Append(std::string_view path) {
    if (count_ == Slots()) {
        if (!growable_) {
            return false;
        }
        paths_.emplace_back();
        upperPaths_.emplace_back();
    }
    const auto slot = static_cast<size_t>(count_++);
    paths_[slot] = path;
    upperPaths_[slot] = ToUpper(path);
    return true;
}

std::optional<int32_t> FolderTable::Find(std::string_view path) const {
    const std::string upperPath = ToUpper(path);
    for (int32_t slot = 0; slot < count_; ++slot) {
        if (upperPaths_[static_cast<size_t>(slot)] == upperPath) {
            return slot;
        }
    }
    return std::nullopt;
}

}  // namespace quorin
