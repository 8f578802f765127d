#include "index/FolderTable.h"

#include "platform/Errors.h"
#include "platform/Text.h"

namespace quorin {

FolderTable::FolderTable() : paths_(kFolderSlots), upperPaths_(kFolderSlots) {}

const std::string& FolderTable::Path(int32_t slot) const {
    if (slot < 0 || slot >= kFolderSlots) {
        throw OutOfRangeError("The folder number " + std::to_string(slot) +
                              " is outside the folder table, which holds folders 0 to " +
                              std::to_string(kFolderSlots - 1) + ".");
    }
    return paths_[static_cast<size_t>(slot)];
}

bool FolderTable::Append(std::string_view path) {
    if (count_ >= kFolderSlots) {
        return false;
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
