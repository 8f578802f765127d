#pragma once

#include <windows.h>

namespace quorin {

// Adds a column with its header text to a report-view list; width in pixels.
void AddListColumn(HWND list, int column, const wchar_t* title, int width);

}  // namespace quorin
