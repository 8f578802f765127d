#include "ui/matches/MatchesPlace.h"

#include <algorithm>

namespace quorin {
namespace {

RECT WorkArea(HMONITOR monitor) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    GetMonitorInfoW(monitor, &info);
    return info.rcWork;
}

}  // namespace

RECT CentredIn(SIZE size, const RECT& workArea) {
    const LONG left = workArea.left + (workArea.right - workArea.left - size.cx) / 2;
    const LONG top = workArea.top + (workArea.bottom - workArea.top - size.cy) / 2;
    return KeptInside({left, top, left + size.cx, top + size.cy}, workArea);
}

RECT KeptInside(const RECT& window, const RECT& workArea) {
    const LONG width = std::min(window.right - window.left, workArea.right - workArea.left);
    const LONG height = std::min(window.bottom - window.top, workArea.bottom - workArea.top);
    const LONG left = std::clamp(window.left, workArea.left, workArea.right - width);
    const LONG top = std::clamp(window.top, workArea.top, workArea.bottom - height);
    return {left, top, left + width, top + height};
}

RECT WorkAreaNear(const RECT& window) {
    return WorkArea(MonitorFromRect(&window, MONITOR_DEFAULTTONEAREST));
}

RECT WorkAreaOf(HWND window) {
    return WorkArea(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY));
}

}  // namespace quorin
