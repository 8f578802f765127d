#include "index/MatchList.h"

#include <string>

#include "platform/Errors.h"

namespace quorin {

MatchList::MatchList(std::shared_ptr<const IndexItems> items, std::vector<int32_t> positions)
    : items_(std::move(items)), positions_(std::move(positions)) {}

clsItem MatchList::Item(int32_t position) const {
    return items_->Item(Record(position));
}

std::string MatchList::Filename(int32_t position) const {
    return items_->Filename(Record(position));
}

int32_t MatchList::Directory(int32_t position) const {
    return items_->Directory(Record(position));
}

int32_t MatchList::Record(int32_t position) const {
    if (position < 1 || position > Count()) {
        throw OutOfRangeError("There is no match at position " + std::to_string(position) +
                              "; there are " + std::to_string(Count()) + ".");
    }
    return positions_[static_cast<size_t>(position - 1)];
}

}  // namespace quorin
