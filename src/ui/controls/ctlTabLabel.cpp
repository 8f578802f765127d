#include "ui/controls/ctlTabLabel.h"

#include <string>

#include "ui/WindowClass.h"

namespace quorin {

ATOM ctlTabLabel::Register() {
    static const ATOM atom = RegisterWindowClass({.name = L"QuorinTabLabel",
                                                  .procedure = &SelfOwnedProcedure<ctlTabLabel>,
                                                  .background = kNoBackground});
    return atom;
}

ctlTabLabel& ctlTabLabel::Create(HWND parent, int id, std::string_view caption, int x, int y) {
    return *From(CreateLabel(Register(), parent, id, caption, x, y));
}

ctlTabLabel* ctlTabLabel::From(HWND window) {
    return Bound<ctlTabLabel>(window, Register());
}

void ctlTabLabel::SetSelected(bool selected) {
    const bool newlySelected = selected && !Selected();
    Model().SetSelected(selected);
    if (selected) {
        DeselectOtherTabs();
    }
    bold_ = selected;
    Repaint();
    if (newlySelected) {
        Announce(EVENT_OBJECT_SELECTION);
    }
}

LabelLook ctlTabLabel::Look() const {
    if (Selected()) {
        return {SystemColor(COLOR_BTNTEXT), SystemColor(COLOR_GRAYTEXT), SystemColor(COLOR_BTNFACE),
                bold_};
    }
    // Grey text would all but vanish on the shadow; a light colour dimmer than the highlight
    // text still reads as a disabled tab.
    return {SystemColor(COLOR_HIGHLIGHTTEXT), SystemColor(COLOR_3DLIGHT),
            SystemColor(COLOR_BTNSHADOW), bold_};
}

LabelRole ctlTabLabel::Role() const {
    return {ROLE_SYSTEM_PAGETAB, L"Switch", STATE_SYSTEM_SELECTABLE};
}

bool ctlTabLabel::Inside(int x, int y, int width, int height) const {
    return InsideTabLabel(x, y, width, height);
}

void ctlTabLabel::UserControl_Resize() {
    if (bInResize) {
        return;
    }
    bInResize = true;
    std::string padded(1, ' ');
    padded.append(Caption()).push_back(' ');
    ResizeTo(MeasureText(padded, true));
    bold_ = false;
    Repaint();
    bInResize = false;
}

void ctlTabLabel::Clicked() {
    SetSelected(true);
}

void ctlTabLabel::DeselectOtherTabs() {
    // The whole top-level window, at any depth: a row of tabs may sit inside a panel.
    EnumChildWindows(
        GetAncestor(hwnd(), GA_ROOT),
        [](HWND child, LPARAM self) -> BOOL {
            ctlTabLabel* tab = From(child);
            if (tab != nullptr && child != reinterpret_cast<HWND>(self)) {
                tab->SetSelected(false);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(hwnd()));
}

}  // namespace quorin
