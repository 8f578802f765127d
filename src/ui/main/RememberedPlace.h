#pragma once

#include <windows.h>

#include "platform/SettingsStore.h"

namespace quorin {

// Where the main window comes back from the tray: its left and top in twips, kept in section
// "Main" as "StartX" and "StartY".
class RememberedPlace {
  public:
    // The saved place, or the window centred on the screen where nothing readable is saved.
    void Load(const SettingsStore& settings, HWND window, int dpi);
    void Save(SettingsStore& settings) const;

    // Takes the window's current place.
    void Store(HWND window, int dpi);
    void MoveTo(HWND window, int dpi, UINT flags) const;

    POINT Twips() const { return twips_; }

  private:
    POINT twips_{};
};

}  // namespace quorin
