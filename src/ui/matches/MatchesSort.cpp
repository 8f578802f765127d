#include "ui/matches/MatchesSort.h"

namespace quorin {

void MatchesSort::ColumnClick(int column) {
    if (column == SortKey) {
        SortOrder = SortOrder == MatchesSortOrder::Ascending ? MatchesSortOrder::Descending
                                                             : MatchesSortOrder::Ascending;
    } else {
        SortKey = column;
        SortOrder = MatchesSortOrder::Ascending;
    }
    Sorted = true;
}

}  // namespace quorin
