#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "TestWindows.h"
#include "platform/Errors.h"
#include "platform/WinHandles.h"
#include "ui/Dpi.h"
#include "ui/MessagePump.h"
#include "ui/TextFlow.h"
#include "ui/WindowClass.h"

namespace quorin {
namespace {

// Fails while it is made.
class FailingWindow final : public Window {
  public:
    FailingWindow() {
        static const ATOM atom = RegisterWindowClass({.name = L"QuorinTestFailing"});
        Create(MAKEINTATOM(atom), {.title = "Failing"});
    }

  private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_CREATE) {
            throw std::runtime_error("The window could not be made.");
        }
        return Window::HandleMessage(message, wParam, lParam);
    }
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
    test::TestParent window;
    window.onApp = [](WPARAM) { throw std::runtime_error("The test handler failed."); };
    SetWindowErrorHandler([&](std::string_view message) {
        reports.emplace_back(message);
        SendMessageW(window.hwnd(), WM_APP, 0, 0);  // fails again, as a repaint would
    });
    EXPECT_EQ(SendMessageW(window.hwnd(), WM_APP, 0, 0), 0);
    EXPECT_EQ(reports, std::vector<std::string>{"The test handler failed."})
        << "errors while an error is shown are not stacked";
    SendMessageW(window.hwnd(), WM_APP, 0, 0);
    EXPECT_EQ(reports.size(), 2u);
    EXPECT_THROW(FailingWindow{}, Error) << "a window whose creation fails is not made";
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

class TextFlowTest : public ::testing::Test {
  protected:
    // A static in the test's font at (x, y), `lines` lines high.
    HWND Static(const std::string& text, int x, int y, int width, int lines) {
        const HWND control = Window::CreateControl(parent.hwnd(), L"STATIC", text, SS_LEFT, 1);
        SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), FALSE);
        MoveWindow(control, x, y, width, lines * lineHeight, FALSE);
        return control;
    }

    // A line is as high as the font's cell, which the extent's height is.
    SIZE TextSize(const std::string& text) const {
        const WindowDC dc(parent.hwnd());
        const SelectedObject selected(dc.get(), font.get());
        SIZE size{};
        GetTextExtentPoint32A(dc.get(), text.c_str(), static_cast<int>(text.size()), &size);
        return size;
    }
    int TextWidth(const std::string& text) const { return TextSize(text).cx; }

    test::TestParent parent;
    const LOGFONTW description = MessageFont(USER_DEFAULT_SCREEN_DPI);
    const UniqueFont font{CreateFontIndirectW(&description)};
    const int lineHeight = TextSize("x").cy;
};

TEST_F(TextFlowTest, FollowsTheLastWordOfTheTextOnItsLineOrStartsTheNextLine) {
    const std::string first = "By default, only the first drive is indexed.";
    const std::string last = "To add drives,";
    const HWND follower = Static("link", 0, 0, 30, 1);
    PlaceAfterText(Static(first + " " + last, 10, 20, TextWidth(first) + 4, 2), follower);
    RECT placed = Window::RectInParent(follower);
    EXPECT_EQ(placed.top, 20 + lineHeight);  // the second line
    EXPECT_GE(placed.left, 10 + TextWidth(last));
    EXPECT_LE(placed.left, 10 + TextWidth(last + "  "));

    const HWND oneLine = Static("Short text,", 10, 20, 300, 2);
    PlaceAfterText(oneLine, follower);
    placed = Window::RectInParent(follower);
    EXPECT_EQ(placed.top, 20);
    EXPECT_GE(placed.left, 10 + TextWidth("Short text,"));

    MoveWindow(follower, 0, 0, 295, lineHeight, FALSE);  // no room left on the line
    PlaceAfterText(oneLine, follower);
    placed = Window::RectInParent(follower);
    EXPECT_EQ(placed.left, 10);
    EXPECT_EQ(placed.top, 20 + lineHeight);
}

TEST(Dpi, TwipsAndPixelsRoundHalfAwayFromZeroAndPixelsSurviveTheTrip) {
    for (const auto& [twips, dpi, pixels] : {std::tuple{1500, 96, 100},
                                             {240, 96, 16},
                                             {7, 96, 0},
                                             {8, 96, 1},
                                             {-8, 96, -1},
                                             {1500, 144, 150},
                                             {15, 144, 2},
                                             {-15, 144, -2}}) {
        EXPECT_EQ(TwipsToPixels(twips, dpi), pixels) << twips << " at " << dpi;
    }
    EXPECT_EQ(PixelsToTwips(100, 96), 1500);
    EXPECT_EQ(PixelsToTwips(1, 144), 10);
    for (const int dpi : {96, 120, 144, 168, 192, 288}) {
        for (int pixels = -3000; pixels <= 3000; ++pixels) {
            ASSERT_EQ(TwipsToPixels(PixelsToTwips(pixels, dpi), dpi), pixels) << dpi;
        }
    }
}

}  // namespace
}  // namespace quorin
