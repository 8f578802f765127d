#include "index/MatchList.h"

#include <string>

#include "platform/Errors.h"

namespace quorin {

MatchList::MatchList(std::shared_ptr<const IndexItems> items, std::vector<int32_t> positions)
    : items_(std::move(items)), positions_(std::move(positions)) {}

clsItem MatchList::Item(int32_t position) const {
    if (position < 1 || position > Count()) {
        throw OutOfRangeError("There is no match at position " + std::to_string(position) +
                              "; there are " + std::to_string(Count()) + ".");
    }
    return items_->Item(positions_[static_cast<size_t>(position - 1)]);
}

}  // namespace quorin
