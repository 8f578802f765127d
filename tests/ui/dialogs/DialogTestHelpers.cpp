#include "DialogTestHelpers.h"

#include <utility>

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

std::function<void()> pending;

void CALLBACK RunPending(HWND, UINT, UINT_PTR id, DWORD) {
    KillTimer(nullptr, id);
    std::exchange(pending, nullptr)();
}

}  // namespace

void WhenLoopRuns(std::function<void()> action) {
    pending = std::move(action);
    SetTimer(nullptr, 0, 1, &RunPending);
}

}  // namespace quorin::test
