#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "TestWindows.h"
#include "platform/Errors.h"
#include "ui/MessagePump.h"
#include "ui/WindowClass.h"

namespace quorin {
namespace {

// Fails at the message the test names.
class FailingWindow final : public Window {
  public:
    explicit FailingWindow(UINT failAt) : failAt_(failAt) {
        static const ATOM atom = RegisterWindowClass({.name = L"QuorinTestFailing"});
        Create(MAKEINTATOM(atom), {.title = "Failing"});
    }

  private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == failAt_) {
            throw std::runtime_error("The test handler failed.");
        }
        return Window::HandleMessage(message, wParam, lParam);
    }

    UINT failAt_;
};

// Counts the live objects of a class whose windows make their own.
class SelfOwned final : public Window {
  public:
    SelfOwned() { ++alive; }
    ~SelfOwned() override { --alive; }
    static inline int alive = 0;

    static HWND CreateChild(HWND parent) {
        static const ATOM atom = RegisterWindowClass(
            {.name = L"QuorinTestSelfOwned", .procedure = &SelfOwnedProcedure<SelfOwned>});
        return CreateWindowExW(0, MAKEINTATOM(atom), L"", WS_CHILD, 0, 0, 9, 9, parent, nullptr,
                               nullptr, nullptr);
    }
};

TEST(Window, ObjectAndWindowAreBoundForTheWindowsLifetimeAndSelfOwnedObjectsDieWithIt) {
    HWND window = nullptr;
    {
        test::TestParent parent;
        window = parent.hwnd();
        SelfOwned::CreateChild(parent.hwnd());
        const HWND second = SelfOwned::CreateChild(parent.hwnd());
        EXPECT_EQ(SelfOwned::alive, 2);
        DestroyWindow(second);
        EXPECT_EQ(SelfOwned::alive, 1);
        DestroyWindow(parent.hwnd());
        EXPECT_EQ(parent.hwnd(), nullptr);
        EXPECT_EQ(SelfOwned::alive, 0);

        const test::TestParent scoped;
        window = scoped.hwnd();
        ASSERT_TRUE(IsWindow(window));
    }
    EXPECT_FALSE(IsWindow(window));
}

TEST(WindowErrors, AnErrorInAHandlerIsReportedOnceAndGoesNoFurther) {
    std::vector<std::string> reports;
    const FailingWindow window(WM_APP);
    SetWindowErrorHandler([&](std::string_view message) {
        reports.emplace_back(message);
        SendMessageW(window.hwnd(), WM_APP, 0, 0);  // fails again, as a repaint would
    });
    EXPECT_EQ(SendMessageW(window.hwnd(), WM_APP, 0, 0), 0);
    EXPECT_EQ(reports, std::vector<std::string>{"The test handler failed."})
        << "errors while an error is shown are not stacked";
    SendMessageW(window.hwnd(), WM_APP, 0, 0);
    EXPECT_EQ(reports.size(), 2u);
    EXPECT_THROW(FailingWindow{WM_CREATE}, Error) << "a window whose creation fails is not made";
    SetWindowErrorHandler(nullptr);
    EXPECT_EQ(reports.size(), 3u);
}

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
