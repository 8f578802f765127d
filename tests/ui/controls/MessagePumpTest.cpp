#include <gtest/gtest.h>

#include "TestWindows.h"
#include "ui/MessagePump.h"

namespace quorin {
namespace {

TEST(MessagePump, DoEventsRunsEverythingWaitingAndLeavesQuitToTheMainLoop) {
    test::TestParent window;
    int handled = 0;
    window.onApp = [&](WPARAM more) {
        ++handled;
        if (more > 0) {
            PostMessageW(window.hwnd(), WM_APP, more - 1, 0);
        }
    };
    PostMessageW(window.hwnd(), WM_APP, 2, 0);  // posts two more while it runs
    PostQuitMessage(7);

    MessagePump pump;
    pump.DoEvents();
    EXPECT_EQ(handled, 3);
    pump.DoEvents();  // returns at once: the quit is still waiting, for Run
    EXPECT_EQ(MessagePump::Run(), 7);
}

TEST(MessagePump, TabMovesTheFocusInAPlainWindow) {
    test::TestParent window;
    const auto button = [&](int y) {
        return CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 10, y, 80, 24,
                               window.hwnd(), nullptr, nullptr, nullptr);
    };
    const HWND first = button(10);
    const HWND second = button(40);
    SetActiveWindow(window.hwnd());
    SetFocus(first);
    PostMessageW(first, WM_KEYDOWN, VK_TAB, 0);
    MessagePump().DoEvents();
    EXPECT_EQ(GetFocus(), second);
}

}  // namespace
}  // namespace quorin
