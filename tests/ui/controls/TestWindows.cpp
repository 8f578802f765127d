#include "TestWindows.h"

#include "ui/WindowClass.h"

namespace quorin::test {

TestParent::TestParent() {
    static const ATOM atom = RegisterWindowClass({.name = L"QuorinTestParent"});
    Create(MAKEINTATOM(atom), {.title = "Test parent",
                               .style = WS_OVERLAPPEDWINDOW,
                               .x = 40,
                               .y = 40,
                               .width = 420,
                               .height = 240});
}

LRESULT TestParent::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND) {
        commands.push_back({LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam)});
        return 0;
    }
    if (message == WM_APP && onApp) {
        onApp(wParam);
        return 0;
    }
    return Window::HandleMessage(message, wParam, lParam);
}

}  // namespace quorin::test
