#include "ui/main/TrayCallback.h"

#include "ui/main/TrayRecord.h"

namespace quorin {

TrayAction DecodeTrayCallback(WPARAM wParam, LPARAM lParam, POINT pointer) {
    if (wParam != kTrayIconId || HIWORD(lParam) != 0) {
        return TrayAction::None;
    }
    if (pointer.x == LOWORD(lParam) && pointer.y == 0) {
        return TrayAction::None;
    }
    switch (LOWORD(lParam)) {
        case WM_LBUTTONUP:
        case WM_LBUTTONDBLCLK:
            return TrayAction::Restore;
        case WM_RBUTTONUP:
            return TrayAction::Menu;
        default:
            return TrayAction::None;
    }
}

}  // namespace quorin
