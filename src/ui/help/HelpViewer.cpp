#include "ui/help/HelpViewer.h"

#include <richedit.h>

#include <cwchar>
#include <string>
#include <vector>

#include "platform/Errors.h"
#include "platform/Text.h"
#include "resource.h"
#include "ui/Dpi.h"
#include "ui/WindowClass.h"

namespace quorin {

namespace {

constexpr int kTextId = 1;
constexpr int kMarginPixels = 14;  // at 96 DPI
constexpr int kMinimumWidth = 300;
constexpr int kMinimumHeight = 200;

// Sizes in twips: the rich edit box scales points to the screen itself.
constexpr LONG kBodyHeight = 200;
constexpr LONG kTitleHeight = 300;
constexpr LONG kHeadingHeight = 220;

struct TextRange {
    LONG start = 0;
    LONG end = 0;
    HelpBlockKind kind = HelpBlockKind::Paragraph;
};

HICON ProgramIcon(int size) {
    return static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDI_QUORIN),
                                         IMAGE_ICON, size, size, LR_SHARED));
}

void RegisterViewerClass() {
    static const ATOM atom = [] {
        // The rich edit class lives in msftedit.dll, which stays loaded from here on.
        static const UniqueModule richEdit(LoadLibraryW(L"msftedit.dll"));
        if (!richEdit) {
            throw Error("The help window cannot be shown: msftedit.dll could not be loaded.");
        }
        WindowClass viewerClass;
        viewerClass.name = kHelpViewerClass;
        viewerClass.background = COLOR_WINDOW;
        viewerClass.icon = ProgramIcon(GetSystemMetrics(SM_CXICON));
        viewerClass.smallIcon = ProgramIcon(GetSystemMetrics(SM_CXSMICON));
        return RegisterWindowClass(viewerClass);
    }();
    static_cast<void>(atom);
}

void Select(HWND box, LONG start, LONG end) {
    CHARRANGE range{start, end};
    SendMessageW(box, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
}

void SetCharFormat(HWND box, LONG height, bool bold) {
    CHARFORMAT2W format{};
    format.cbSize = sizeof(format);
    format.dwMask = CFM_FACE | CFM_SIZE | CFM_BOLD | CFM_COLOR;
    format.dwEffects = (bold ? CFE_BOLD : 0) | CFE_AUTOCOLOR;
    format.yHeight = height;
    const LOGFONTW font = MessageFont(ScreenDpi());
    wcsncpy(format.szFaceName, font.lfFaceName, LF_FACESIZE - 1);
    SendMessageW(box, EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
}

// Spaces in twips. Setting every field that any block uses resets what the last topic left.
PARAFORMAT2 ParagraphFormat(LONG spaceBefore, LONG spaceAfter) {
    PARAFORMAT2 format{};
    format.cbSize = sizeof(format);
    format.dwMask = PFM_NUMBERING | PFM_STARTINDENT | PFM_OFFSET | PFM_TABSTOPS | PFM_SPACEBEFORE |
                    PFM_SPACEAFTER;
    format.dySpaceBefore = spaceBefore;
    format.dySpaceAfter = spaceAfter;
    return format;
}

// A bullet character and a tab with a hanging indent: rich edit's own bullets are drawn with a
// symbol font that not every system maps well.
PARAFORMAT2 BulletFormat(LONG spaceAfter) {
    PARAFORMAT2 format = ParagraphFormat(0, spaceAfter);
    format.dxStartIndent = 160;
    format.dxOffset = 220;
    format.cTabCount = 1;
    format.rgxTabs[0] = 380;
    return format;
}

void SetParaFormat(HWND box, const PARAFORMAT2& format) {
    SendMessageW(box, EM_SETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&format));
}

}  // namespace

HelpViewer::HelpViewer() {
    RegisterViewerClass();
}

void HelpViewer::ShowTopic(const HelpTopic& topic, const RECT& place) {
    if (!IsOpen()) {
        WindowSpec layout;
        layout.title = "Quorin Help";
        layout.style = WS_OVERLAPPEDWINDOW;
        layout.x = place.left;
        layout.y = place.top;
        layout.width = place.right - place.left;
        layout.height = place.bottom - place.top;
        Create(kHelpViewerClass, layout);
    }
    SetTopicText(topic);
    ShowWindow(hwnd(), IsIconic(hwnd()) ? SW_RESTORE : SW_SHOW);
    SetForegroundWindow(hwnd());
}

void HelpViewer::Close() {
    if (IsOpen()) {
        DestroyWindow(hwnd());
    }
}

LRESULT HelpViewer::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETFOCUS:
            SetFocus(txtTopic_);
            return 0;
        case WM_GETMINMAXINFO: {
            auto* limits = reinterpret_cast<MINMAXINFO*>(lParam);
            const int dpi = WindowDpi(hwnd());
            limits->ptMinTrackSize = {ScaleForDpi(kMinimumWidth, dpi),
                                      ScaleForDpi(kMinimumHeight, dpi)};
            return 0;
        }
        default:
            return Window::HandleMessage(message, wParam, lParam);
    }
}

bool HelpViewer::OnCreate(const CREATESTRUCTW&) {
    txtTopic_ = CreateControl(hwnd(), MSFTEDIT_CLASS, "",
                              WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL, kTextId);
    SendMessageW(txtTopic_, EM_SETBKGNDCOLOR, TRUE, 0);  // the system's window colour
    return true;
}

void HelpViewer::OnSize(UINT, int width, int height) {
    MoveWindow(txtTopic_, 0, 0, width, height, TRUE);
    // Inset the text rather than the box, so that the scroll bar stays at the window's edge.
    const int margin = ScaleForDpi(kMarginPixels, WindowDpi(hwnd()));
    RECT text{};
    GetClientRect(txtTopic_, &text);
    InflateRect(&text, -margin, -margin);
    SendMessageW(txtTopic_, EM_SETRECT, 0, reinterpret_cast<LPARAM>(&text));
    InvalidateRect(txtTopic_, nullptr, TRUE);
}

void HelpViewer::SetTopicText(const HelpTopic& topic) {
    // Paragraphs end with a lone CR in a rich edit box; ranges count UTF-16 units.
    const std::wstring title = Widen(topic.title);
    std::wstring text = title;
    std::vector<TextRange> ranges;
    for (const HelpBlock& block : topic.blocks) {
        text += L'\r';
        const auto start = static_cast<LONG>(text.size());
        if (block.kind == HelpBlockKind::Bullet) {
            text += L"\u2022\t";
        }
        text += Widen(block.text);
        ranges.push_back({start, static_cast<LONG>(text.size()), block.kind});
    }
    SETTEXTEX mode{ST_DEFAULT, 1200};  // 1200: the text is UTF-16
    SendMessageW(txtTopic_, EM_SETTEXTEX, reinterpret_cast<WPARAM>(&mode),
                 reinterpret_cast<LPARAM>(text.c_str()));

    Select(txtTopic_, 0, -1);
    SetCharFormat(txtTopic_, kBodyHeight, false);
    Select(txtTopic_, 0, static_cast<LONG>(title.size()));
    SetCharFormat(txtTopic_, kTitleHeight, true);
    SetParaFormat(txtTopic_, ParagraphFormat(0, 160));
    for (size_t i = 0; i < ranges.size(); ++i) {
        const TextRange& range = ranges[i];
        Select(txtTopic_, range.start, range.end);
        if (range.kind == HelpBlockKind::Heading) {
            SetParaFormat(txtTopic_, ParagraphFormat(160, 40));
            SetCharFormat(txtTopic_, kHeadingHeight, true);
        } else if (range.kind == HelpBlockKind::Bullet) {
            // The last item of a list is followed by a paragraph's space.
            const bool last = i + 1 < ranges.size() && ranges[i + 1].kind != HelpBlockKind::Bullet;
            SetParaFormat(txtTopic_, BulletFormat(last ? 100 : 60));
        } else {
            SetParaFormat(txtTopic_, ParagraphFormat(0, 100));
        }
    }
    Select(txtTopic_, 0, 0);
    SendMessageW(txtTopic_, WM_VSCROLL, SB_TOP, 0);
}

}  // namespace quorin
