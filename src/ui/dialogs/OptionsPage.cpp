#include "ui/dialogs/OptionsPage.h"

#include <uxtheme.h>

#include "platform/Errors.h"

namespace quorin {

namespace {

// The page's controls talk to the Options dialog; the page itself only holds them.
INT_PTR CALLBACK PageProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
        case WM_NOTIFY:
            SetWindowLongPtrW(page, DWLP_MSGRESULT,
                              SendMessageW(GetParent(page), message, wParam, lParam));
            return TRUE;
        case WM_CTLCOLOREDIT:  // the focus colours of a text box
            return static_cast<INT_PTR>(SendMessageW(GetParent(page), message, wParam, lParam));
        default:
            return FALSE;
    }
}

}  // namespace

void OptionsPage::Create(HWND dialog, int templateId) {
    page_ = CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(templateId), dialog,
                               &PageProcedure, 0);
    if (page_ == nullptr) {
        throw Error("A page of the Options dialog could not be created.");
    }
    // The page takes the tab control's own background, as a property sheet's pages do.
    EnableThemeDialogTexture(page_, ETDT_ENABLETAB);
}

void OptionsPage::Show(bool shown) {
    ShowWindow(page_, shown ? SW_SHOW : SW_HIDE);
    if (shown && !filled_) {
        filled_ = true;
        FirstShown();
    }
}

}  // namespace quorin
