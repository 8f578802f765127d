#include "index/SubstringSearcher.h"

namespace quorin {

SubstringSearcher::SubstringSearcher(std::string_view needle)
    : needle_(needle), lastAt_(needle.empty() ? 0 : needle.size() - 1) {
#if defined(__SSE2__)
    first_ = _mm_set1_epi8(needle.empty() ? '\0' : needle.front());
    last_ = _mm_set1_epi8(needle.empty() ? '\0' : needle.back());
#endif
}

std::string SubstringSearcher::PaddedTail(std::string_view text, size_t from, char filler) const {
    std::string tail(text.substr(from));
    tail.append(kPlaces + needle_.size(), filler);
    return tail;
}

}  // namespace quorin
