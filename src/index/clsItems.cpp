#include "index/clsItems.h"

#include "platform/Errors.h"
#include "platform/Text.h"

namespace quorin {

clsItem& clsItems::Add(std::string_view Filename, int32_t Directory, std::string_view Word,
                       std::string_view sKey) {
    if (!sKey.empty() && IndexOfKey(sKey)) {
        throw DuplicateKeyError("The word \"" + std::string(sKey) +
                                "\" is already assigned to a file.");
    }
    keys_.push_back(sKey.empty() ? std::string() : ToUpper(sKey));
    items_.push_back(
        clsItem{std::string(Word), std::string(Filename), Directory, ToUpper(Filename)});
    return items_.back();
}

const clsItem* clsItems::Item(int32_t position) const {
    if (position < 1 || position > Count()) {
        return nullptr;
    }
    return &items_[static_cast<size_t>(position - 1)];
}

const clsItem* clsItems::Item(std::string_view key) const {
    const std::optional<size_t> index = IndexOfKey(key);
    return index ? &items_[*index] : nullptr;
}

void clsItems::Remove(int32_t position) {
    if (position < 1 || position > Count()) {
        throw OutOfRangeError("There is no word assignment at position " +
                              std::to_string(position) + "; there are " + std::to_string(Count()) +
                              ".");
    }
    RemoveAt(static_cast<size_t>(position - 1));
}

void clsItems::Remove(std::string_view key) {
    const std::optional<size_t> index = IndexOfKey(key);
    if (!index) {
        throw OutOfRangeError("The word \"" + std::string(key) + "\" is not assigned to a file.");
    }
    RemoveAt(*index);
}

std::optional<size_t> clsItems::IndexOfKey(std::string_view key) const {
    if (key.empty()) {
        return std::nullopt;
    }
    const std::string upperKey = ToUpper(key);
    for (size_t i = 0; i < keys_.size(); ++i) {
        if (keys_[i] == upperKey) {
            return i;
        }
    }
    return std::nullopt;
}

void clsItems::RemoveAt(size_t index) {
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
    keys_.erase(keys_.begin() + static_cast<std::ptrdiff_t>(index));
}

}  // namespace quorin
