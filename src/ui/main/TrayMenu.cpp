#include "ui/main/TrayMenu.h"

namespace quorin {

TrayMenu::TrayMenu(int goId, int exitId) : menu_(CreatePopupMenu()) {
    AppendMenuW(menu_.get(), MF_STRING, static_cast<UINT_PTR>(goId), L"Go");
    AppendMenuW(menu_.get(), MF_SEPARATOR, 0, nullptr);
    AppendMenuW(menu_.get(), MF_STRING, static_cast<UINT_PTR>(exitId), L"E&xit Quorin");
}

// The window comes to the front first, or the menu would not close on a click elsewhere.
void TrayMenu::Show(HWND window) const {
    SetForegroundWindow(window);
    POINT cursor{};
    GetCursorPos(&cursor);
    TrackPopupMenu(menu_.get(), TPM_RIGHTBUTTON, cursor.x, cursor.y, 0, window, nullptr);
    PostMessageW(window, WM_NULL, 0, 0);
}

}  // namespace quorin
