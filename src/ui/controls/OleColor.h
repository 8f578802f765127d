#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>

namespace quorin {

// A colour as the controls' properties hold it: an RGB value, or, with the high bit set, a
// system colour index (0x8000000F is the button face). System colours are looked up at each
// paint, so that a change of the desktop's colours shows at once.
using OleColor = std::uint32_t;

constexpr OleColor SystemColor(int index) {
    return 0x80000000u | static_cast<OleColor>(index);
}

COLORREF ResolveColor(OleColor color);

// Whether the user has turned high contrast on (SPI_GETHIGHCONTRAST), asked at each paint. Tests
// and the programs that take screenshots may say instead: Wine never reports it on.
bool HighContrastOn();
void OverrideHighContrast(std::optional<bool> on);

}  // namespace quorin
