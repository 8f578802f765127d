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
// A quarter of a million folders of deep paths would cost more memory than their files, so the
// paths are stored front-coded: each as the length it shares with the path before it and the
// rest, which a walk's siblings make mostly the folder's own name. Every kBlock-th slot holds
// its whole path, so that any path is rebuilt from at most kBlock pieces.
class FolderTable {
  public:
    explicit FolderTable(bool growable = false) : growable_(growable) {}

    int32_t Count() const { return count_; }
    // 5001, or more once a growable table has grown.
    int32_t Slots() const;
    bool Growable() const { return growable_; }

    // Throws OutOfRangeError outside 0..Slots()-1. A slot from Count() on holds what it last held.
    std::string Path(int32_t slot) const;

    // Stores the path in slot Count(); false, storing nothing, when a fixed table's 5001 slots
    // are used.
    bool Append(std::string_view path);

    void Clear() { count_ = 0; }

    // Sizes the table for that many slots whose paths take at most textBytes, so that filling it
    // never copies what it holds.
    void Reserve(int32_t slots, size_t textBytes);

    // The first used slot whose path equals path when both are upper-cased.
    std::optional<int32_t> Find(std::string_view path) const;

  private:
    static constexpr size_t kBlock = 16;

    struct Piece {
        size_t start;     // of the rest, in text_
        uint32_t shared;  // bytes taken from the path of the slot before
        uint32_t size;    // of the rest
    };

    // Gives the length the path shares with the previous one.
    size_t Store(size_t slot, std::string_view path, std::string_view previous);
    void StoreAgain(size_t slot, std::string_view path);
    // Turns the path of slot - 1 (nothing at a block's start) into that of slot.
    void Extend(std::string& path, size_t slot) const;

    std::string text_;
    std::vector<Piece> pieces_;  // one per slot ever used
    std::string last_;           // the path of the last slot in pieces_
    int32_t count_ = 0;
    bool growable_ = false;
};

}  // namespace quorin
