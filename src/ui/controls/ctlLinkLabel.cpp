#include "ui/controls/ctlLinkLabel.h"

#include "ui/WindowClass.h"

namespace quorin {

namespace {

constexpr OleColor kLinkBlue = RGB(0, 0, 192);

}  // namespace

ATOM ctlLinkLabel::Register() {
    static const ATOM atom = RegisterWindowClass({.name = L"QuorinLinkLabel",
                                                  .procedure = &SelfOwnedProcedure<ctlLinkLabel>,
                                                  .background = kNoBackground});
    return atom;
}

ctlLinkLabel& ctlLinkLabel::Create(HWND parent, int id, std::string_view caption, int x, int y) {
    return *From(CreateLabel(Register(), parent, id, caption, x, y));
}

ctlLinkLabel* ctlLinkLabel::From(HWND window) {
    return Bound<ctlLinkLabel>(window, Register());
}

void ctlLinkLabel::SetBackColor(OleColor color) {
    backColor_ = color;
    Repaint();
}

LabelLook ctlLinkLabel::Look() const {
    // Under high contrast the user's hyperlink colour is the one that reads on their background.
    const OleColor text = HighContrastOn() ? SystemColor(COLOR_HOTLIGHT) : kLinkBlue;
    return {text, SystemColor(COLOR_GRAYTEXT), backColor_, false};
}

LabelRole ctlLinkLabel::Role() const {
    return {ROLE_SYSTEM_LINK, L"Click", STATE_SYSTEM_LINKED};
}

bool ctlLinkLabel::Inside(int x, int y, int width, int height) const {
    return InsideLinkLabel(x, y, width, height);
}

void ctlLinkLabel::UserControl_Resize() {
    ResizeTo(MeasureText(Caption(), false));
}

void ctlLinkLabel::CaptionChanged() {
    UserControl_Resize();
}

}  // namespace quorin
