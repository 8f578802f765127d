#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "TestWindows.h"
#include "platform/Errors.h"
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

TEST(Window, ObjectAndWindowAreBoundForTheWindowsLifetime) {
    test::TestParent parent;
    DestroyWindow(parent.hwnd());
    EXPECT_EQ(parent.hwnd(), nullptr);

    HWND window = nullptr;
    {
        const test::TestParent scoped;
        window = scoped.hwnd();
        ASSERT_TRUE(IsWindow(window));
    }
    EXPECT_FALSE(IsWindow(window));
}

TEST(Window, SelfOwnedObjectsLiveAndDieWithTheirWindows) {
    test::TestParent parent;
    const HWND first = SelfOwned::CreateChild(parent.hwnd());
    SelfOwned::CreateChild(parent.hwnd());
    EXPECT_EQ(SelfOwned::alive, 2);
    DestroyWindow(first);
    EXPECT_EQ(SelfOwned::alive, 1);
    DestroyWindow(parent.hwnd());
    EXPECT_EQ(SelfOwned::alive, 0);
}

class WindowErrorsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        SetWindowErrorHandler([this](std::string_view message) { reports.emplace_back(message); });
    }
    void TearDown() override { SetWindowErrorHandler(nullptr); }

    std::vector<std::string> reports;
};

TEST_F(WindowErrorsTest, AnErrorInAHandlerIsReportedAndGoesNoFurther) {
    const FailingWindow window(WM_APP);
    EXPECT_EQ(SendMessageW(window.hwnd(), WM_APP, 0, 0), 0);
    EXPECT_EQ(reports, std::vector<std::string>{"The test handler failed."});
}

TEST_F(WindowErrorsTest, AWindowWhoseCreationFailsIsNotMade) {
    EXPECT_THROW(FailingWindow{WM_CREATE}, Error);
    EXPECT_EQ(reports.size(), 1u);
}

TEST_F(WindowErrorsTest, ErrorsWhileAnErrorIsShownAreNotStacked) {
    const FailingWindow window(WM_APP);
    SetWindowErrorHandler([&](std::string_view message) {
        reports.emplace_back(message);
        SendMessageW(window.hwnd(), WM_APP, 0, 0);  // fails again, as a repaint would
    });
    SendMessageW(window.hwnd(), WM_APP, 0, 0);
    SendMessageW(window.hwnd(), WM_APP, 0, 0);
    EXPECT_EQ(reports.size(), 2u);
}

}  // namespace
}  // namespace quorin
