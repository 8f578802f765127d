#include "ui/controls/OleColor.h"

namespace quorin {

namespace {

std::optional<bool> highContrastOverride;

}  // namespace

COLORREF ResolveColor(OleColor color) {
    if ((color & 0x80000000u) != 0) {
        return GetSysColor(static_cast<int>(color & 0xFFu));
    }
    return static_cast<COLORREF>(color);
}

bool HighContrastOn() {
    if (highContrastOverride) {
        return *highContrastOverride;
    }
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof(contrast);
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) != FALSE &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

void OverrideHighContrast(std::optional<bool> on) {
    highContrastOverride = on;
}

}  // namespace quorin
