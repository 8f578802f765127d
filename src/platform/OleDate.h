#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorin {

// A calendar date and time of day, to the second, in no particular time zone.
struct CivilTime {
    int year = 1899;
    int month = 12;
    int day = 30;
    int hour = 0;
    int minute = 0;
    int second = 0;

    bool operator==(const CivilTime&) const = default;
};

// OLE Automation dates: days since 1899-12-30 00:00, the fraction giving the time of day.
// Before that day the whole days count backwards while the fraction still counts forwards
// (-1.25 is 1899-12-29 06:00).
double ToOleDate(const CivilTime& time);

// Rounded to the nearest second.
CivilTime FromOleDate(double oleDate);

// The one fixed text form of a date in "index.txt": "YYYY-MM-DD HH:MM:SS".
std::string FormatIndexDate(double oleDate);

// Reads exactly the form FormatIndexDate writes (blanks around it allowed) with every field
// in its range; anything else gives nothing.
std::optional<double> ParseIndexDate(std::string_view text);

}  // namespace quorin
