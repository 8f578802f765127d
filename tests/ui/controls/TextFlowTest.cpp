#include <gtest/gtest.h>

#include <string>

#include "TestWindows.h"
#include "platform/WinHandles.h"
#include "ui/Dpi.h"
#include "ui/TextFlow.h"
#include "ui/Window.h"

namespace quorin {
namespace {

class TextFlowTest : public ::testing::Test {
  protected:
    // A static `width` pixels wide at (10, 20) showing `text`, two lines high.
    HWND Label(const std::string& text, int width) {
        const HWND label = Window::CreateControl(parent.hwnd(), L"STATIC", text, SS_LEFT, 1);
        Place(label, 10, 20, width, 2 * lineHeight);
        return label;
    }

    HWND Follower(int width) {
        const HWND follower = Window::CreateControl(parent.hwnd(), L"STATIC", "link", SS_LEFT, 2);
        Place(follower, 0, 0, width, lineHeight);
        return follower;
    }

    void Place(HWND control, int x, int y, int width, int height) const {
        SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), FALSE);
        MoveWindow(control, x, y, width, height, FALSE);
    }

    int TextWidth(const std::string& text) const {
        const WindowDC dc(parent.hwnd());
        const SelectedObject selected(dc.get(), font.get());
        SIZE size{};
        GetTextExtentPoint32A(dc.get(), text.c_str(), static_cast<int>(text.size()), &size);
        return size.cx;
    }

    int LineHeight() const {
        const WindowDC dc(parent.hwnd());
        const SelectedObject selected(dc.get(), font.get());
        TEXTMETRICW metrics{};
        GetTextMetricsW(dc.get(), &metrics);
        return metrics.tmHeight;
    }

    test::TestParent parent;
    const LOGFONTW description = MessageFont(USER_DEFAULT_SCREEN_DPI);
    const UniqueFont font{CreateFontIndirectW(&description)};
    const int lineHeight = LineHeight();
};

TEST_F(TextFlowTest, FollowsTheLastWordOfTheTextOnItsLine) {
    const std::string first = "By default, only the first drive is indexed.";
    const std::string last = "To add drives,";
    const HWND label = Label(first + " " + last, TextWidth(first) + 4);
    const HWND follower = Follower(30);
    PlaceAfterText(label, follower);

    const RECT placed = Window::RectInParent(follower);
    EXPECT_EQ(placed.top, 20 + lineHeight);  // the second line
    EXPECT_GE(placed.left, 10 + TextWidth(last));
    EXPECT_LE(placed.left, 10 + TextWidth(last + "  "));

    const HWND oneLine = Label("Short text,", 300);
    PlaceAfterText(oneLine, follower);
    EXPECT_EQ(Window::RectInParent(follower).top, 20);
    EXPECT_GE(Window::RectInParent(follower).left, 10 + TextWidth("Short text,"));
}

TEST_F(TextFlowTest, StartsTheNextLineWhenTheLastLineHasNoRoomLeft) {
    const HWND label = Label("Short text,", 300);
    const HWND follower = Follower(295);
    PlaceAfterText(label, follower);
    EXPECT_EQ(Window::RectInParent(follower).left, 10);
    EXPECT_EQ(Window::RectInParent(follower).top, 20 + lineHeight);
}

}  // namespace
}  // namespace quorin
