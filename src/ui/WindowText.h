#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace quorin {

// A window's text as UTF-8, and the other way round: the one place where window text crosses
// the UTF-16 boundary.
std::string WindowText(HWND window);
void SetText(HWND window, std::string_view text);
// SetText for a text that changes while the user waits (a counter): a screen reader is told that
// the control's name changed.
void SetLiveText(HWND window, std::string_view text);

}  // namespace quorin
