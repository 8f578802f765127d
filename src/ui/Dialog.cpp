#include "ui/Dialog.h"

#include "platform/Errors.h"
#include "platform/OsError.h"
#include "ui/Dpi.h"
#include "ui/MessagePump.h"

namespace quorin {

INT_PTR Dialog::ShowModal(HWND owner) {
    modal_ = true;
    ended_ = false;
    Make(owner);
    const bool disableOwner = owner != nullptr && IsWindowEnabled(owner);
    if (disableOwner) {
        EnableWindow(owner, FALSE);
    }
    ShowWindow(hwnd(), SW_SHOW);
    // A dialog destroyed without EndDialog (its owner went) ends the loop too.
    MessagePump::RunUntil([this] { return ended_ || hwnd() == nullptr; });
    // The owner is enabled before the dialog goes, so that the system activates it again.
    if (disableOwner) {
        EnableWindow(owner, TRUE);
    }
    if (hwnd() != nullptr) {
        DestroyWindow(hwnd());
    }
    return result_;
}

void Dialog::ShowModeless(HWND owner) {
    modal_ = false;
    Make(owner);
    ShowWindow(hwnd(), SW_SHOW);
}

void Dialog::Make(HWND owner) {
    const HWND dialog =
        CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(templateId_), owner,
                           &Dialog::Procedure, reinterpret_cast<LPARAM>(this));
    if (dialog == nullptr) {
        throw Error("A dialog could not be created: " + LastOsErrorText() + ".");
    }
}

void Dialog::EndDialog(INT_PTR result) {
    result_ = result;
    if (modal_) {
        ended_ = true;
        PostMessageW(hwnd(), WM_NULL, 0, 0);  // wakes the modal loop
    } else {
        DestroyWindow(hwnd());
    }
}

bool Dialog::TranslateKeys(HWND active, const MSG& message) {
    if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN) {
        return false;
    }
    Dialog* dialog = FromDialog(active);
    return dialog != nullptr && dialog->OnKey(message);
}

// Only a dialog made here has this procedure, so only then is its user data a Dialog.
Dialog* Dialog::FromDialog(HWND hwnd) {
    if (hwnd == nullptr ||
        GetWindowLongPtrW(hwnd, DWLP_DLGPROC) != reinterpret_cast<LONG_PTR>(&Dialog::Procedure)) {
        return nullptr;
    }
    return static_cast<Dialog*>(FromHandle(hwnd));
}

LRESULT Dialog::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            ApplyFont(WindowDpi(hwnd()));
            return OnInit() ? TRUE : FALSE;
        case WM_COMMAND:
            if (HIWORD(wParam) == BN_CLICKED && LOWORD(wParam) == IDOK) {
                OnOk();
                return 0;
            }
            if (HIWORD(wParam) == BN_CLICKED && LOWORD(wParam) == IDCANCEL) {
                OnCancel();
                return 0;
            }
            break;
        case WM_DPICHANGED:
            // The dialog manager scales the layout; the font is ours.
            ApplyFont(HIWORD(wParam));
            return DefaultMessage(message, wParam, lParam);
        default:
            break;
    }
    return Window::HandleMessage(message, wParam, lParam);
}

LRESULT Dialog::DefaultMessage(UINT, WPARAM, LPARAM) {
    handled_ = false;  // the dialog manager does the usual
    return 0;
}

void Dialog::ApplyFont(int dpi) {
    font_ = SetMessageFont(hwnd(), dpi);  // the controls let go of the old font first
}

INT_PTR CALLBACK Dialog::Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        Bind(hwnd, reinterpret_cast<Dialog*>(lParam));
    }
    auto* dialog = static_cast<Dialog*>(FromHandle(hwnd));
    if (dialog == nullptr) {
        return FALSE;
    }
    const bool lastMessage = message == WM_NCDESTROY;
    dialog->handled_ = true;
    const LRESULT result = Route(hwnd, message, wParam, lParam);
    if (lastMessage || !dialog->handled_) {
        return FALSE;
    }
    switch (message) {
        // These return their result directly rather than through DWLP_MSGRESULT.
        case WM_INITDIALOG:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORDLG:
        case WM_COMPAREITEM:
        case WM_VKEYTOITEM:
        case WM_CHARTOITEM:
        case WM_QUERYDRAGICON:
            return static_cast<INT_PTR>(result);
        default:
            SetWindowLongPtrW(hwnd, DWLP_MSGRESULT, result);
            return TRUE;
    }
}

}  // namespace quorin
