#pragma once

#include <windows.h>

#include "ui/Window.h"

namespace quorin {

inline constexpr int kNoBackground = -1;

// A window class of the running program; registered with the arrow cursor.
struct WindowClass {
    const wchar_t* name = nullptr;
    WNDPROC procedure = &Window::Procedure;
    UINT style = 0;
    // A system colour index (COLOR_BTNFACE, ...), or kNoBackground for windows that paint all of
    // themselves.
    int background = COLOR_BTNFACE;
    HICON icon = nullptr;
    HICON smallIcon = nullptr;
};

// Registers the class and returns its atom; throws Error when that fails. Callers keep the atom
// in a function-local static, so that each class is registered once per process.
ATOM RegisterWindowClass(const WindowClass& windowClass);

}  // namespace quorin
