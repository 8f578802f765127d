#pragma once

#include <array>

namespace quorin {

enum class MatchesSortOrder { Ascending, Descending };

// The list's columns in the order shown: a column's place is its sub-item and its sort key.
struct MatchesColumn {
    const wchar_t* title;
    int widthTwips;
};
inline constexpr std::array<MatchesColumn, 2> kMatchesColumns{
    {{L"Name", 2700}, {L"Location", 3800}}};

// The list's sort state and what a click on a column header does to it. The list starts unsorted
// with key "Name" ascending, so the very first click on "Name" sorts descending.
struct MatchesSort {
    static constexpr int kName = 0;
    static constexpr int kLocation = 1;

    int sortKey = kName;
    MatchesSortOrder sortOrder = MatchesSortOrder::Ascending;
    bool sorted = false;

    // The sort key's own column flips the order; another column becomes the key, ascending.
    void ColumnClick(int column);
};

}  // namespace quorin
