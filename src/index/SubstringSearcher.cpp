#include "index/SubstringSearcher.h"

#include <bit>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace quorin {

size_t SubstringSearcher::Find(std::string_view text) const {
    const size_t length = needle_.size();
    if (length == 0) {
        return 0;
    }
    if (text.size() < length) {
        return std::string_view::npos;
    }
    const size_t places = text.size() - length + 1;  // every offset the needle could begin at
    const char* data = text.data();
    size_t start = 0;
#if defined(__SSE2__)
    const __m128i first = _mm_set1_epi8(needle_.front());
    const __m128i last = _mm_set1_epi8(needle_.back());
    for (; start + 16 <= places; start += 16) {
        const __m128i heads = _mm_loadu_si128(reinterpret_cast<const __m128i*>(data + start));
        const __m128i tails =
            _mm_loadu_si128(reinterpret_cast<const __m128i*>(data + start + length - 1));
        auto candidates = static_cast<unsigned>(_mm_movemask_epi8(
            _mm_and_si128(_mm_cmpeq_epi8(heads, first), _mm_cmpeq_epi8(tails, last))));
        for (; candidates != 0; candidates &= candidates - 1) {
            const size_t place = start + static_cast<size_t>(std::countr_zero(candidates));
            if (MatchesAt(data + place)) {
                return place;
            }
        }
    }
#endif
    // The last few places (and without SSE2 all of them) one at a time.
    for (; start < places; ++start) {
        if (MatchesAt(data + start)) {
            return start;
        }
    }
    return std::string_view::npos;
}

bool SubstringSearcher::MatchesAt(const char* place) const {
    const size_t length = needle_.size();
    return place[0] == needle_.front() && place[length - 1] == needle_.back() &&
           (length <= 2 || std::memcmp(place + 1, needle_.data() + 1, length - 2) == 0);
}

}  // namespace quorin
