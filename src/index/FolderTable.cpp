#include "index/FolderTable.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "platform/Errors.h"
#include "platform/HugePages.h"
#include "platform/Text.h"

namespace quorin {
namespace {

// Eight bytes at a time: the paths of a deep tree share a hundred bytes or more.
size_t CommonPrefix(std::string_view a, std::string_view b) {
    const size_t most = std::min(a.size(), b.size());
    size_t i = 0;
    if constexpr (std::endian::native == std::endian::little) {
        for (; i + 8 <= most; i += 8) {
            uint64_t x = 0;
            uint64_t y = 0;
            std::memcpy(&x, a.data() + i, 8);
            std::memcpy(&y, b.data() + i, 8);
            if (x != y) {
                return i + static_cast<size_t>(std::countr_zero(x ^ y)) / 8;
            }
        }
    }
    while (i < most && a[i] == b[i]) {
        ++i;
    }
    return i;
}

}  // namespace

int32_t FolderTable::Slots() const {
    return std::max(kFolderSlots, static_cast<int32_t>(pieces_.size()));
}

std::string FolderTable::Path(int32_t slot) const {
    if (slot < 0 || slot >= Slots()) {
        throw OutOfRangeError("The folder number " + std::to_string(slot) +
                              " is outside the folder table, which holds folders 0 to " +
                              std::to_string(Slots() - 1) + ".");
    }
    std::string path;
    const auto index = static_cast<size_t>(slot);
    for (size_t i = index - index % kBlock; i < std::min(index + 1, pieces_.size()); ++i) {
        Extend(path, i);
    }
    return path;
}

bool FolderTable::Append(std::string_view path) {
    if (count_ >= kFolderSlots && !growable_) {
        return false;
    }
    const auto slot = static_cast<size_t>(count_++);
    if (slot == pieces_.size()) {
        // Only the part that differs is copied: a sibling's path differs in its name.
        last_.resize(Store(slot, path, last_));
        last_.append(path.substr(last_.size()));
    } else {
        StoreAgain(slot, path);
    }
    return true;
}

void FolderTable::Reserve(int32_t slots, size_t textBytes) {
    text_.reserve(textBytes);
    pieces_.reserve(static_cast<size_t>(slots));
    AdviseHugePages(text_.data(), text_.capacity());
    AdviseHugePages(pieces_.data(), pieces_.capacity() * sizeof(Piece));
}

std::optional<int32_t> FolderTable::Find(std::string_view path) const {
    const std::string upperPath = ToUpper(path);
    std::string current;
    for (int32_t slot = 0; slot < count_; ++slot) {
        Extend(current, static_cast<size_t>(slot));
        if (ToUpper(current) == upperPath) {
            return slot;
        }
    }
    return std::nullopt;
}

size_t FolderTable::Store(size_t slot, std::string_view path, std::string_view previous) {
    const size_t shared = slot % kBlock == 0 ? 0 : CommonPrefix(path, previous);
    const Piece piece{text_.size(), static_cast<uint32_t>(shared),
                      static_cast<uint32_t>(path.size() - shared)};
    text_.append(path.substr(shared));
    if (slot == pieces_.size()) {
        pieces_.push_back(piece);
    } else {
        pieces_[slot] = piece;
    }
    return shared;
}

// A cleared table filled again: the later slots of the block are stored anew behind the new
// path, so that they keep what they held. The old pieces' bytes stay unused in text_.
void FolderTable::StoreAgain(size_t slot, std::string_view path) {
    const size_t blockEnd = std::min(pieces_.size(), slot - slot % kBlock + kBlock);
    std::vector<std::string> later;
    for (size_t i = slot + 1; i < blockEnd; ++i) {
        later.push_back(Path(static_cast<int32_t>(i)));
    }
    std::string previous =
        slot % kBlock == 0 ? std::string() : Path(static_cast<int32_t>(slot - 1));
    Store(slot, path, previous);
    previous = path;
    for (size_t i = slot + 1; i < blockEnd; ++i) {
        Store(i, later[i - slot - 1], previous);
        previous = later[i - slot - 1];
    }
    if (blockEnd == pieces_.size()) {
        last_ = previous;
    }
}

void FolderTable::Extend(std::string& path, size_t slot) const {
    const Piece& piece = pieces_[slot];
    path.resize(piece.shared);
    path.append(text_, piece.start, piece.size);
}

}  // namespace quorin
