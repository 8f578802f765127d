#pragma once

#include <windows.h>

namespace quorin {

// Where the Matches window goes on a monitor, in pixels of the screen.

// A window of `size` in the middle of the work area.
RECT CentredIn(SIZE size, const RECT& workArea);

// The window moved, and made smaller where it is larger, so that all of it lies in the work area.
RECT KeptInside(const RECT& window, const RECT& workArea);

// The work area of the monitor that shows most of the window, or the nearest one.
RECT WorkAreaNear(const RECT& window);
RECT WorkAreaOf(HWND window);

}  // namespace quorin
