#pragma once

#include <windows.h>

namespace quorin {

// Focus colours of text fields: tooltip colours and the whole text selected while the field
// has the focus, window colours otherwise. A combo box counts with its edit field.
void HighlightControl(HWND control);
void UnhighlightControl(HWND control);

// For WM_CTLCOLOREDIT of a parent: sets the field's colours and returns its brush, or nullptr
// for a field that is not highlighted (the default colours then apply).
HBRUSH FocusColors(HWND field, HDC dc);

}  // namespace quorin
