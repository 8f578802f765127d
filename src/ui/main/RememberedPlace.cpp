#include "ui/main/RememberedPlace.h"

#include <shellscalingapi.h>

#include <optional>
#include <string>
#include <vector>

#include "platform/LenientConversions.h"
#include "ui/Dpi.h"
#include "ui/main/MainSettings.h"

namespace quorin {

namespace {

int ReadNumber(const SettingsStore& settings, std::string_view key, int fallback) {
    return ParseRoundedNumber(settings.Get(MainSettings::kSection, key, std::to_string(fallback)))
        .value_or(fallback);
}

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

}  // namespace

POINT PlaceInPixels(POINT twips, int keptDpi, std::span<const MonitorDpi> monitors,
                    int fallbackDpi) {
    std::optional<POINT> found;
    for (const MonitorDpi& monitor : monitors) {
        const POINT pixels{TwipsToPixels(twips.x, monitor.dpi),
                           TwipsToPixels(twips.y, monitor.dpi)};
        if (Holds(monitor.area, pixels) && (!found || monitor.dpi == keptDpi)) {
            found = pixels;
        }
    }
    return found.value_or(
        POINT{TwipsToPixels(twips.x, fallbackDpi), TwipsToPixels(twips.y, fallbackDpi)});
}

void RememberedPlace::Load(const SettingsStore& settings, HWND window, int dpi) {
    RECT frame{};
    GetWindowRect(window, &frame);
    const int screenWidth = PixelsToTwips(GetSystemMetrics(SM_CXSCREEN), dpi);
    const int screenHeight = PixelsToTwips(GetSystemMetrics(SM_CYSCREEN), dpi);
    twips_.x = ReadNumber(settings, MainSettings::kStartX,
                          (screenWidth - PixelsToTwips(frame.right - frame.left, dpi)) / 2);
    twips_.y = ReadNumber(settings, MainSettings::kStartY,
                          (screenHeight - PixelsToTwips(frame.bottom - frame.top, dpi)) / 2);
    dpi_ = ReadNumber(settings, MainSettings::kStartDpi, dpi);
}

void RememberedPlace::Save(SettingsStore& settings) const {
    settings.Save(MainSettings::kSection, MainSettings::kStartX, std::to_string(twips_.x));
    settings.Save(MainSettings::kSection, MainSettings::kStartY, std::to_string(twips_.y));
    if (dpi_ != 0) {
        settings.Save(MainSettings::kSection, MainSettings::kStartDpi, std::to_string(dpi_));
    }
}

void RememberedPlace::Store(HWND window) {
    RECT frame{};
    GetWindowRect(window, &frame);
    dpi_ = MonitorDpiAt({frame.left, frame.top});
    twips_ = {PixelsToTwips(frame.left, dpi_), PixelsToTwips(frame.top, dpi_)};
}

void RememberedPlace::MoveTo(HWND window, int dpi, UINT flags) const {
    const POINT place = PlaceInPixels(twips_, dpi_, Monitors(), dpi);
    SetWindowPos(window, nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | flags);
}

}  // namespace quorin
