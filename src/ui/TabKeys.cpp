#include "ui/TabKeys.h"

namespace quorin {

std::optional<int> PageAfterCtrlTab(const MSG& message, int current, int count) {
    if (message.message != WM_KEYDOWN || message.wParam != VK_TAB || GetKeyState(VK_CONTROL) >= 0) {
        return std::nullopt;
    }
    const int step = GetKeyState(VK_SHIFT) < 0 ? count - 1 : 1;
    return (current + step) % count;
}

}  // namespace quorin
