#include <gtest/gtest.h>

#include <oleacc.h>
#include <wrl/client.h>

#include <algorithm>
#include <cctype>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "TestWindows.h"
#include "platform/Text.h"
#include "platform/WinHandles.h"
#include "ui/ComApartment.h"
#include "ui/MessagePump.h"
#include "ui/WindowClass.h"
#include "ui/WindowText.h"
#include "ui/controls/LabelModel.h"
#include "ui/controls/OleColor.h"
#include "ui/controls/ctlLinkLabel.h"
#include "ui/controls/ctlTabLabel.h"

namespace quorin {
namespace {

using Microsoft::WRL::ComPtr;

constexpr COLORREF kLinkBlue = RGB(0, 0, 192);

// The procedure of a plain child that counts the messages it receives.
int spyMessages = 0;
LRESULT CALLBACK CountingProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    ++spyMessages;
    return DefWindowProcW(window, message, wParam, lParam);
}

void SendMouse(HWND window, UINT message, int x, int y) {
    SendMessageW(window, message, message == WM_MOUSEMOVE ? 0 : MK_LBUTTON, MAKELPARAM(x, y));
}

SIZE ClientSize(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

// A window's client area as it paints itself (through WM_PRINTCLIENT), row by row.
std::vector<COLORREF> Render(HWND window) {
    const SIZE size = ClientSize(window);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy;  // top-down rows
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const UniqueMemoryDC dc(CreateCompatibleDC(nullptr));
    const UniqueBitmap bitmap(CreateDIBSection(dc.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    const SelectedObject selected(dc.get(), bitmap.get());
    SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.get()), PRF_CLIENT);
    GdiFlush();
    std::vector<COLORREF> pixels;
    const auto* quads = static_cast<const RGBQUAD*>(bits);
    for (int i = 0; i < size.cx * size.cy; ++i) {
        pixels.push_back(RGB(quads[i].rgbRed, quads[i].rgbGreen, quads[i].rgbBlue));
    }
    return pixels;
}

bool Shows(HWND window, COLORREF color) {
    return std::ranges::count(Render(window), color) > 0;
}

// The number of pixels unlike the top left one: the ink of a caption.
int Ink(HWND window) {
    const std::vector<COLORREF> pixels = Render(window);
    return static_cast<int>(std::count_if(pixels.begin(), pixels.end(),
                                          [&](COLORREF pixel) { return pixel != pixels[0]; }));
}

bool SameSize(SIZE a, SIZE b) {
    return a.cx == b.cx && a.cy == b.cy;
}

TEST(LabelModel, InsideTestsOfTheTwoLabels) {
    // 10 x 5 pixels: the tab counts its whole area, the link leaves out its first row and column.
    const std::tuple<int, int, bool, bool> cases[] = {
        {0, 0, true, false}, {0, 2, true, false},   {4, 0, true, false},  {1, 1, true, true},
        {9, 4, true, true},  {10, 2, false, false}, {4, 5, false, false}, {-1, 2, false, false},
    };
    for (const auto& [x, y, tab, link] : cases) {
        EXPECT_EQ(InsideTabLabel(x, y, 10, 5), tab) << x << "," << y;
        EXPECT_EQ(InsideLinkLabel(x, y, 10, 5), link) << x << "," << y;
    }
}

TEST(LabelModel, MouseSequences) {
    // m/M a move outside/inside, d/D a press, u/U a release, r a reset, s selecting the tab first.
    const std::tuple<std::string_view, bool, bool, int> cases[] = {
        {"M", true, true, 0},      // hover underlines and holds the capture
        {"Mm", false, false, 0},   // leaving lets both go
        {"sM", false, false, 0},   // a selected tab neither underlines nor captures
        {"U", true, true, 0},      // a release without a press is only a move
        {"u", false, false, 0},    // ... also outside
        {"DU", false, false, 1},   // a click ends the hover
        {"DUU", true, true, 1},    // ... and the next release is a move again
        {"Dm", false, true, 0},    // a press keeps the capture outside
        {"Dmu", false, false, 1},  // so a release anywhere still clicks
        {"dU", false, false, 1},   // ... and wherever the press began
        {"sDU", false, false, 1},  // the selected tab still clicks
        {"sDr", false, false, 0},  // a capture taken away drops the press, not the selection
        {"DrU", true, true, 0},    // ... so the release after it is only a move
    };
    for (const auto& [steps, underlined, captured, clickCount] : cases) {
        LabelModel model;
        int clicks = 0;
        for (const char step : steps) {
            const bool inside = std::isupper(static_cast<unsigned char>(step)) != 0;
            switch (std::tolower(static_cast<unsigned char>(step))) {
                case 's':
                    model.SetSelected(true);
                    break;
                case 'm':
                    model.MouseMove(inside);
                    break;
                case 'd':
                    model.MouseDown(inside);
                    break;
                case 'u':
                    clicks += model.MouseUp(inside) ? 1 : 0;
                    break;
                default:
                    model.Reset();
            }
        }
        EXPECT_EQ(model.Underlined(), underlined) << steps;
        EXPECT_EQ(model.Captured(), captured) << steps;
        EXPECT_EQ(clicks, clickCount) << steps;
        EXPECT_EQ(model.Selected(), steps[0] == 's') << steps;
    }
}

// Three tabs, "Go" selected, and two links, on a hidden window.
class LabelTest : public ::testing::Test {
  protected:
    void SetUp() override { go.SetSelected(true); }
    std::vector<int> Clicked() const {
        std::vector<int> ids;
        std::ranges::transform(parent.commands, std::back_inserter(ids),
                               &test::TestParent::Command::id);
        return ids;
    }

    ComApartment apartment;
    test::TestParent parent;
    ctlTabLabel& go = ctlTabLabel::Create(parent.hwnd(), 1, "Go", 0, 0);
    ctlTabLabel& index = ctlTabLabel::Create(parent.hwnd(), 2, "Index", 60, 0);
    ctlTabLabel& options = ctlTabLabel::Create(parent.hwnd(), 3, "Options", 140, 0);
    ctlLinkLabel& link = ctlLinkLabel::Create(parent.hwnd(), 7, "General Options", 10, 30);
    ctlLinkLabel& previous = ctlLinkLabel::Create(parent.hwnd(), 4, "< Previous", 0, 60);
    const SIZE indexSize = ClientSize(index.hwnd());
    const int indexInk = Ink(index.hwnd());
    const SIZE linkSize = ClientSize(link.hwnd());
    const int linkInk = Ink(link.hwnd());
};

TEST_F(LabelTest, SelectingATabDeselectsEveryTabOfItsWindowAndTouchesNothingElse) {
    // A tab of another row inside a panel, a tab of another window, and other kinds of children.
    const HWND panel = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 40, 200, 60, parent.hwnd(),
                                       nullptr, nullptr, nullptr);
    ctlTabLabel& nested = ctlTabLabel::Create(panel, 4, "Help", 0, 0);
    static const ATOM spy =
        RegisterWindowClass({.name = L"QuorinTestSpy", .procedure = &CountingProcedure});
    CreateWindowExW(0, MAKEINTATOM(spy), L"Spy", WS_CHILD | WS_VISIBLE, 300, 100, 50, 20,
                    parent.hwnd(), nullptr, nullptr, nullptr);
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
    EXPECT_EQ(link.Caption(), "General Options");
}

// Each step applies to what the steps before it left.
TEST_F(LabelTest, CaptionColoursOnTheirBackgroundsInEveryStateAndInHighContrast) {
    struct Step {
        const char* what;
        std::function<void()> act;
        LabelWindow& label;
        COLORREF background, shown, absent;
    };
    const COLORREF face = GetSysColor(COLOR_BTNFACE), shadow = GetSysColor(COLOR_BTNSHADOW);
    const COLORREF text = GetSysColor(COLOR_BTNTEXT), light = GetSysColor(COLOR_HIGHLIGHTTEXT);
    const COLORREF grey = GetSysColor(COLOR_GRAYTEXT), cream = RGB(255, 255, 224);
    const auto none = [] {};
    const Step steps[] = {
        {"selected tab", none, go, face, text, CLR_INVALID},
        {"tab", none, index, shadow, light, CLR_INVALID},
        {"disabled selected tab", [&] { go.SetEnabled(false); }, go, face, grey, text},
        // Grey text on the shadow could hardly be seen: the light colour is used instead.
        {"disabled tab", [&] { index.SetEnabled(false); }, index, shadow,
         GetSysColor(COLOR_3DLIGHT), light},
        {"tab enabled again", [&] { index.SetEnabled(true); }, index, shadow, light, CLR_INVALID},
        {"link", none, link, face, kLinkBlue, CLR_INVALID},
        {"link on its BackColor", [&] { link.SetBackColor(cream); }, link, cream, kLinkBlue,
         CLR_INVALID},
        {"disabled link", [&] { link.SetEnabled(false); }, link, cream, grey, kLinkBlue},
        {"link in high contrast",
         [&] {
             link.SetEnabled(true);
             OverrideHighContrast(true);
         },
         link, cream, GetSysColor(COLOR_HOTLIGHT), kLinkBlue},
    };
    ASSERT_NE(GetSysColor(COLOR_HOTLIGHT), kLinkBlue);
    EXPECT_EQ(link.BackColor(), 0x8000000Fu);
    for (const Step& step : steps) {
        SCOPED_TRACE(step.what);
        step.act();
        EXPECT_EQ(Render(step.label.hwnd())[0], step.background);
        EXPECT_TRUE(Shows(step.label.hwnd(), step.shown));
        EXPECT_TRUE(step.absent == CLR_INVALID || !Shows(step.label.hwnd(), step.absent));
    }
    OverrideHighContrast(std::nullopt);
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

TEST_F(LabelTest, ATabIsAsWideAsItsBoldCaptionAtEachResizeWhereALinkFollowsItsCaption) {
    ctlLinkLabel& plain = ctlLinkLabel::Create(parent.hwnd(), 9, "Index", 0, 100);
    EXPECT_GT(indexSize.cx, ClientSize(plain.hwnd()).cx);
    index.SetSelected(true);
    EXPECT_TRUE(SameSize(ClientSize(index.hwnd()), indexSize));
    const int bold = Ink(index.hwnd());
    MoveWindow(index.hwnd(), 60, 0, 300, 90, TRUE);  // the rule wins over the parent
    EXPECT_TRUE(SameSize(ClientSize(index.hwnd()), indexSize));
    EXPECT_TRUE(index.Selected());
    EXPECT_LT(Ink(index.hwnd()), bold) << "bold lasts until the next resize";
    index.SetSelected(true);
    EXPECT_EQ(Ink(index.hwnd()), bold);

    index.SetCaption("Index of every drive");  // waits for the next resize
    EXPECT_TRUE(SameSize(ClientSize(index.hwnd()), indexSize));
    MoveWindow(index.hwnd(), 60, 0, 1, 1, TRUE);
    EXPECT_GT(ClientSize(index.hwnd()).cx, indexSize.cx);
    LOGFONTW description{};
    description.lfHeight = -40;
    const UniqueFont big(CreateFontIndirectW(&description));
    SendMessageW(index.hwnd(), WM_SETFONT, reinterpret_cast<WPARAM>(big.get()), TRUE);
    EXPECT_EQ(reinterpret_cast<HFONT>(SendMessageW(index.hwnd(), WM_GETFONT, 0, 0)), big.get());
    EXPECT_GT(ClientSize(index.hwnd()).cy, indexSize.cy) << "a font from the parent is a resize";

    link.SetCaption("Change file types that are indexed");
    const SIZE longer = ClientSize(link.hwnd());
    EXPECT_GT(longer.cx, linkSize.cx);
    EXPECT_EQ(longer.cy, linkSize.cy);
    // The hover underline ends where the caption ends, however long it is.
    const std::vector<COLORREF> unlit = Render(link.hwnd());
    const int captionRight =
        RightmostChange(std::vector<COLORREF>(unlit.size(), unlit[0]), unlit, longer.cx);
    ASSERT_GT(captionRight, longer.cx / 2);
    SendMouse(link.hwnd(), WM_MOUSEMOVE, 2, 2);
    EXPECT_LE(RightmostChange(unlit, Render(link.hwnd()), longer.cx), captionRight + 2);
    link.SetCaption("Help");
    const SIZE shorter = ClientSize(link.hwnd());
    EXPECT_LT(shorter.cx, linkSize.cx);
    MoveWindow(link.hwnd(), 10, 30, 400, 80, TRUE);
    EXPECT_EQ(ClientSize(link.hwnd()).cx, shorter.cx);
}

// The hover, press and click rules are LabelModel's; this proves each label follows them with
// its own inside test, drops a press whose capture another window took, ignores the mouse while
// disabled, and clicks at Enter or Space when focused.
TEST_F(LabelTest, MouseAndKeysFollowTheModelWithEachLabelsOwnInsideTest) {
    SendMouse(index.hwnd(), WM_LBUTTONDOWN, 3, 3);
    SetCapture(parent.hwnd());
    SendMouse(index.hwnd(), WM_LBUTTONUP, -4, 3);
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

    SendMouse(link.hwnd(), WM_MOUSEMOVE, linkSize.cx - 1, linkSize.cy - 1);
    EXPECT_GT(Ink(link.hwnd()), linkInk);
    EXPECT_EQ(GetCapture(), link.hwnd());
    SendMouse(link.hwnd(), WM_MOUSEMOVE, 0, linkSize.cy / 2);
    EXPECT_LE(Ink(link.hwnd()), linkInk) << "the link's first column is outside";
    EXPECT_EQ(GetCapture(), nullptr);
    SendMouse(index.hwnd(), WM_MOUSEMOVE, 0, 0);  // the tab's first column and row are inside
    EXPECT_GT(Ink(index.hwnd()), indexInk);
    EXPECT_EQ(GetCapture(), index.hwnd());
    SendMouse(index.hwnd(), WM_LBUTTONDOWN, 3, 3);
    SendMouse(index.hwnd(), WM_MOUSEMOVE, -5, 40);
    EXPECT_EQ(Ink(index.hwnd()), indexInk);
    EXPECT_EQ(GetCapture(), index.hwnd());
    EXPECT_TRUE(parent.commands.empty());
    SendMouse(index.hwnd(), WM_LBUTTONUP, -5, 40);
    EXPECT_EQ(Clicked(), std::vector<int>{2});
    EXPECT_EQ(parent.commands[0].code, kLabelClick);
    EXPECT_EQ(parent.commands[0].from, index.hwnd());
    EXPECT_TRUE(index.Selected());
    EXPECT_FALSE(go.Selected());
    EXPECT_EQ(GetCapture(), nullptr);

    SetFocus(link.hwnd());
    ASSERT_EQ(GetFocus(), link.hwnd());
    EXPECT_GT(Ink(link.hwnd()), linkInk) << "a focus rectangle";
    // That Enter is the link's and Tab the dialog's, WelcomeTest's keys show in a dialog.
    SendMessageW(link.hwnd(), WM_KEYDOWN, VK_RETURN, 0);
    SendMessageW(link.hwnd(), WM_KEYDOWN, VK_SPACE, 0);
    SendMessageW(link.hwnd(), WM_KEYDOWN, VK_SPACE, 1 << 30);  // held down
    SendMessageW(link.hwnd(), WM_KEYDOWN, 'A', 0);
    EXPECT_EQ(Clicked(), (std::vector<int>{2, 7, 7}));
    link.SetEnabled(false);
    SendMessageW(link.hwnd(), WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(parent.commands.size(), 3u);
    link.SetEnabled(true);
    SetFocus(nullptr);
    EXPECT_EQ(Ink(link.hwnd()), linkInk);
}

TEST_F(LabelTest, WithoutACaptionBothLabelsShowTheDefaultOne) {
    for (const ATOM atom : {ctlTabLabel::Register(), ctlLinkLabel::Register()}) {
        const HWND window = CreateWindowExW(0, MAKEINTATOM(atom), nullptr, WS_CHILD, 0, 0, 0, 0,
                                            parent.hwnd(), nullptr, nullptr, nullptr);
        EXPECT_EQ(WindowText(window), "LinkLabel");
        EXPECT_GT(ClientSize(window).cx, 0);
    }
    EXPECT_EQ(ctlTabLabel::From(parent.hwnd()), nullptr);
}

VARIANT Self() {
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    return self;
}

std::string Text(HRESULT (IAccessible::*get)(VARIANT, BSTR*), IAccessible& object) {
    BSTR text = nullptr;
    EXPECT_EQ((object.*get)(Self(), &text), S_OK);
    std::string result = text != nullptr ? Narrow(text) : "";
    SysFreeString(text);
    return result;
}

long Number(HRESULT (IAccessible::*get)(VARIANT, VARIANT*), IAccessible& object) {
    VARIANT number{};
    EXPECT_EQ((object.*get)(Self(), &number), S_OK);
    EXPECT_EQ(number.vt, VT_I4);
    return number.lVal;
}

TEST_F(LabelTest, EachLabelTellsItsRoleNameStatesAndDefaultActionAndDoesIt) {
    previous.SetEnabled(false);
    SetFocus(index.hwnd());
    ASSERT_EQ(GetFocus(), index.hwnd());
    struct Row {
        LabelWindow& label;
        long role;
        const char *name, *action;
        long has, hasNot;
    };
    constexpr long kTab = STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE;
    constexpr long kFocused = STATE_SYSTEM_FOCUSED, kSelected = STATE_SYSTEM_SELECTED;
    constexpr long kOff = STATE_SYSTEM_UNAVAILABLE;
    const Row rows[] = {
        {go, ROLE_SYSTEM_PAGETAB, "Go", "Switch", kTab | kSelected, kFocused | kOff},
        {index, ROLE_SYSTEM_PAGETAB, "Index", "Switch", kTab | kFocused, kSelected},
        {link, ROLE_SYSTEM_LINK, "General Options", "Click",
         STATE_SYSTEM_LINKED | STATE_SYSTEM_FOCUSABLE, kFocused | kSelected | kOff},
        {previous, ROLE_SYSTEM_LINK, "< Previous", "Click", kOff, kFocused},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        IAccessible& object = *row.label.Accessible();
        EXPECT_EQ(Number(&IAccessible::get_accRole, object), row.role);
        EXPECT_EQ(Text(&IAccessible::get_accName, object), row.name);
        EXPECT_EQ(Text(&IAccessible::get_accDefaultAction, object), row.action);
        const long states = Number(&IAccessible::get_accState, object);
        EXPECT_EQ(states & row.has, row.has);
        EXPECT_EQ(states & row.hasNot, 0);
    }
    link.SetCaption("Cancel");
    EXPECT_EQ(Text(&IAccessible::get_accName, *link.Accessible()), "Cancel");

    // Both labels answer WM_GETOBJECT through their common base, so the tab stands for both.
    const LRESULT answer = SendMessageW(go.hwnd(), WM_GETOBJECT, 0, OBJID_CLIENT);
    if (answer > 0) {
        ComPtr<IAccessible> object;
        ASSERT_EQ(ObjectFromLresult(answer, IID_IAccessible, 0, &object), S_OK);
        EXPECT_EQ(Number(&IAccessible::get_accRole, *object.Get()), ROLE_SYSTEM_PAGETAB);
    } else {
        // Wine marshals no IAccessible: LresultFromObject's own failure proves that it was
        // handed the label's object (the system's default answer is 0).
        EXPECT_EQ(answer, static_cast<LRESULT>(E_NOINTERFACE));
    }
    EXPECT_EQ(SendMessageW(go.hwnd(), WM_GETOBJECT, 0, OBJID_WINDOW), 0)
        << "the frame stays the system's";

    // The default action clicks once the caller has returned, and not past the label's life.
    EXPECT_EQ(index.Accessible()->accDoDefaultAction(Self()), S_OK);
    EXPECT_FALSE(index.Selected());
    MessagePump().DoEvents();
    EXPECT_TRUE(index.Selected());
    EXPECT_FALSE(go.Selected());

    EXPECT_EQ(link.Accessible()->accDoDefaultAction(Self()), S_OK);
    EXPECT_EQ(previous.Accessible()->accDoDefaultAction(Self()), E_FAIL);
    MessagePump().DoEvents();
    EXPECT_EQ(Clicked(), (std::vector<int>{2, 7}));

    const ComPtr<IAccessible> object = link.Accessible();
    DestroyWindow(link.hwnd());
    BSTR name = nullptr;
    EXPECT_EQ(object->get_accName(Self(), &name), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(object->accDoDefaultAction(Self()), CO_E_OBJNOTCONNECTED);
}

std::vector<std::pair<DWORD, HWND>> seen;  // the events of client areas

void CALLBACK RecordWinEvent(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child,
                             DWORD, DWORD) {
    if (object == OBJID_CLIENT && child == CHILDID_SELF) {
        seen.emplace_back(event, window);
    }
}

TEST_F(LabelTest, FocusSelectionAndTextChangesRaiseWinEvents) {
    const HWND counter = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 80, 60, 20, parent.hwnd(),
                                         nullptr, nullptr, nullptr);
    const HWINEVENTHOOK hook =
        SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_NAMECHANGE, nullptr, &RecordWinEvent,
                        GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    ASSERT_NE(hook, nullptr);
    const auto raises = [&](const std::function<void()>& act, DWORD event, HWND window) {
        seen.clear();
        act();
        MessagePump().DoEvents();
        return std::ranges::find(seen, std::pair(event, window)) != seen.end();
    };
    EXPECT_TRUE(raises([&] { SetFocus(index.hwnd()); }, EVENT_OBJECT_FOCUS, index.hwnd()));
    EXPECT_TRUE(raises([&] { SetFocus(link.hwnd()); }, EVENT_OBJECT_FOCUS, link.hwnd()));
    EXPECT_TRUE(raises([&] { index.SetSelected(true); }, EVENT_OBJECT_SELECTION, index.hwnd()));
    EXPECT_TRUE(raises([&] { link.SetCaption("Cancel"); }, EVENT_OBJECT_NAMECHANGE, link.hwnd()));
    EXPECT_TRUE(raises([&] { SetLiveText(counter, "42"); }, EVENT_OBJECT_NAMECHANGE, counter))
        << "the counter counting";
    UnhookWinEvent(hook);
}

}  // namespace
}  // namespace quorin
