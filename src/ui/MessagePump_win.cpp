#include "ui/MessagePump.h"

#include "ui/Dialog.h"

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

void MessagePump::RunUntil(const std::function<bool()>& done) {
    MSG message{};
    while (!done()) {
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got <= 0) {
            if (got == 0) {
                PostQuitMessage(static_cast<int>(message.wParam));
            }
            return;
        }
        Dispatch(message);
    }
}

void MessagePump::Dispatch(MSG& message) {
    const HWND active = GetActiveWindow();
    if (active != nullptr &&
        (Window::TranslateKeys(active, message) || Dialog::TranslateKeys(active, message) ||
         IsDialogMessageW(active, &message))) {
        return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

}  // namespace quorin
