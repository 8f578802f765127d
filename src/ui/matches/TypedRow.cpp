#include "ui/matches/TypedRow.h"

#include <string>

#include "platform/Text.h"

namespace quorin {
namespace {

bool OneLetterRepeated(std::wstring_view typed) {
    return typed.size() > 1 && typed.find_first_not_of(typed.front()) == std::wstring_view::npos;
}

}  // namespace

int FindTypedRow(const MatchRows& rows, std::wstring_view typed, int start, int current) {
    const int count = rows.Count();
    if (typed.empty() || count == 0) {
        return -1;
    }
    if (OneLetterRepeated(typed)) {
        typed = typed.substr(0, 1);
        start = current + 1;
    }
    if (start < 0 || start >= count) {
        start = 0;
    }
    const std::string prefix = ToUpper(Narrow(typed));
    for (int step = 0; step < count; ++step) {
        const int row = (start + step) % count;
        if (ToUpper(rows.Filename(row)).starts_with(prefix)) {
            return row;
        }
    }
    return -1;
}

}  // namespace quorin
