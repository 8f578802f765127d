#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "index/IndexProgress.h"
#include "index/UnsetAllocator.h"
#include "index/clsItem.h"

namespace quorin {

class SubstringSearcher;

// The index records, packed for a million files. The names, upper-cased once, sit in one buffer,
// a slot per record: the text, then '\n' (which no name contains) up to the slot's end, so that
// one substring search covers many records. A name's own case is kept as one bit per byte
// (lower-case letter or not) for ASCII names, and as the name itself for the rare others.
// Positions count from 1.
class IndexItems {
  public:
    // Sizes the buffers for a file of that many bytes, so that loading it never reallocates them.
    void ReserveForFile(uintmax_t fileBytes);

    // Throws OutOfRangeError for a negative directory; the folder table checks the others.
    void Add(std::string_view filename, int32_t directory);
    // The same for a name known to be ASCII.
    void AddAscii(std::string_view filename, int32_t directory);

    int32_t Count() const { return static_cast<int32_t>(directories_.size()); }
    size_t NameBytes() const { return upperNames_.size(); }

    // Throw OutOfRangeError outside 1..Count().
    clsItem Item(int32_t position) const;
    std::string Filename(int32_t position) const;
    void AppendFilename(int32_t position, std::string& out) const;
    int32_t Directory(int32_t position) const;

    // Positions of the records whose upper-cased name contains upperWord, in index order.
    // The progress is shown with the record count, set after every 100 records, then hidden.
    std::vector<int32_t> Find(std::string_view upperWord, SearchProgress* progress) const;

  private:
    struct OtherName {
        uint32_t record;
        uint32_t start;  // in otherNames_
        uint32_t size;
    };

    void AddName(std::string_view filename, int32_t directory, bool ascii);
    void AppendAscii(std::string_view filename);
    void AddOther(std::string_view filename);
    void CoverLowerBits();
    void FindAll(const SubstringSearcher& searcher, SearchProgress* progress,
                 std::vector<int32_t>& positions) const;
    size_t CheckedIndex(int32_t position) const;
    std::string_view UpperName(size_t index) const;
    size_t SlotStart(size_t index) const;
    const OtherName* FindOther(size_t index) const;

    std::vector<char, UnsetAllocator<char>> upperNames_;
    std::vector<uint64_t> lowerBits_;  // bit i: byte i of upperNames_ was a lower-case letter
    std::string otherNames_;           // the names that are not ASCII, as they are
    std::vector<OtherName> others_;    // in record order
    std::vector<uint32_t> slotStarts_;
    std::vector<int32_t> directories_;  // folder table slots, beyond 5000 with "AllFolders"
};

}  // namespace quorin
