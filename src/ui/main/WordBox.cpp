#include "ui/main/WordBox.h"

#include <commctrl.h>

#include "platform/Text.h"
#include "ui/WindowText.h"

namespace quorin {

namespace {

constexpr UINT_PTR kWordEditSubclass = 1;

// Every key of the edit field reaches the main window from here, and Enter presses Go.
LRESULT CALLBACK WordEditProcedure(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                   DWORD_PTR data) {
    const HWND form = reinterpret_cast<HWND>(data);
    if (message == WM_KEYDOWN) {
        SendMessageW(form, kWordKeyDown, wParam, 0);
        if (wParam == VK_RETURN) {
            SendMessageW(form, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
            return 0;
        }
    }
    if (message == WM_CHAR && wParam == L'\r') {
        return 0;  // already pressed Go; no beep
    }
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(edit, &WordEditProcedure, kWordEditSubclass);
    }
    return DefSubclassProc(edit, message, wParam, lParam);
}

}  // namespace

void WordBox::Attach(HWND combo, HWND form) {
    combo_ = combo;
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    GetComboBoxInfo(combo_, &info);
    SetWindowSubclass(info.hwndItem, &WordEditProcedure, kWordEditSubclass,
                      reinterpret_cast<DWORD_PTR>(form));
}

// Emptying the list empties the edit field too, so the text is put back as it was.
void WordBox::SetWords(const std::vector<std::string>& words) {
    const std::string typed = WindowText(combo_);
    DWORD selStart = 0;
    DWORD selEnd = 0;
    SendMessageW(combo_, CB_GETEDITSEL, reinterpret_cast<WPARAM>(&selStart),
                 reinterpret_cast<LPARAM>(&selEnd));
    SendMessageW(combo_, CB_RESETCONTENT, 0, 0);
    for (const std::string& word : words) {
        SendMessageW(combo_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Widen(word).c_str()));
    }
    SetText(combo_, typed);
    SendMessageW(combo_, CB_SETEDITSEL, 0, MAKELPARAM(selStart, selEnd));
}

void WordBox::Change() {
    DWORD caret = 0;
    SendMessageW(combo_, CB_GETEDITSEL, reinterpret_cast<WPARAM>(&caret), 0);
    const std::optional<CompletionEdit> edit =
        completion_.Change(WindowText(combo_), static_cast<int>(caret),
                           [this](std::string_view text) { return FindEntry(text); });
    if (edit) {
        SetText(combo_, edit->text);
        SendMessageW(combo_, CB_SETEDITSEL, 0, MAKELPARAM(edit->selStart, -1));
    }
}

std::optional<std::string> WordBox::FindEntry(std::string_view text) const {
    // An emptied box stays empty: completing it would bring the first word back as soon as the
    // user clears the box.
    if (text.empty()) {
        return std::nullopt;
    }
    const LRESULT found = SendMessageW(combo_, CB_FINDSTRING, static_cast<WPARAM>(-1),
                                       reinterpret_cast<LPARAM>(Widen(text).c_str()));
    if (found == CB_ERR) {
        return std::nullopt;
    }
    std::wstring entry(static_cast<size_t>(SendMessageW(combo_, CB_GETLBTEXTLEN, found, 0)) + 1,
                       L'\0');
    entry.resize(static_cast<size_t>(
        SendMessageW(combo_, CB_GETLBTEXT, found, reinterpret_cast<LPARAM>(entry.data()))));
    return Narrow(entry);
}

}  // namespace quorin
