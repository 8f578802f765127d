#include "index/SubstringSearcher.h"

#include <cstring>

namespace quorin {
namespace {

size_t ByteIndex(char c) {
    return static_cast<unsigned char>(c);
}

}  // namespace

SubstringSearcher::SubstringSearcher(std::string_view needle) : needle_(needle) {
    shift_.fill(needle_.size());
    for (size_t i = 0; i + 1 < needle_.size(); ++i) {
        shift_[ByteIndex(needle_[i])] = needle_.size() - 1 - i;
    }
}

size_t SubstringSearcher::Find(std::string_view text) const {
    const size_t length = needle_.size();
    if (length == 0) {
        return 0;
    }
    if (length == 1) {
        const void* hit = std::memchr(text.data(), needle_[0], text.size());
        return hit ? static_cast<size_t>(static_cast<const char*>(hit) - text.data())
                   : std::string_view::npos;
    }
    const char last = needle_[length - 1];
    for (size_t start = 0; start + length <= text.size();) {
        const char probe = text[start + length - 1];
        if (probe == last && std::memcmp(text.data() + start, needle_.data(), length - 1) == 0) {
            return start;
        }
        start += shift_[ByteIndex(probe)];
    }
    return std::string_view::npos;
}

}  // namespace quorin
