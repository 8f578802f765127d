#pragma once

#include <windows.h>

#include "platform/WinHandles.h"

namespace quorin {

// The tray icon's menu: "Go", a separator and "E&xit Quorin", whose commands go to the window
// that shows the menu.
class TrayMenu {
  public:
    TrayMenu(int goId, int exitId);

    // Shows the menu at the pointer, as the right button of the tray icon asks.
    void Show(HWND window) const;

  private:
    UniqueMenu menu_;
};

}  // namespace quorin
