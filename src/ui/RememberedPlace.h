#pragma once

#include <windows.h>

#include <span>
#include <string_view>

#include "platform/SettingsStore.h"

namespace quorin {

// A monitor's area in pixels and its DPI.
struct MonitorDpi {
    RECT area;
    int dpi;
};

// Where a place kept in twips lies in pixels: converted at the DPI of the monitor that holds it
// so converted, so that it comes back on the monitor it was kept on. Where monitors of different
// DPIs each hold their conversion, the one of `keptDpi` (the DPI it was kept at, 0 when unknown)
// wins; where none holds it, it is converted at `fallbackDpi`.
POINT PlaceInPixels(POINT twips, int keptDpi, std::span<const MonitorDpi> monitors,
                    int fallbackDpi);
// The DPI PlaceInPixels converts at.
int PlaceDpi(POINT twips, int keptDpi, std::span<const MonitorDpi> monitors, int fallbackDpi);

// The left and top, in twips at the DPI, that centre the window on the screen.
POINT CentredOnScreen(HWND window, int dpi);

// A window of `size` in the middle of the work area.
RECT CentredIn(SIZE size, const RECT& workArea);

// The window moved, and made smaller where it is larger, so that all of it lies in the work area.
RECT KeptInside(const RECT& window, const RECT& workArea);

// The work area of the monitor that shows most of the window, or the nearest one.
RECT WorkAreaNear(const RECT& window);
RECT WorkAreaOf(HWND window);

// The settings keys of a remembered place. A window that keeps no size leaves `width` and
// `height` empty; one that keeps no DPI leaves `dpi` empty.
struct PlaceKeys {
    std::string_view section;
    std::string_view left;
    std::string_view top;
    std::string_view width{};
    std::string_view height{};
    std::string_view dpi{};
};

// A window's place in twips (left and top, and its outer size where the window keeps one), saved
// as decimal text and read back as whole numbers, rounded; a value that is not a number reads as
// the default. Twips are converted at the DPI of the monitor that holds the place, so that a
// place comes back on the monitor it was kept on.
class RememberedPlace {
  public:
    explicit RememberedPlace(const PlaceKeys& keys) : keys_(keys) {}

    // `fallback` and `fallbackSize` (in twips) and `fallbackDpi` stand for what is not saved.
    void Load(const SettingsStore& settings, POINT fallback, SIZE fallbackSize, int fallbackDpi);
    void Save(SettingsStore& settings) const;

    // Takes the window's current place and size, minimized or not.
    void Store(HWND window);
    // The place in pixels; `dpi` converts a place that no monitor holds.
    RECT InPixels(int dpi) const;
    // Moves the window to the place, keeping its size.
    void MoveTo(HWND window, int dpi, UINT flags) const;

    POINT Twips() const { return twips_; }
    SIZE SizeTwips() const { return size_; }

  private:
    PlaceKeys keys_;
    POINT twips_{};
    SIZE size_{};
    int dpi_ = 0;  // the DPI the place was converted at; 0 when unknown
};

}  // namespace quorin
