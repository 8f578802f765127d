#include <gtest/gtest.h>

#include "TestWindows.h"
#include "platform/WinHandles.h"
#include "ui/controls/ctlLinkLabel.h"
#include "ui/controls/ctlTabLabel.h"

namespace quorin {
namespace {

using test::ClientSize;
using test::Ink;
using test::SendMouse;
using test::Shows;

bool SameSize(SIZE a, SIZE b) {
    return a.cx == b.cx && a.cy == b.cy;
}

class TabLabelTest : public ::testing::Test {
  protected:
    void SetUp() override { go.SetSelected(true); }

    test::TestParent parent;
    ctlTabLabel& go = ctlTabLabel::Create(parent.hwnd(), 1, "Go", 0, 0);
    ctlTabLabel& index = ctlTabLabel::Create(parent.hwnd(), 2, "Index", 60, 0);
    ctlTabLabel& options = ctlTabLabel::Create(parent.hwnd(), 3, "Options", 140, 0);
    const SIZE indexSize = ClientSize(index.hwnd());
    const int indexInk = Ink(index.hwnd());
};

TEST_F(TabLabelTest, SelectingATabDeselectsEveryTabOfItsWindowAndTouchesNothingElse) {
    // A tab of another row inside a panel, a tab of another window, and other kinds of children.
    const HWND panel = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 40, 200, 60, parent.hwnd(),
                                       nullptr, nullptr, nullptr);
    ctlTabLabel& nested = ctlTabLabel::Create(panel, 4, "Help", 0, 0);
    ctlLinkLabel& link = ctlLinkLabel::Create(parent.hwnd(), 5, "Update Index Now", 0, 120);
    int spyMessages = 0;
    test::CreateSpyChild(parent.hwnd(), spyMessages);
    test::TestParent otherWindow;
    ctlTabLabel& elsewhere = ctlTabLabel::Create(otherWindow.hwnd(), 1, "Go", 0, 0);
    elsewhere.SetSelected(true);
    nested.SetSelected(true);
    EXPECT_FALSE(go.Selected());

    spyMessages = 0;
    options.SetSelected(true);

    EXPECT_TRUE(options.Selected());
    EXPECT_FALSE(go.Selected() || index.Selected() || nested.Selected());
    EXPECT_TRUE(elsewhere.Selected());
    EXPECT_EQ(spyMessages, 0);
    EXPECT_EQ(link.Caption(), "Update Index Now");
}

TEST_F(TabLabelTest, SelectedTabIsButtonTextOnTheFaceAndTheOthersLightOnTheShadow) {
    EXPECT_EQ(test::Render(go.hwnd())[0], GetSysColor(COLOR_BTNFACE));
    EXPECT_TRUE(Shows(go.hwnd(), GetSysColor(COLOR_BTNTEXT)));
    EXPECT_EQ(test::Render(index.hwnd())[0], GetSysColor(COLOR_BTNSHADOW));
    EXPECT_TRUE(Shows(index.hwnd(), GetSysColor(COLOR_HIGHLIGHTTEXT)));
}

TEST_F(TabLabelTest, DisabledCaptionsStayReadableYetDimmerThanEnabledOnes) {
    go.SetEnabled(false);
    index.SetEnabled(false);

    EXPECT_EQ(test::Render(go.hwnd())[0], GetSysColor(COLOR_BTNFACE));
    EXPECT_TRUE(Shows(go.hwnd(), GetSysColor(COLOR_GRAYTEXT)));
    EXPECT_FALSE(Shows(go.hwnd(), GetSysColor(COLOR_BTNTEXT)));
    // Grey text on the shadow could hardly be seen: the light colour must be used instead.
    EXPECT_EQ(test::Render(index.hwnd())[0], GetSysColor(COLOR_BTNSHADOW));
    EXPECT_TRUE(Shows(index.hwnd(), GetSysColor(COLOR_3DLIGHT)));
    EXPECT_FALSE(Shows(index.hwnd(), GetSysColor(COLOR_HIGHLIGHTTEXT)));

    index.SetEnabled(true);
    EXPECT_TRUE(Shows(index.hwnd(), GetSysColor(COLOR_HIGHLIGHTTEXT)));
}

TEST_F(TabLabelTest, SizeIsThatOfTheBoldCaptionWithABlankEachSideAtEachResize) {
    ctlLinkLabel& plain = ctlLinkLabel::Create(parent.hwnd(), 9, "Index", 0, 100);
    EXPECT_GT(indexSize.cx, ClientSize(plain.hwnd()).cx);

    index.SetSelected(true);
    EXPECT_TRUE(SameSize(ClientSize(index.hwnd()), indexSize));
    MoveWindow(index.hwnd(), 60, 0, 300, 90, TRUE);  // the rule wins over the parent
    EXPECT_TRUE(SameSize(ClientSize(index.hwnd()), indexSize));

    index.SetCaption("Index of every drive");  // waits for the next resize
    EXPECT_TRUE(SameSize(ClientSize(index.hwnd()), indexSize));
    MoveWindow(index.hwnd(), 60, 0, 1, 1, TRUE);
    EXPECT_GT(ClientSize(index.hwnd()).cx, indexSize.cx);

    // A font from the parent is a resize too.
    LOGFONTW description{};
    description.lfHeight = -40;
    const UniqueFont big(CreateFontIndirectW(&description));
    SendMessageW(index.hwnd(), WM_SETFONT, reinterpret_cast<WPARAM>(big.get()), TRUE);
    EXPECT_EQ(reinterpret_cast<HFONT>(SendMessageW(index.hwnd(), WM_GETFONT, 0, 0)), big.get());
    EXPECT_GT(ClientSize(index.hwnd()).cy, indexSize.cy);
}

TEST_F(TabLabelTest, BoldLastsUntilTheNextResize) {
    index.SetSelected(true);
    const int bold = Ink(index.hwnd());
    MoveWindow(index.hwnd(), 60, 0, 200, 50, TRUE);
    EXPECT_TRUE(index.Selected());
    EXPECT_LT(Ink(index.hwnd()), bold);
    index.SetSelected(true);
    EXPECT_EQ(Ink(index.hwnd()), bold);
}

// The hover, press and click rules are LabelModel's; this proves the tab follows them.
TEST_F(TabLabelTest, HoverUnderlinesAndPressDragOutAndReleaseClicksAndSelects) {
    SendMouse(index.hwnd(), WM_MOUSEMOVE, 0, 0);  // the first column and row are inside
    EXPECT_GT(Ink(index.hwnd()), indexInk);
    EXPECT_EQ(GetCapture(), index.hwnd());

    SendMouse(index.hwnd(), WM_LBUTTONDOWN, 3, 3);
    SendMouse(index.hwnd(), WM_MOUSEMOVE, -5, 40);
    EXPECT_EQ(Ink(index.hwnd()), indexInk);
    EXPECT_EQ(GetCapture(), index.hwnd());
    EXPECT_TRUE(parent.commands.empty());

    SendMouse(index.hwnd(), WM_LBUTTONUP, -5, 40);
    ASSERT_EQ(parent.commands.size(), 1u);
    EXPECT_EQ(parent.commands[0].id, 2);
    EXPECT_EQ(parent.commands[0].code, kLabelClick);
    EXPECT_EQ(parent.commands[0].from, index.hwnd());
    EXPECT_TRUE(index.Selected());
    EXPECT_FALSE(go.Selected());
    EXPECT_EQ(GetCapture(), nullptr);
}

// A release clicks only after a press the tab still holds; disabling ends a hover, and a
// disabled tab ignores the mouse.
TEST_F(TabLabelTest, ReleaseAfterLosingTheCaptureOrWhileDisabledDoesNothing) {
    SendMouse(index.hwnd(), WM_LBUTTONDOWN, 3, 3);
    SetCapture(parent.hwnd());
    SendMouse(index.hwnd(), WM_LBUTTONUP, -4, 3);
    EXPECT_TRUE(parent.commands.empty());
    EXPECT_FALSE(index.Selected());
    EXPECT_EQ(GetCapture(), parent.hwnd());  // not released: no longer the tab's
    ReleaseCapture();

    SendMouse(index.hwnd(), WM_MOUSEMOVE, 3, 3);
    index.SetEnabled(false);
    EXPECT_FALSE(index.Enabled());
    EXPECT_EQ(GetCapture(), nullptr);
    for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP}) {
        SendMouse(index.hwnd(), message, 3, 3);
        EXPECT_EQ(GetCapture(), nullptr);
    }
    EXPECT_TRUE(parent.commands.empty());
    index.SetEnabled(true);
    EXPECT_EQ(Ink(index.hwnd()), indexInk);
}

TEST(LabelCreation, WithoutACaptionBothLabelsShowTheDefaultOne) {
    test::TestParent parent;
    for (const ATOM atom : {ctlTabLabel::Register(), ctlLinkLabel::Register()}) {
        const HWND window = CreateWindowExW(0, MAKEINTATOM(atom), nullptr, WS_CHILD, 0, 0, 0, 0,
                                            parent.hwnd(), nullptr, nullptr, nullptr);
        wchar_t text[16] = L"";
        GetWindowTextW(window, text, 16);
        EXPECT_STREQ(text, L"LinkLabel");
        EXPECT_GT(ClientSize(window).cx, 0);
    }
    EXPECT_EQ(ctlTabLabel::From(parent.hwnd()), nullptr);
}

}  // namespace
}  // namespace quorin
