#include "index/IndexItems.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "index/SubstringSearcher.h"
#include "platform/Errors.h"
#include "platform/HugePages.h"
#include "platform/Text.h"

namespace quorin {
namespace {

constexpr int32_t kProgressStep = 100;
constexpr char kNameEnd = '\n';
// A record takes at least 16 bytes of "index.txt" in practice (two line ends, a number, a name),
// so the per-record arrays reserved from the file size rarely grow; pages reserved beyond the
// records never become resident.
constexpr uintmax_t kFileBytesPerRecordGuess = 16;
// The case bits grow by this many words at a time (within what is reserved).
constexpr size_t kLowerBitsStep = 512;

// Sets the bits of value (16 at most) from bit `position` on. The next word is always written
// (with nothing when no bit reaches it), as a branch on the shift was a guess the processor
// missed for a quarter of the pieces.
void OrBits(std::vector<uint64_t>& bits, size_t position, uint64_t value) {
    const size_t word = position / 64;
    const size_t shift = position % 64;
    bits[word] |= value << shift;
    bits[word + 1] |= (value >> 1) >> (63 - shift);
}

#if defined(__SSE2__)
struct UpperPiece {
    __m128i bytes;       // upper-cased
    uint64_t lowerMask;  // a bit for each byte that was a lower-case letter
};

UpperPiece UpperCased(__m128i bytes) {
    const __m128i lower = _mm_and_si128(_mm_cmpgt_epi8(bytes, _mm_set1_epi8('a' - 1)),
                                        _mm_cmplt_epi8(bytes, _mm_set1_epi8('z' + 1)));
    return {_mm_sub_epi8(bytes, _mm_and_si128(lower, _mm_set1_epi8('a' - 'A'))),
            static_cast<uint64_t>(_mm_movemask_epi8(lower))};
}

// The 16 bytes of a name of 16 or more from `at` on; a name of 8 to 15 bytes is one piece of
// its first 8 bytes and its last 8.
__m128i Piece(std::string_view name, size_t at) {
    if (name.size() >= 16) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(name.data() + at));
    }
    uint64_t low = 0;
    uint64_t high = 0;
    std::memcpy(&low, name.data(), 8);
    std::memcpy(&high, name.data() + name.size() - 8, 8);
    return _mm_set_epi64x(static_cast<int64_t>(high), static_cast<int64_t>(low));
}
#endif

bool IsAscii(std::string_view name) {
#if defined(__SSE2__)
    if (name.size() >= 8) {
        const size_t last = name.size() >= 16 ? name.size() - 16 : 0;
        __m128i seen = Piece(name, last);
        for (size_t i = 0; i < last; i += 16) {
            seen = _mm_or_si128(seen, Piece(name, i));
        }
        return _mm_movemask_epi8(seen) == 0;
    }
#endif
    return std::none_of(name.begin(), name.end(), [](char c) { return (c & 0x80) != 0; });
}

// std::popcount without the instruction, which the processors the program supports may lack,
// is a library call.
size_t CountBits(uint64_t bits) {
    bits -= (bits >> 1) & 0x5555555555555555;
    bits = (bits & 0x3333333333333333) + ((bits >> 2) & 0x3333333333333333);
    bits = (bits + (bits >> 4)) & 0x0F0F0F0F0F0F0F0F;
    return static_cast<size_t>((bits * 0x0101010101010101) >> 56);
}

// The first index from `from` on whose start lies beyond `at`, or `count`: by steps that double,
// then halving, as a rare word's hits are tens of thousands of records apart.
size_t FirstStartAfter(const uint32_t* starts, size_t from, size_t count, size_t at) {
    size_t low = from;  // the starts before it lie at `at` or before
    size_t probe = from;
    for (size_t step = 1; probe < count && starts[probe] <= at; step *= 2) {
        low = probe + 1;
        probe = low + step;
    }
    const uint32_t* const high = starts + std::min(probe, count);
    return static_cast<size_t>(std::upper_bound(starts + low, high, at) - starts);
}

// The hits of the 64 places from start that lie at `from` or beyond.
uint64_t DropBefore(uint64_t hits, size_t start, size_t from) {
    if (from <= start) {
        return hits;
    }
    return from - start >= SubstringSearcher::kPlaces ? 0 : hits & (~uint64_t{0} << (from - start));
}

uint32_t Offset(size_t size) {
    if (size > std::numeric_limits<uint32_t>::max()) {
        throw OutOfRangeError("The index holds more file names than fit in 4 GB.");
    }
    return static_cast<uint32_t>(size);
}

}  // namespace

void IndexItems::ReserveForFile(uintmax_t fileBytes) {
    const auto bytes = static_cast<size_t>(fileBytes);
    const size_t records = bytes / kFileBytesPerRecordGuess;
    upperNames_.reserve(bytes);
    lowerBits_.reserve(bytes / 64 + 2);
    slotStarts_.reserve(records);
    directories_.reserve(records);
    AdviseHugePages(upperNames_.data(), upperNames_.capacity());
    AdviseHugePages(lowerBits_.data(), lowerBits_.capacity() * sizeof(uint64_t));
    AdviseHugePages(slotStarts_.data(), slotStarts_.capacity() * sizeof(uint32_t));
    AdviseHugePages(directories_.data(), directories_.capacity() * sizeof(int32_t));
}

void IndexItems::Add(std::string_view filename, int32_t directory) {
    AddName(filename, directory, IsAscii(filename));
}

void IndexItems::AddAscii(std::string_view filename, int32_t directory) {
    AddName(filename, directory, true);
}

void IndexItems::AddName(std::string_view filename, int32_t directory, bool ascii) {
    if (directory < 0) {
        throw OutOfRangeError("The folder number " + std::to_string(directory) +
                              " is outside the folder table.");
    }
    slotStarts_.push_back(Offset(upperNames_.size()));
    if (ascii) {
        AppendAscii(filename);
    } else {
        AddOther(filename);
    }
    directories_.push_back(directory);
}

// Upper-cases the name 16 bytes at a time into its slot and notes which were lower-case
// letters. A name's last piece is the 16 bytes that end it, which overlap the piece before:
// upper-casing a byte twice changes nothing.
void IndexItems::AppendAscii(std::string_view filename) {
    const size_t start = upperNames_.size();
    const size_t size = filename.size();
    upperNames_.resize(start + size + 1);
    CoverLowerBits();
    char* upper = upperNames_.data() + start;
    upper[size] = kNameEnd;
#if defined(__SSE2__)
    if (size >= 16) {
        const size_t last = size - 16;
        for (size_t i = 0;; i = std::min(i + 16, last)) {
            const auto [bytes, lowerMask] = UpperCased(Piece(filename, i));
            _mm_storeu_si128(reinterpret_cast<__m128i*>(upper + i), bytes);
            OrBits(lowerBits_, start + i, lowerMask);
            if (i == last) {
                break;
            }
        }
        return;
    }
    if (size >= 8) {
        const auto [bytes, lowerMask] = UpperCased(Piece(filename, 0));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(upper), bytes);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(upper + size - 8), _mm_srli_si128(bytes, 8));
        OrBits(lowerBits_, start, lowerMask & 0xFF);
        OrBits(lowerBits_, start + size - 8, lowerMask >> 8);
        return;
    }
#endif
    for (size_t i = 0; i < size; ++i) {
        const char c = filename[i];
        const bool lower = c >= 'a' && c <= 'z';
        upper[i] = lower ? static_cast<char>(c - ('a' - 'A')) : c;
        if (lower) {
            OrBits(lowerBits_, start + i, 1);
        }
    }
}

// Growing the case bits a word at a time was a library call for every other name of a load.
void IndexItems::CoverLowerBits() {
    const size_t words = upperNames_.size() / 64 + 2;
    if (words > lowerBits_.size()) {
        lowerBits_.resize(
            std::max(words, std::min(lowerBits_.size() + kLowerBitsStep, lowerBits_.capacity())));
    }
}

void IndexItems::AddOther(std::string_view filename) {
    others_.push_back(OtherName{static_cast<uint32_t>(directories_.size()),
                                Offset(otherNames_.size()), Offset(filename.size())});
    otherNames_.append(filename);
    const std::string upper = ToUpper(filename);
    upperNames_.insert(upperNames_.end(), upper.begin(), upper.end());
    upperNames_.push_back(kNameEnd);
    CoverLowerBits();
}

clsItem IndexItems::Item(int32_t position) const {
    const size_t index = CheckedIndex(position);
    return clsItem{std::string(), Filename(position), directories_[index],
                   std::string(UpperName(index))};
}

std::string IndexItems::Filename(int32_t position) const {
    std::string name;
    AppendFilename(position, name);
    return name;
}

void IndexItems::AppendFilename(int32_t position, std::string& out) const {
    const size_t index = CheckedIndex(position);
    if (const OtherName* other = FindOther(index)) {
        out.append(otherNames_, other->start, other->size);
        return;
    }
    const std::string_view upper = UpperName(index);
    const size_t start = out.size();
    out.append(upper);
    for (size_t i = 0; i < upper.size(); ++i) {
        const size_t bit = slotStarts_[index] + i;
        if ((lowerBits_[bit / 64] >> (bit % 64)) & 1) {
            out[start + i] = static_cast<char>(out[start + i] + ('a' - 'A'));
        }
    }
}

int32_t IndexItems::Directory(int32_t position) const {
    return directories_[CheckedIndex(position)];
}

std::vector<int32_t> IndexItems::Find(std::string_view upperWord, SearchProgress* progress) const {
    std::vector<int32_t> positions;
    if (progress) {
        progress->Show(Count());
    }
    // No name holds a line break, and '\n' would only match between records.
    if (upperWord.find_first_of("\r\n") == std::string_view::npos) {
        // Pages reserved and never filled cost nothing; growing by copies cost a fifth of "e".
        positions.reserve(static_cast<size_t>(Count()));
        FindAll(SubstringSearcher(upperWord), progress, positions);
    }
    if (progress) {
        progress->Hide();
    }
    return positions;
}

// All names are searched as one text, 64 bytes at a time, rather than name by name (which
// restarted the search at every record of a short word's 1,200,000): a hit is given to the
// record that holds it, found by counting name ends or by a search of the records' starts, and
// the hits up to that record's end are dropped. A rare word costs little more than the scan.
void IndexItems::FindAll(const SubstringSearcher& searcher, SearchProgress* progress,
                         std::vector<int32_t>& positions) const {
    constexpr size_t kPlaces = SubstringSearcher::kPlaces;
    const std::string_view all(upperNames_.data(), upperNames_.size());
    // The last bytes are read from a copy that can be read beyond them.
    const size_t reach = kPlaces + searcher.Size();  // the bytes Starts reads, and one
    const size_t tailStart =
        all.size() >= reach ? (all.size() - reach) / kPlaces * kPlaces + kPlaces : 0;
    const std::string tail = searcher.PaddedTail(all, std::min(tailStart, all.size()), kNameEnd);
    const SubstringSearcher nameEnds(std::string_view(&kNameEnd, 1));
    // Held here, as the compiler cannot tell that adding a position leaves the members alone.
    const uint32_t* const starts = slotStarts_.data();
    const size_t records = slotStarts_.size();
    const auto slotStart = [&](size_t index) {
        return index < records ? starts[index] : all.size();
    };
    size_t record = 0;    // the record that starts at nextFree
    size_t nextFree = 0;  // where the first record not yet given starts
    int32_t nextStep = kProgressStep;
    for (size_t start = 0; start < all.size(); start += kPlaces) {
        const char* bytes =
            start < tailStart ? all.data() + start : tail.data() + (start - tailStart);
        const size_t left = all.size() - start;
        uint64_t hits =
            searcher.Starts(bytes) & (left >= kPlaces ? ~uint64_t{0} : (uint64_t{1} << left) - 1);
        hits = DropBefore(hits, start, nextFree);
        uint64_t ends = 0;  // the name ends among the 64 bytes, found once a hit needs them
        while (hits != 0) {
            const int at = std::countr_zero(hits);
            const size_t hit = start + static_cast<size_t>(at);
            // For a short word the hit is most often in the record at nextFree.
            if (slotStart(record + 1) <= hit && nextFree >= start) {
                // The records from nextFree to the hit end among these bytes: counting their
                // ends costs no branch, where walking on cost one the processor could not
                // foresee.
                if (ends == 0) {
                    ends = nameEnds.Starts(bytes);
                }
                record += CountBits(ends & (~uint64_t{0} << (nextFree - start)) &
                                    ((uint64_t{1} << at) - 1));
            } else if (slotStart(record + 1) <= hit) {
                record = FirstStartAfter(starts, record + 1, records, hit) - 1;
            }
            positions.push_back(static_cast<int32_t>(record) + 1);
            nextFree = slotStart(++record);
            hits = DropBefore(hits, start, nextFree);
        }
        for (; progress && static_cast<size_t>(nextStep) <= records &&
               slotStart(static_cast<size_t>(nextStep)) <= start + kPlaces;
             nextStep += kProgressStep) {
            progress->SetValue(nextStep);
        }
    }
}

size_t IndexItems::CheckedIndex(int32_t position) const {
    if (position < 1 || position > Count()) {
        throw OutOfRangeError("There is no index record at position " + std::to_string(position) +
                              "; the index holds " + std::to_string(Count()) + ".");
    }
    return static_cast<size_t>(position - 1);
}

std::string_view IndexItems::UpperName(size_t index) const {
    const size_t start = slotStarts_[index];
    return std::string_view(upperNames_.data(), upperNames_.size())
        .substr(start, SlotStart(index + 1) - 1 - start);
}

size_t IndexItems::SlotStart(size_t index) const {
    return index < slotStarts_.size() ? slotStarts_[index] : upperNames_.size();
}

const IndexItems::OtherName* IndexItems::FindOther(size_t index) const {
    const auto found = std::lower_bound(
        others_.begin(), others_.end(), index,
        [](const OtherName& other, size_t record) { return other.record < record; });
    return found != others_.end() && found->record == index ? &*found : nullptr;
}

}  // namespace quorin
