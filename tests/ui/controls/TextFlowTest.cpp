#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "TestWindows.h"
#include "platform/WinHandles.h"
#include "ui/Dpi.h"
#include "ui/TextFlow.h"
#include "ui/Window.h"

namespace quorin {
namespace {

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
