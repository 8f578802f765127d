#include "ui/FocusColors.h"

#include <iterator>
#include <set>

namespace quorin {

namespace {

std::set<HWND>& Highlighted() {
    static std::set<HWND> fields;
    return fields;
}

bool IsComboBox(HWND control) {
    wchar_t className[16] = {};
    GetClassNameW(control, className, static_cast<int>(std::size(className)));
    return lstrcmpiW(className, L"ComboBox") == 0;
}

void SelectAll(HWND control) {
    if (IsComboBox(control)) {
        SendMessageW(control, CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
    } else {
        SendMessageW(control, EM_SETSEL, 0, -1);
    }
}

// The edit field of a combo box sends its colour message through the combo box.
bool IsHighlighted(HWND field) {
    const std::set<HWND>& fields = Highlighted();
    return fields.contains(field) || fields.contains(GetParent(field));
}

}  // namespace

void HighlightControl(HWND control) {
    Highlighted().insert(control);
    SelectAll(control);
    RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void UnhighlightControl(HWND control) {
    Highlighted().erase(control);
    RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

HBRUSH FocusColors(HWND field, HDC dc) {
    if (!IsHighlighted(field)) {
        return nullptr;
    }
    SetTextColor(dc, GetSysColor(COLOR_INFOTEXT));
    SetBkColor(dc, GetSysColor(COLOR_INFOBK));
    return GetSysColorBrush(COLOR_INFOBK);
}

}  // namespace quorin
