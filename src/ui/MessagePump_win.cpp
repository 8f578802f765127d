#include "ui/MessagePump.h"

namespace quorin {

void MessagePump::DoEvents() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        Dispatch(message);
    }
}

int MessagePump::Run() {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        Dispatch(message);
    }
    return static_cast<int>(message.wParam);
}

void MessagePump::Dispatch(MSG& message) {
    const HWND active = GetActiveWindow();
    if (active != nullptr && IsDialogMessageW(active, &message)) {
        return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

}  // namespace quorin
