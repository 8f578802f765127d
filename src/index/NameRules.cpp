#include "index/NameRules.h"

#include <string>

#include "platform/Text.h"

namespace quorin {
namespace {

constexpr size_t kTestedCharacters = 4;

bool IsContinuationByte(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// Characters, not bytes: a name's tail may be non-ASCII.
std::string_view LastCharacters(std::string_view text, size_t count) {
    size_t start = text.size();
    while (start > 0 && count > 0) {
        --start;
        if (!IsContinuationByte(text[start])) {
            --count;
        }
    }
    return text.substr(start);
}

std::string_view FirstCharacters(std::string_view text, size_t count) {
    size_t end = 0;
    for (; end < text.size(); ++end) {
        if (!IsContinuationByte(text[end])) {
            if (count == 0) {
                break;
            }
            --count;
        }
    }
    return text.substr(0, end);
}

}  // namespace

bool PassesFileTypeFilter(std::string_view name, std::string_view filter, bool filterIsInclude) {
    if (filter.empty()) {
        return !filterIsInclude;  // nothing is listed, whatever the name
    }
    const std::string tail = ToUpper(LastCharacters(name, kTestedCharacters)) + ' ';
    const bool listed = filter.find(tail) != std::string_view::npos;
    return listed == filterIsInclude;
}

bool IsTempFolderName(std::string_view name) {
    return ToUpper(FirstCharacters(name, kTestedCharacters)) == "TEMP";
}

}  // namespace quorin
