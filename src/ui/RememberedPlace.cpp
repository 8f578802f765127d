#include "ui/RememberedPlace.h"

#include <shellscalingapi.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "platform/LenientConversions.h"
#include "ui/Dpi.h"

namespace quorin {

namespace {

bool Holds(const RECT& area, POINT point) {
    return point.x >= area.left && point.x < area.right && point.y >= area.top &&
           point.y < area.bottom;
}

int MonitorDpiAt(POINT point) {
    UINT dpiX = 0;
    UINT dpiY = 0;
    if (FAILED(GetDpiForMonitor(MonitorFromPoint(point, MONITOR_DEFAULTTONEAREST),
                                MDT_EFFECTIVE_DPI, &dpiX, &dpiY))) {
        return ScreenDpi();
    }
    return static_cast<int>(dpiY);
}

std::vector<MonitorDpi> Monitors() {
    std::vector<MonitorDpi> monitors;
    EnumDisplayMonitors(
        nullptr, nullptr,
        [](HMONITOR, HDC, RECT* area, LPARAM found) {
            const POINT corner{area->left, area->top};
            reinterpret_cast<std::vector<MonitorDpi>*>(found)->push_back(
                {*area, MonitorDpiAt(corner)});
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&monitors));
    return monitors;
}

RECT WorkArea(HMONITOR monitor) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    GetMonitorInfoW(monitor, &info);
    return info.rcWork;
}

}  // namespace

int PlaceDpi(POINT twips, int keptDpi, std::span<const MonitorDpi> monitors, int fallbackDpi) {
    std::optional<int> found;
    for (const MonitorDpi& monitor : monitors) {
        const POINT pixels{TwipsToPixels(twips.x, monitor.dpi),
                           TwipsToPixels(twips.y, monitor.dpi)};
        if (Holds(monitor.area, pixels) && (!found || monitor.dpi == keptDpi)) {
            found = monitor.dpi;
        }
    }
    return found.value_or(fallbackDpi);
}

POINT PlaceInPixels(POINT twips, int keptDpi, std::span<const MonitorDpi> monitors,
                    int fallbackDpi) {
    const int dpi = PlaceDpi(twips, keptDpi, monitors, fallbackDpi);
    return {TwipsToPixels(twips.x, dpi), TwipsToPixels(twips.y, dpi)};
}

POINT CentredOnScreen(HWND window, int dpi) {
    RECT frame{};
    GetWindowRect(window, &frame);
    const int screenWidth = PixelsToTwips(GetSystemMetrics(SM_CXSCREEN), dpi);
    const int screenHeight = PixelsToTwips(GetSystemMetrics(SM_CYSCREEN), dpi);
    return {(screenWidth - PixelsToTwips(frame.right - frame.left, dpi)) / 2,
            (screenHeight - PixelsToTwips(frame.bottom - frame.top, dpi)) / 2};
}

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

void RememberedPlace::Load(const SettingsStore& settings, POINT fallback, SIZE fallbackSize,
                           int fallbackDpi) {
    const auto read = [&](std::string_view key, int defaultValue) {
        if (key.empty()) {
            return 0;
        }
        return ParseRoundedNumber(settings.Get(keys_.section, key, std::to_string(defaultValue)))
            .value_or(defaultValue);
    };
    twips_ = {read(keys_.left, fallback.x), read(keys_.top, fallback.y)};
    size_ = {read(keys_.width, fallbackSize.cx), read(keys_.height, fallbackSize.cy)};
    dpi_ = read(keys_.dpi, fallbackDpi);
}

void RememberedPlace::Save(SettingsStore& settings) const {
    const auto save = [&](std::string_view key, int value) {
        if (!key.empty()) {
            settings.Save(keys_.section, key, std::to_string(value));
        }
    };
    save(keys_.left, twips_.x);
    save(keys_.top, twips_.y);
    save(keys_.width, size_.cx);
    save(keys_.height, size_.cy);
    if (dpi_ != 0) {
        save(keys_.dpi, dpi_);
    }
}

void RememberedPlace::Store(HWND window) {
    RECT frame{};
    GetWindowRect(window, &frame);
    dpi_ = MonitorDpiAt({frame.left, frame.top});
    twips_ = {PixelsToTwips(frame.left, dpi_), PixelsToTwips(frame.top, dpi_)};
    size_ = {PixelsToTwips(frame.right - frame.left, dpi_),
             PixelsToTwips(frame.bottom - frame.top, dpi_)};
}

RECT RememberedPlace::InPixels(int dpi) const {
    const int at = PlaceDpi(twips_, dpi_, Monitors(), dpi);
    const POINT place{TwipsToPixels(twips_.x, at), TwipsToPixels(twips_.y, at)};
    return {place.x, place.y, place.x + TwipsToPixels(size_.cx, at),
            place.y + TwipsToPixels(size_.cy, at)};
}

void RememberedPlace::MoveTo(HWND window, int dpi, UINT flags) const {
    const RECT place = InPixels(dpi);
    SetWindowPos(window, nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | flags);
}

}  // namespace quorin
