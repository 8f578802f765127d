#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace quorin {

// The controls of a window, at any depth, that a screen reader could not name. An edit, combo
// box, list box, list view or hotkey control has no caption of its own: readers name it by the
// static text just before it in the tab order (its previous sibling, shown or not). Each is
// given as its class and control id.
std::vector<std::string> UnnamedControls(HWND window);

}  // namespace quorin
