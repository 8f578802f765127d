#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "index/clsItem.h"

namespace quorin {

// The ordered, keyed collection of the word assignments. Positions count from 1; keys compare
// without regard to case. Assignments are few, so lookups simply scan.
class clsItems {
  public:
    using const_iterator = std::vector<clsItem>::const_iterator;

    // Appends a record under sKey (no key when sKey is empty). Throws DuplicateKeyError, adding
    // nothing, when the key is already present. The reference lasts until the next change.
    clsItem& Add(std::string_view Filename, int32_t Directory, std::string_view Word,
                 std::string_view sKey);

    // nullptr when the position is out of range or the key is absent.
    const clsItem* Item(int32_t position) const;
    const clsItem* Item(std::string_view key) const;

    int32_t Count() const { return static_cast<int32_t>(items_.size()); }

    // Throw OutOfRangeError when there is no such record.
    void Remove(int32_t position);
    void Remove(std::string_view key);

    const_iterator begin() const { return items_.begin(); }
    const_iterator end() const { return items_.end(); }

  private:
    std::optional<size_t> IndexOfKey(std::string_view key) const;
    void RemoveAt(size_t index);

    std::vector<clsItem> items_;
    std::vector<std::string> keys_;  // upper-cased, parallel to items_; empty when unkeyed
};

}  // namespace quorin
