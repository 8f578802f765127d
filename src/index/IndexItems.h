#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "index/IndexProgress.h"
#include "index/clsItem.h"

namespace quorin {

class SubstringSearcher;

// The index records, packed for a million files: every name in one buffer, every upper-cased
// name in a second one (each followed by '\n', which no name contains, so one substring search
// covers many records), and three 32-bit numbers per record. Positions count from 1.
class IndexItems {
  public:
    // Sizes the buffers for a file of that many bytes, so that loading it never reallocates them.
    void ReserveForFile(uintmax_t fileBytes);

    void Add(std::string_view filename, int32_t directory);

    int32_t Count() const { return static_cast<int32_t>(directories_.size()); }
    size_t NameBytes() const { return names_.size(); }

    // Throw OutOfRangeError outside 1..Count().
    clsItem Item(int32_t position) const;
    std::string_view Filename(int32_t position) const;
    int32_t Directory(int32_t position) const;

    // Positions of the records whose upper-cased name contains upperWord, in index order.
    // The progress is shown with the record count, set after every 100 records, then hidden.
    std::vector<int32_t> Find(std::string_view upperWord, SearchProgress* progress) const;

  private:
    void FindInBlock(const SubstringSearcher& searcher, size_t first, size_t last,
                     std::vector<int32_t>& positions) const;
    size_t CheckedIndex(int32_t position) const;
    std::string_view UpperName(size_t index) const;
    size_t UpperStart(size_t index) const;

    std::string names_;
    std::string upperNames_;
    std::vector<uint32_t> nameStarts_;
    std::vector<uint32_t> upperStarts_;
    std::vector<int32_t> directories_;
};

}  // namespace quorin
