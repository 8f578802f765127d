#include "ui/main/RememberedPlace.h"

#include <string>

#include "platform/LenientConversions.h"
#include "ui/Dpi.h"

namespace quorin {

namespace {

int ReadTwips(const SettingsStore& settings, std::string_view key, int designed) {
    return ParseRoundedNumber(settings.Get("Main", key, std::to_string(designed)))
        .value_or(designed);
}

}  // namespace

void RememberedPlace::Load(const SettingsStore& settings, HWND window, int dpi) {
    RECT frame{};
    GetWindowRect(window, &frame);
    const int screenWidth = PixelsToTwips(GetSystemMetrics(SM_CXSCREEN), dpi);
    const int screenHeight = PixelsToTwips(GetSystemMetrics(SM_CYSCREEN), dpi);
    twips_.x = ReadTwips(settings, "StartX",
                         (screenWidth - PixelsToTwips(frame.right - frame.left, dpi)) / 2);
    twips_.y = ReadTwips(settings, "StartY",
                         (screenHeight - PixelsToTwips(frame.bottom - frame.top, dpi)) / 2);
}

void RememberedPlace::Save(SettingsStore& settings) const {
    settings.Save("Main", "StartX", std::to_string(twips_.x));
    settings.Save("Main", "StartY", std::to_string(twips_.y));
}

void RememberedPlace::Store(HWND window, int dpi) {
    RECT frame{};
    GetWindowRect(window, &frame);
    twips_ = {PixelsToTwips(frame.left, dpi), PixelsToTwips(frame.top, dpi)};
}

void RememberedPlace::MoveTo(HWND window, int dpi, UINT flags) const {
    SetWindowPos(window, nullptr, TwipsToPixels(twips_.x, dpi), TwipsToPixels(twips_.y, dpi), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | flags);
}

}  // namespace quorin
