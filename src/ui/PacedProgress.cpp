#include "ui/PacedProgress.h"

#include <commctrl.h>

#include <algorithm>

namespace quorin {

void PacedProgress::Start(HWND bar, int maximum) {
    RECT client{};
    GetClientRect(bar, &client);
    step_ = std::max(1, maximum / std::max(1, static_cast<int>(client.right)));
    next_ = step_;
    nextTick_ = GetTickCount64() + kFrameMilliseconds;
    SendMessageW(bar, PBM_SETRANGE32, 0, maximum);
    SendMessageW(bar, PBM_SETPOS, 0, 0);
}

void PacedProgress::Set(HWND bar, int value) {
    if (value < next_) {
        return;
    }
    const ULONGLONG now = GetTickCount64();
    if (now < nextTick_) {
        return;
    }
    SendMessageW(bar, PBM_SETPOS, static_cast<WPARAM>(value), 0);
    next_ = value + step_;
    nextTick_ = now + kFrameMilliseconds;
}

}  // namespace quorin
