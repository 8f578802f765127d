#pragma once

namespace quorin {

enum class MatchesSortOrder { Ascending, Descending };

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
