#include "platform/MessageBoxPrompter.h"

#include "platform/Text.h"

namespace quorin {
namespace {

UINT ButtonStyleOf(PromptButtons buttons) {
    switch (buttons) {
        case PromptButtons::YesNo:
            return MB_YESNO;
        case PromptButtons::YesNoCancel:
            return MB_YESNOCANCEL;
        case PromptButtons::Ok:
            break;
    }
    return MB_OK;
}

UINT StyleOf(PromptButtons buttons, PromptIcon icon) {
    const UINT buttonStyle = ButtonStyleOf(buttons);
    switch (icon) {
        case PromptIcon::Information:
            return buttonStyle | MB_ICONINFORMATION;
        case PromptIcon::Question:
            return buttonStyle | MB_ICONQUESTION;
        case PromptIcon::Exclamation:
            return buttonStyle | MB_ICONEXCLAMATION;
        case PromptIcon::Critical:
            return buttonStyle | MB_ICONERROR;
        case PromptIcon::None:
            break;
    }
    return buttonStyle;
}

PromptAnswer AnswerOf(int result) {
    switch (result) {
        case IDOK:
            return PromptAnswer::Ok;
        case IDYES:
            return PromptAnswer::Yes;
        case IDNO:
            return PromptAnswer::No;
        default:
            return PromptAnswer::Cancel;  // closed some other way, or the box failed
    }
}

}  // namespace

// A tray program asks while none of its windows may be in front (at start-up, or from the tray),
// so the box takes the foreground itself rather than waiting grey behind other programs. It
// belongs to the program's active window (a dialog asking), else to the main window while that
// is shown. A hidden owner (the main window in the tray or not yet shown) would leave the box
// without a taskbar button, and drawn inactive under Wine; an owner that has gone would make it
// fail. Without an owner the box holds back every window of the program until answered.
PromptAnswer MessageBoxPrompter::Ask(std::string_view title, std::string_view text,
                                     PromptButtons buttons, PromptIcon icon) {
    HWND owner = GetActiveWindow();
    if (owner == nullptr) {
        owner = owner_;
    }
    if (IsWindowVisible(owner) == FALSE) {
        owner = nullptr;
    }
    const UINT modality = owner == nullptr ? MB_TASKMODAL : 0;
    return AnswerOf(MessageBoxW(owner, Widen(text).c_str(), Widen(title).c_str(),
                                StyleOf(buttons, icon) | MB_SETFOREGROUND | modality));
}

}  // namespace quorin
