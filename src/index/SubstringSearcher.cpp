#include "index/SubstringSearcher.h"

namespace quorin {

SubstringSearcher::SubstringSearcher(std::string_view needle)
    : needle_(needle), lastAt_(needle.empty() ? 0 : needle.size() - 1) {
#if defined(__SSE2__)
    first_ = _mm_set1_epi8(needle.empty() ? '\0' : needle.front());
    last_ = _mm_set1_epi8(needle.empty() ? '\0' : needle.back());
#endif
}

size_t SubstringSearcher::Find(std::string_view text) const {
    const size_t length = needle_.size();
    if (length == 0) {
        return 0;
    }
    if (text.size() < length) {
        return std::string_view::npos;
    }
    const size_t places = text.size() - length + 1;  // every offset the needle could begin at
    size_t start = 0;
    for (; start + kPlaces <= places; start += kPlaces) {
        if (const uint64_t found = Starts(text.data() + start)) {
            return start + static_cast<size_t>(std::countr_zero(found));
        }
    }
    if (start == places) {
        return std::string_view::npos;
    }
    // Beyond the text's last place the needle would not fit, so what the filler makes there
    // does not count.
    const std::string tail = PaddedTail(text, start, '\0');
    const uint64_t found = Starts(tail.data()) & ((uint64_t{1} << (places - start)) - 1);
    return found != 0 ? start + static_cast<size_t>(std::countr_zero(found))
                      : std::string_view::npos;
}

std::string SubstringSearcher::PaddedTail(std::string_view text, size_t from, char filler) const {
    std::string tail(text.substr(from));
    tail.append(kPlaces + needle_.size(), filler);
    return tail;
}

}  // namespace quorin
