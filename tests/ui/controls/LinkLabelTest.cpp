#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "TestWindows.h"
#include "ui/controls/ctlLinkLabel.h"

namespace quorin {
namespace {

using test::ClientSize;
using test::SendMouse;
using test::Shows;

constexpr COLORREF kLinkBlue = RGB(0, 0, 192);

class LinkLabelTest : public ::testing::Test {
  protected:
    void Move(int x, int y) { SendMouse(link.hwnd(), WM_MOUSEMOVE, x, y); }
    bool Underlined() const { return test::Ink(link.hwnd()) > plainInk; }

    test::TestParent parent;
    ctlLinkLabel& link = ctlLinkLabel::Create(parent.hwnd(), 7, "General Options", 10, 30);
    const SIZE size = ClientSize(link.hwnd());
    const int plainInk = test::Ink(link.hwnd());
};

// The hover rules are LabelModel's and the tab proves the press and click wiring they share;
// this proves the link's own inside test is used.
TEST_F(LinkLabelTest, HoverUnderlinesUntilThePointerReachesTheFirstColumn) {
    Move(size.cx - 1, size.cy - 1);
    EXPECT_TRUE(Underlined());
    EXPECT_EQ(GetCapture(), link.hwnd());
    Move(0, size.cy / 2);
    EXPECT_FALSE(Underlined());
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(LinkLabelTest, BlueCaptionOnBackColorOrGreyedWhenDisabled) {
    EXPECT_TRUE(Shows(link.hwnd(), kLinkBlue));
    EXPECT_EQ(link.BackColor(), 0x8000000Fu);
    EXPECT_EQ(test::Render(link.hwnd())[0], GetSysColor(COLOR_BTNFACE));
    link.SetBackColor(RGB(255, 255, 224));
    EXPECT_EQ(test::Render(link.hwnd())[0], RGB(255, 255, 224));

    link.SetEnabled(false);
    EXPECT_FALSE(Shows(link.hwnd(), kLinkBlue));
    EXPECT_TRUE(Shows(link.hwnd(), GetSysColor(COLOR_GRAYTEXT)));
}

TEST_F(LinkLabelTest, HighContrastTurnsTheBlueIntoTheHyperlinkColour) {
    ASSERT_NE(GetSysColor(COLOR_HOTLIGHT), kLinkBlue);
    OverrideHighContrast(true);
    const bool hyperlink = Shows(link.hwnd(), GetSysColor(COLOR_HOTLIGHT));
    const bool blue = Shows(link.hwnd(), kLinkBlue);
    OverrideHighContrast(std::nullopt);
    EXPECT_TRUE(hyperlink);
    EXPECT_FALSE(blue);
}

TEST_F(LinkLabelTest, TheFocusedLinkShowsAFocusRectangleAndEnterOrSpaceClicksIt) {
    SetFocus(link.hwnd());
    ASSERT_EQ(GetFocus(), link.hwnd());
    EXPECT_GT(test::Ink(link.hwnd()), plainInk);
    const MSG enter{link.hwnd(), WM_KEYDOWN, VK_RETURN, 0, 0, {}};
    const MSG tab{link.hwnd(), WM_KEYDOWN, VK_TAB, 0, 0, {}};
    EXPECT_EQ(SendMessageW(link.hwnd(), WM_GETDLGCODE, VK_RETURN, reinterpret_cast<LPARAM>(&enter)),
              DLGC_WANTMESSAGE)
        << "Enter is the link's, not the dialog's default";
    EXPECT_EQ(SendMessageW(link.hwnd(), WM_GETDLGCODE, VK_TAB, reinterpret_cast<LPARAM>(&tab)), 0);

    SendMessageW(link.hwnd(), WM_KEYDOWN, VK_RETURN, 0);
    SendMessageW(link.hwnd(), WM_KEYDOWN, VK_SPACE, 0);
    SendMessageW(link.hwnd(), WM_KEYDOWN, VK_SPACE, 1 << 30);  // held down
    SendMessageW(link.hwnd(), WM_KEYDOWN, 'A', 0);
    EXPECT_EQ(parent.commands.size(), 2u);
    link.SetEnabled(false);
    SendMessageW(link.hwnd(), WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(parent.commands.size(), 2u);

    link.SetEnabled(true);
    SetFocus(nullptr);
    EXPECT_EQ(test::Ink(link.hwnd()), plainInk);
}

// The rightmost column where `after` differs from `before`.
int RightmostChange(const std::vector<COLORREF>& before, const std::vector<COLORREF>& after,
                    int width) {
    int right = -1;
    for (size_t i = 0; i < after.size(); ++i) {
        if (after[i] != before[i]) {
            right = std::max(right, static_cast<int>(i % width));
        }
    }
    return right;
}

TEST_F(LinkLabelTest, TheUnderlineEndsWhereTheCaptionEnds) {
    link.SetCaption("Change file types that are indexed");
    const int width = ClientSize(link.hwnd()).cx;
    const std::vector<COLORREF> plain = test::Render(link.hwnd());
    const std::vector<COLORREF> background(plain.size(), plain[0]);
    Move(2, 2);
    const std::vector<COLORREF> underlined = test::Render(link.hwnd());

    const int captionRight = RightmostChange(background, plain, width);
    ASSERT_GT(captionRight, width / 2);
    EXPECT_LE(RightmostChange(plain, underlined, width), captionRight + 2);
}

TEST_F(LinkLabelTest, SizeFollowsTheCaptionAtOnce) {
    link.SetCaption("Change file types that are indexed");
    EXPECT_GT(ClientSize(link.hwnd()).cx, size.cx);
    EXPECT_EQ(ClientSize(link.hwnd()).cy, size.cy);
    link.SetCaption("Help");
    const SIZE shorter = ClientSize(link.hwnd());
    EXPECT_LT(shorter.cx, size.cx);
    MoveWindow(link.hwnd(), 10, 30, 400, 80, TRUE);
    EXPECT_EQ(ClientSize(link.hwnd()).cx, shorter.cx);
}

}  // namespace
}  // namespace quorin
