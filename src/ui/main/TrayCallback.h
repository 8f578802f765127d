#pragma once

#include <windows.h>

namespace quorin {

enum class TrayAction { None, Restore, Menu };

// The tray's callback arrives as a mouse move of the main window; it is a tray event only when
// wParam is the icon's id and the high word of lParam is 0 (a real mouse move carries key flags
// and the pointer's coordinates there). The low word is the mouse message over the icon. A real
// move with the left button held (MK_LBUTTON is the icon's id) over the window's top row would
// pass for one; it is told by its coordinates being where the pointer was, `pointer` (in client
// coordinates), while the shell's callback comes from a pointer over the icon.
TrayAction DecodeTrayCallback(WPARAM wParam, LPARAM lParam, POINT pointer);

}  // namespace quorin
