#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace quorin {

// Finds one fixed byte string in many texts. Portable because not every C library has memmem;
// fast because a lookup scans a million names: 64 places at a time are tested for the needle's
// first and last bytes, and only the places that pass are compared in full.
class SubstringSearcher {
  public:
    static constexpr size_t kPlaces = 64;

    explicit SubstringSearcher(std::string_view needle);

    size_t Size() const { return needle_.size(); }

    // Bit i set where the needle begins at place + i (every bit for an empty needle). Reads the
    // kPlaces + Size() - 1 bytes from place on. Inline, as a lookup calls it for every 64 bytes.
    uint64_t Starts(const char* place) const {
        if (needle_.empty()) {
            return ~uint64_t{0};
        }
        uint64_t candidates = Candidates(place);
        if (needle_.size() <= 2) {
            return candidates;
        }
        uint64_t found = 0;
        for (; candidates != 0; candidates &= candidates - 1) {
            const int at = std::countr_zero(candidates);
            if (std::memcmp(place + at + 1, needle_.data() + 1, needle_.size() - 2) == 0) {
                found |= uint64_t{1} << at;
            }
        }
        return found;
    }

    // The text from `from` on, then enough `filler` that Starts may read from any of its places:
    // for the last places of a text, which cannot be read that far in place.
    std::string PaddedTail(std::string_view text, size_t from, char filler) const;

  private:
    // The places holding the needle's first and last bytes where they should be; most 64 bytes
    // have none, which costs one test.
    uint64_t Candidates(const char* place) const {
#if defined(__SSE2__)
        __m128i pieces[4];
        __m128i any = _mm_setzero_si128();
        for (size_t i = 0; i < 4; ++i) {
            const char* at = place + i * 16;
            pieces[i] = _mm_and_si128(_mm_cmpeq_epi8(Load(at), first_),
                                      _mm_cmpeq_epi8(Load(at + lastAt_), last_));
            any = _mm_or_si128(any, pieces[i]);
        }
        if (_mm_movemask_epi8(any) == 0) {
            return 0;
        }
        uint64_t mask = 0;
        for (size_t i = 0; i < 4; ++i) {
            mask |= static_cast<uint64_t>(static_cast<uint16_t>(_mm_movemask_epi8(pieces[i])))
                    << (i * 16);
        }
        return mask;
#else
        uint64_t mask = 0;
        for (size_t i = 0; i < kPlaces; ++i) {
            mask |= static_cast<uint64_t>(place[i] == needle_.front() &&
                                          place[i + lastAt_] == needle_.back())
                    << i;
        }
        return mask;
#endif
    }

#if defined(__SSE2__)
    static __m128i Load(const char* at) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    }

    __m128i first_;
    __m128i last_;
#endif
    std::string needle_;
    size_t lastAt_ = 0;  // the offset of the needle's last byte
};

}  // namespace quorin
