#pragma once

#include <string_view>

#include "ui/matches/MatchRows.h"

namespace quorin {

// The row that the list's type-to-find goes to for the text typed so far, as a list that holds
// its own rows finds it: the first row, in the order shown and from row `start` on, wrapping
// round at the end, whose name begins with `typed` without regard to case. One letter typed
// again and again ("ggg") steps through the names that begin with it, from the row after
// `current`. -1 when no name begins so.
int FindTypedRow(const MatchRows& rows, std::wstring_view typed, int start, int current);

}  // namespace quorin
