#include "DialogTestHelpers.h"

#include "ui/MessagePump.h"

namespace quorin::test {

void PressKey(WPARAM key, std::initializer_list<BYTE> held) {
    BYTE keys[256] = {};
    GetKeyboardState(keys);
    for (BYTE down : held) {
        keys[down] = 0x80;
    }
    SetKeyboardState(keys);
    const HWND focus = GetFocus();
    PostMessageW(focus, WM_KEYDOWN, key, 0);
    PostMessageW(focus, WM_KEYUP, key, 0);
    MessagePump().DoEvents();
    for (BYTE down : held) {
        keys[down] = 0;
    }
    SetKeyboardState(keys);
}

void ClickItem(HWND dialog, int id) {
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

void PressAndRelease(HWND control) {
    SendMessageW(control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
    SendMessageW(control, WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
}

namespace {

std::function<void()>& Pending() {
    static std::function<void()> action;
    return action;
}

void CALLBACK RunPending(HWND, UINT, UINT_PTR id, DWORD) {
    KillTimer(nullptr, id);
    const std::function<void()> action = std::move(Pending());
    action();
}

}  // namespace

void WhenLoopRuns(std::function<void()> action) {
    Pending() = std::move(action);
    SetTimer(nullptr, 0, 1, &RunPending);
}

}  // namespace quorin::test
