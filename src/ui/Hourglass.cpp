#include "ui/Hourglass.h"

#include <windows.h>

namespace quorin {

namespace {

int& Depth() {
    static int depth = 0;
    return depth;
}

}  // namespace

Hourglass::Hourglass() {
    ++Depth();
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
}

Hourglass::~Hourglass() {
    if (--Depth() == 0) {
        SetCursor(LoadCursorW(nullptr, IDC_ARROW));
    }
}

bool Hourglass::Shown() {
    return Depth() > 0;
}

}  // namespace quorin
