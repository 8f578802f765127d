#include "ui/WindowClass.h"

#include <string>

#include "platform/Errors.h"
#include "platform/OsError.h"
#include "platform/Text.h"

namespace quorin {

ATOM RegisterWindowClass(const WindowClass& windowClass) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof(description);
    description.style = windowClass.style;
    description.lpfnWndProc = windowClass.procedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hIcon = windowClass.icon;
    description.hIconSm = windowClass.smallIcon;
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    if (windowClass.background != kNoBackground) {
        // The system colour brushes are named by index + 1.
        description.hbrBackground =
            reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(windowClass.background + 1));
    }
    description.lpszClassName = windowClass.name;
    const ATOM atom = RegisterClassExW(&description);
    if (atom == 0) {
        throw Error("The window class \"" + Narrow(windowClass.name) +
                    "\" could not be registered: " + LastOsErrorText() + ".");
    }
    return atom;
}

}  // namespace quorin
