#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "index/IndexItems.h"
#include "index/clsItem.h"

namespace quorin {

// The index records that matched a word, in index order. It shares the records it came from,
// so a rebuild that replaces the engine's index leaves an open list of matches intact.
class MatchList {
  public:
    MatchList(std::shared_ptr<const IndexItems> items, std::vector<int32_t> positions);

    int32_t Count() const { return static_cast<int32_t>(positions_.size()); }

    // Position counted from 1; throws OutOfRangeError outside 1..Count().
    clsItem Item(int32_t position) const;
    // Parts of Item for a window that shows many matches: no copy of the rest of the record.
    std::string Filename(int32_t position) const;
    int32_t Directory(int32_t position) const;

  private:
    int32_t Record(int32_t position) const;  // throws as Item does

    std::shared_ptr<const IndexItems> items_;
    std::vector<int32_t> positions_;  // positions in items_
};

}  // namespace quorin
