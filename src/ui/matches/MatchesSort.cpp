#include "ui/matches/MatchesSort.h"

namespace quorin {

void MatchesSort::ColumnClick(int column) {
    if (column == sortKey) {
        sortOrder = sortOrder == MatchesSortOrder::Ascending ? MatchesSortOrder::Descending
                                                             : MatchesSortOrder::Ascending;
    } else {
        sortKey = column;
        sortOrder = MatchesSortOrder::Ascending;
    }
    sorted = true;
}

}  // namespace quorin
