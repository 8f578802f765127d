#include "platform/Clock.h"

#include "platform/OleDate.h"

#include <ctime>

namespace quorin {

double SystemClock::Now() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return ToOleDate({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                      local.tm_min, local.tm_sec});
}

std::string FormatLocalDateTime(double oleDate) {
    const CivilTime time = FromOleDate(oleDate);
    std::tm local{};
    local.tm_year = time.year - 1900;
    local.tm_mon = time.month - 1;
    local.tm_mday = time.day;
    local.tm_hour = time.hour;
    local.tm_min = time.minute;
    local.tm_sec = time.second;
    local.tm_isdst = -1;
    char text[128];
    const size_t length = std::strftime(text, sizeof text, "%x %X", &local);
    return std::string(text, length);
}

}  // namespace quorin
