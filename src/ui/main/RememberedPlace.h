#pragma once

#include <windows.h>

#include <span>

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

// Where the main window comes back from the tray: its left and top in twips, kept in section
// "Main" as "StartX" and "StartY", converted at the DPI of the monitor that holds the place
// ("StartDpi").
class RememberedPlace {
  public:
    // The saved place, or the window centred on the screen where nothing readable is saved.
    void Load(const SettingsStore& settings, HWND window, int dpi);
    void Save(SettingsStore& settings) const;

    // Takes the window's current place.
    void Store(HWND window);
    // `dpi` converts a place that no monitor holds.
    void MoveTo(HWND window, int dpi, UINT flags) const;

    POINT Twips() const { return twips_; }

  private:
    POINT twips_{};
    int dpi_ = 0;  // the DPI the place was converted at; 0 when unknown
};

}  // namespace quorin
