#include "ui/main/MainPanels.h"

#include <algorithm>

#include "ui/Dpi.h"
#include "ui/Window.h"
#include "ui/WindowClass.h"

namespace quorin {

namespace {

constexpr wchar_t kPanelClass[] = L"QuorinPanel";

// Panels only hold controls: what their children tell them goes to the main window.
LRESULT CALLBACK PanelProcedure(HWND panel, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
        case WM_NOTIFY:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
            return SendMessageW(GetParent(panel), message, wParam, lParam);
        default:
            return DefWindowProcW(panel, message, wParam, lParam);
    }
}

}  // namespace

void MainPanels::Create(HWND window, int count, int firstId) {
    static const ATOM atom =
        RegisterWindowClass({.name = kPanelClass, .procedure = &PanelProcedure});
    static_cast<void>(atom);
    for (int i = 0; i < count; ++i) {
        panels_.push_back(Window::CreateControl(window, kPanelClass, "",
                                                WS_CLIPSIBLINGS | WS_CLIPCHILDREN, firstId + i,
                                                WS_EX_CONTROLPARENT));
    }
    Show(0);
}

HWND MainPanels::AddControl(int panel, const wchar_t* className, std::string_view text, DWORD style,
                            int id, RECT twips) {
    const HWND control =
        Window::CreateControl(Panel(panel), className, text, WS_CLIPSIBLINGS | style, id);
    placements_.push_back({control, twips});
    return control;
}

ctlLinkLabel* MainPanels::AddLink(int panel, int id, std::string_view caption, int left, int top) {
    ctlLinkLabel& link = ctlLinkLabel::Create(Panel(panel), id, caption, 0, 0);
    // Tab reaches the links, and Enter or Space opens the one with the focus.
    SetWindowLongPtrW(link.hwnd(), GWL_STYLE,
                      GetWindowLongPtrW(link.hwnd(), GWL_STYLE) | WS_TABSTOP);
    placements_.push_back({link.hwnd(), {left, top, 0, 0}});
    return &link;
}

void MainPanels::PlaceControls(int dpi) const {
    for (const Placement& placement : placements_) {
        const RECT& twips = placement.twips;
        const UINT keepSize = twips.right == 0 ? SWP_NOSIZE : 0;
        SetWindowPos(placement.control, nullptr, TwipsToPixels(twips.left, dpi),
                     TwipsToPixels(twips.top, dpi), TwipsToPixels(twips.right, dpi),
                     TwipsToPixels(twips.bottom, dpi), keepSize | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

int MainPanels::ContentBottom() const {
    int bottom = 0;
    for (const Placement& placement : placements_) {
        bottom = std::max(bottom, static_cast<int>(Window::RectInParent(placement.control).bottom));
    }
    return bottom;
}

void MainPanels::PlacePanels(int top, int width, int height) const {
    for (HWND panel : panels_) {
        SetWindowPos(panel, nullptr, 0, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void MainPanels::Show(int panel) const {
    for (size_t i = 0; i < panels_.size(); ++i) {
        ShowWindow(panels_[i], static_cast<int>(i) == panel ? SW_SHOW : SW_HIDE);
    }
}

HWND MainPanels::Control(int id) const {
    for (HWND panel : panels_) {
        if (HWND control = GetDlgItem(panel, id)) {
            return control;
        }
    }
    return nullptr;
}

}  // namespace quorin
