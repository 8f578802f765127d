#include "platform/Clock.h"

#include "platform/OleDate.h"
#include "platform/Text.h"

#include <windows.h>

namespace quorin {
namespace {

SYSTEMTIME ToSystemTime(const CivilTime& time) {
    SYSTEMTIME system{};
    system.wYear = static_cast<WORD>(time.year);
    system.wMonth = static_cast<WORD>(time.month);
    system.wDay = static_cast<WORD>(time.day);
    system.wHour = static_cast<WORD>(time.hour);
    system.wMinute = static_cast<WORD>(time.minute);
    system.wSecond = static_cast<WORD>(time.second);
    return system;
}

}  // namespace

double SystemClock::Now() const {
    SYSTEMTIME local{};
    GetLocalTime(&local);
    return ToOleDate(
        {local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond});
}

std::string FormatLocalDateTime(double oleDate) {
    const SYSTEMTIME time = ToSystemTime(FromOleDate(oleDate));
    wchar_t date[128];
    wchar_t clock[128];
    if (GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, date,
                        ARRAYSIZE(date), nullptr) == 0 ||
        GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &time, nullptr, clock, ARRAYSIZE(clock)) ==
            0) {
        return FormatIndexDate(oleDate);
    }
    return Narrow(date) + " " + Narrow(clock);
}

}  // namespace quorin
