#pragma once

#include <string>
#include <string_view>

namespace quorin {

// The update interval's text once the user leaves its box: the number it begins with (leading
// spaces skipped, a sign, digits and one decimal point; the rest ignored) printed back in its
// shortest decimal form, so "3 hours" gives "3" and "2.50" gives "2.5". Zero, or no number at
// all, gives "1". A negative number is left negative on purpose.
std::string CorrectedIntervalText(std::string_view text);

}  // namespace quorin
