#include "platform/OleDate.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>

#include "platform/Text.h"

namespace quorin {
namespace {

constexpr int kSecondsPerDay = 24 * 60 * 60;

// Days since 1970-01-01 of a proleptic Gregorian date (H. Hinnant's algorithm).
std::int64_t DaysFromCivil(std::int64_t year, int month, int day) {
    year -= month <= 2 ? 1 : 0;
    const std::int64_t era = (year >= 0 ? year : year - 399) / 400;
    const std::int64_t yearOfEra = year - era * 400;
    const std::int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

void CivilFromDays(std::int64_t days, CivilTime& time) {
    days += 719468;
    const std::int64_t era = (days >= 0 ? days : days - 146096) / 146097;
    const std::int64_t dayOfEra = days - era * 146097;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t shiftedMonth = (5 * dayOfYear + 2) / 153;
    time.day = static_cast<int>(dayOfYear - (153 * shiftedMonth + 2) / 5 + 1);
    time.month = static_cast<int>(shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9);
    time.year = static_cast<int>(yearOfEra + era * 400 + (time.month <= 2 ? 1 : 0));
}

const std::int64_t kOleEpoch = DaysFromCivil(1899, 12, 30);

// 0100-01-01 and 9999-12-31 23:59:59, the range of OLE Automation dates.
constexpr double kOleMin = -657434.0;
constexpr double kOleMax = 2958465.0 + (kSecondsPerDay - 1) / double{kSecondsPerDay};

bool IsLeapYear(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int DaysInMonth(int year, int month) {
    static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}

// Reads `digits` decimal digits at text[pos] into value when they lie in [min, max].
bool ReadField(std::string_view text, size_t pos, size_t digits, int min, int max, int& value) {
    value = 0;
    for (size_t i = pos; i < pos + digits; ++i) {
        if (text[i] < '0' || text[i] > '9') {
            return false;
        }
        value = value * 10 + (text[i] - '0');
    }
    return value >= min && value <= max;
}

}  // namespace

double ToOleDate(const CivilTime& time) {
    const double days =
        static_cast<double>(DaysFromCivil(time.year, time.month, time.day) - kOleEpoch);
    const double fraction =
        (time.hour * 3600 + time.minute * 60 + time.second) / static_cast<double>(kSecondsPerDay);
    return days >= 0 ? days + fraction : days - fraction;
}

CivilTime FromOleDate(double oleDate) {
    // Out-of-range values (they only come from damaged settings) are clamped, not undefined.
    oleDate = std::isnan(oleDate) ? 0.0 : std::clamp(oleDate, kOleMin, kOleMax);
    const double wholeDays = std::trunc(oleDate);
    auto seconds =
        static_cast<std::int64_t>(std::llround(std::fabs(oleDate - wholeDays) * kSecondsPerDay));
    auto days = static_cast<std::int64_t>(wholeDays);
    if (seconds == kSecondsPerDay) {
        ++days;
        seconds = 0;
    }
    CivilTime time;
    CivilFromDays(days + kOleEpoch, time);
    time.hour = static_cast<int>(seconds / 3600);
    time.minute = static_cast<int>(seconds / 60 % 60);
    time.second = static_cast<int>(seconds % 60);
    return time;
}

std::string FormatIndexDate(double oleDate) {
    const CivilTime time = FromOleDate(oleDate);
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", time.year, time.month,
                  time.day, time.hour, time.minute, time.second);
    return text;
}

std::optional<double> ParseIndexDate(std::string_view text) {
    constexpr std::string_view kShape = "0000-00-00 00:00:00";
    text = TrimBlanks(text);
    if (text.size() != kShape.size()) {
        return std::nullopt;
    }
    for (size_t i = 0; i < kShape.size(); ++i) {
        if (kShape[i] != '0' && text[i] != kShape[i]) {
            return std::nullopt;
        }
    }
    // The years an OLE Automation date can hold.
    CivilTime time;
    if (!ReadField(text, 0, 4, 100, 9999, time.year) || !ReadField(text, 5, 2, 1, 12, time.month) ||
        !ReadField(text, 8, 2, 1, DaysInMonth(time.year, time.month), time.day) ||
        !ReadField(text, 11, 2, 0, 23, time.hour) || !ReadField(text, 14, 2, 0, 59, time.minute) ||
        !ReadField(text, 17, 2, 0, 59, time.second)) {
        return std::nullopt;
    }
    return ToOleDate(time);
}

}  // namespace quorin
