#include "ui/main/IndexSummary.h"

#include <string_view>

namespace quorin {

std::string GroupedNumber(int32_t count) {
    const std::string digits = std::to_string(count);
    std::string grouped;
    for (size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) {
            grouped += ',';
        }
        grouped += digits[i];
    }
    return grouped;
}

namespace {

std::string Counted(int32_t count, std::string_view thing) {
    return GroupedNumber(count) + " " + std::string(thing) + (count == 1 ? "" : "s");
}

}  // namespace

IndexSummary SummarizeIndex(int32_t folders, int32_t files, std::optional<int32_t> foldersLeftOut) {
    if (foldersLeftOut.value_or(0) > 0) {
        return {Counted(folders, "folder") + ", " + Counted(files, "file") + "; " +
                    GroupedNumber(*foldersLeftOut) + " left out",
                true};
    }
    return {Counted(folders, "folder") + " and " + Counted(files, "file") + " indexed.", false};
}

}  // namespace quorin
