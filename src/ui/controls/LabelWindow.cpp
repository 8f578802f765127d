#include "ui/controls/LabelWindow.h"

#include <windowsx.h>

#include <vector>

#include "platform/Text.h"
#include "platform/WinHandles.h"
#include "ui/Dpi.h"
#include "ui/PaintDc.h"
#include "ui/WindowText.h"

namespace quorin {

namespace {

// A caption as one line of glyphs ("&" shown as it is) and where each glyph goes.
struct CaptionRun {
    std::wstring text;
    std::vector<int> advances;
    SIZE size{};
};

// The caption is drawn at the advances it was measured with, so its size, its glyphs and its
// underline always agree: Wine's stand-in for Tahoma measures wider than it places the glyphs
// of a plain text out, which left the underline running past the caption.
CaptionRun LayOutCaption(HDC dc, std::string_view caption) {
    CaptionRun run{Widen(caption), {}, {}};
    const int length = static_cast<int>(run.text.size());
    std::vector<int> ends(run.text.size());
    GetTextExtentExPointW(dc, run.text.c_str(), length, 0, nullptr, ends.data(), &run.size);
    int previous = 0;
    for (const int end : ends) {
        run.advances.push_back(end - previous);
        previous = end;
    }
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    run.size.cy = metrics.tmHeight;
    return run;
}

LOGFONTW FontDescription(HFONT font, HWND window) {
    LOGFONTW description{};
    if (font == nullptr || GetObjectW(font, sizeof(description), &description) == 0) {
        description = MessageFont(WindowDpi(window));
    }
    return description;
}

// Posted to the label itself by DoDefaultAction; clear of DM_SETDEFID (WM_USER + 1), which the
// dialog manager sends around.
constexpr UINT kDefaultActionMessage = WM_USER + 0x100;

}  // namespace

LabelWindow::~LabelWindow() {
    if (accessible_) {
        accessible_->Disconnect();
    }
}

std::string LabelWindow::Caption() const {
    return WindowText(hwnd());
}

void LabelWindow::SetCaption(std::string_view caption) {
    SetText(hwnd(), caption);
}

bool LabelWindow::Enabled() const {
    return IsWindowEnabled(hwnd()) != FALSE;
}

void LabelWindow::SetEnabled(bool enabled) {
    EnableWindow(hwnd(), enabled ? TRUE : FALSE);
}

IAccessible* LabelWindow::Accessible() {
    if (!accessible_) {
        accessible_ = LabelAccessible::Make(*this, Role());
    }
    return accessible_.Get();
}

void LabelWindow::DoDefaultAction() {
    PostMessageW(hwnd(), kDefaultActionMessage, 0, 0);
}

HWND LabelWindow::CreateLabel(ATOM atom, HWND parent, int id, std::string_view caption, int x,
                              int y) {
    const HWND label = CreateControl(parent, MAKEINTATOM(atom), caption, 0, id);
    SetWindowPos(label, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    return label;
}

SIZE LabelWindow::MeasureText(std::string_view text, bool bold) {
    const WindowDC dc(hwnd());
    const SelectedObject font(dc.get(), fonts_.Get(bold, false));
    return LayOutCaption(dc.get(), text).size;
}

void LabelWindow::ResizeTo(SIZE size) {
    SetWindowPos(hwnd(), nullptr, 0, 0, size.cx, size.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void LabelWindow::Repaint() {
    InvalidateRect(hwnd(), nullptr, FALSE);
}

void LabelWindow::Announce(DWORD event) {
    NotifyWinEvent(event, hwnd(), OBJID_CLIENT, CHILDID_SELF);
}

LRESULT LabelWindow::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETFONT:
            OnSetFont(reinterpret_cast<HFONT>(wParam));
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(font_);
        case WM_SETTEXT: {
            const LRESULT result = Window::HandleMessage(message, wParam, lParam);
            CaptionChanged();
            Repaint();
            Announce(EVENT_OBJECT_NAMECHANGE);
            return result;
        }
        case WM_ENABLE:
            if (wParam == FALSE) {
                OnDisabled();
            }
            Repaint();
            return 0;
        case WM_MOUSEMOVE:
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_RBUTTONUP:
        case WM_MBUTTONUP:
            OnMouse(message, lParam);
            return 0;
        case WM_GETDLGCODE: {
            // Enter is the dialog's default key unless the focused label takes it.
            const auto* key = reinterpret_cast<const MSG*>(lParam);
            const bool enter =
                key != nullptr && key->message == WM_KEYDOWN && key->wParam == VK_RETURN;
            return enter ? DLGC_WANTMESSAGE : 0;
        }
        case WM_KEYDOWN:
            OnKeyDown(wParam, lParam);
            return 0;
        case WM_SETFOCUS:
            Repaint();
            Announce(EVENT_OBJECT_FOCUS);
            return 0;
        case WM_KILLFOCUS:
            Repaint();
            return 0;
        case WM_GETOBJECT:
            // Only the client area is ours to describe; the frame is the system's.
            if (static_cast<DWORD>(lParam) == static_cast<DWORD>(OBJID_CLIENT)) {
                return LresultFromObject(IID_IAccessible, wParam, Accessible());
            }
            return Window::HandleMessage(message, wParam, lParam);
        case kDefaultActionMessage:
            Click();
            return 0;
        case WM_CAPTURECHANGED:
            OnCaptureChanged(reinterpret_cast<HWND>(lParam));
            return 0;
        case WM_ERASEBKGND:
            return 1;  // WM_PAINT covers every pixel
        case WM_PAINT: {
            const PaintDc dc(hwnd());
            Paint(dc.get());
            return 0;
        }
        case WM_PRINTCLIENT:
            Paint(reinterpret_cast<HDC>(wParam));
            return 0;
        default:
            return Window::HandleMessage(message, wParam, lParam);
    }
}

bool LabelWindow::OnCreate(const CREATESTRUCTW& create) {
    fonts_.Reset(FontDescription(nullptr, hwnd()));
    if (create.lpszName == nullptr) {
        SetCaption(kDefaultCaption);
    }
    UserControl_Resize();
    return true;
}

void LabelWindow::OnSetFont(HFONT font) {
    font_ = font;
    fonts_.Reset(FontDescription(font, hwnd()));
    UserControl_Resize();
    Repaint();
}

void LabelWindow::OnMouse(UINT message, LPARAM lParam) {
    if (!Enabled()) {
        return;
    }
    RECT client{};
    GetClientRect(hwnd(), &client);
    const bool inside =
        Inside(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam), client.right, client.bottom);
    const LabelModel before = model_;
    bool click = false;
    if (message == WM_MOUSEMOVE) {
        model_.MouseMove(inside);
    } else if (message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN ||
               message == WM_MBUTTONDOWN) {
        model_.MouseDown(inside);
    } else {
        click = model_.MouseUp(inside);
    }
    if (click) {
        Clicked();
    }
    if (model_.Captured() && !before.Captured()) {
        SetCapture(hwnd());
    } else if (!model_.Captured() && before.Captured()) {
        ReleaseCapture();
    }
    if (model_.Underlined() != before.Underlined()) {
        Repaint();
    }
    if (click) {
        NotifyClick();  // last: the parent may destroy this label
    }
}

void LabelWindow::OnKeyDown(WPARAM key, LPARAM flags) {
    constexpr LPARAM kRepeat = 1 << 30;  // held down: one click per press
    if ((key == VK_RETURN || key == VK_SPACE) && (flags & kRepeat) == 0) {
        Click();
    }
}

void LabelWindow::OnCaptureChanged(HWND newOwner) {
    // Our own ReleaseCapture comes here with the model already idle; only a capture taken away
    // by another window (a menu, a message box) needs the underline and the press dropped.
    if (newOwner != hwnd() && model_.Captured()) {
        model_.Reset();
        Repaint();
    }
}

void LabelWindow::OnDisabled() {
    const bool captured = model_.Captured();
    model_.Reset();
    if (captured) {
        ReleaseCapture();
    }
}

void LabelWindow::Click() {
    if (Enabled()) {
        Clicked();
        NotifyClick();  // last: the parent may destroy this label
    }
}

void LabelWindow::NotifyClick() {
    SendMessageW(GetParent(hwnd()), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(hwnd()), kLabelClick),
                 reinterpret_cast<LPARAM>(hwnd()));
}

void LabelWindow::Paint(HDC dc) {
    const LabelLook look = Look();
    RECT area{};
    GetClientRect(hwnd(), &area);
    SetBkColor(dc, ResolveColor(look.back));
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);

    const SelectedObject font(dc, fonts_.Get(look.bold, model_.Underlined()));
    SetTextColor(dc, ResolveColor(Enabled() ? look.text : look.disabledText));
    SetBkMode(dc, TRANSPARENT);
    const CaptionRun run = LayOutCaption(dc, Caption());
    ExtTextOutW(dc, (area.right - run.size.cx) / 2, (area.bottom - run.size.cy) / 2, 0, nullptr,
                run.text.c_str(), static_cast<UINT>(run.text.size()), run.advances.data());
    if (GetFocus() == hwnd()) {
        DrawFocusRect(dc, &area);
    }
}

}  // namespace quorin
