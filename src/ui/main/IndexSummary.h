#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace quorin {

// What the Index panel says the index holds. With folders left out the line is a link to the
// "Index every folder" box, so its text stays short enough for the panel's one free line.
struct IndexSummary {
    std::string text;
    bool linksToAllFolders = false;
};

// A count with its thousands grouped: "16,015".
std::string GroupedNumber(int32_t count);

// foldersLeftOut: what the last build of this session left out; nothing before the first one.
IndexSummary SummarizeIndex(int32_t folders, int32_t files, std::optional<int32_t> foldersLeftOut);

}  // namespace quorin
