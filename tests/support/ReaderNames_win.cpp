#include "support/ReaderNames.h"

#include <array>
#include <string_view>

#include "platform/Text.h"

namespace quorin {

namespace {

std::wstring ClassOf(HWND window) {
    std::array<wchar_t, 64> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return name.data();
}

bool NeedsLabel(HWND control) {
    static constexpr std::array<std::wstring_view, 5> kUncaptioned = {
        L"Edit", L"ComboBox", L"ListBox", L"SysListView32", L"msctls_hotkey32"};
    const std::wstring name = ClassOf(control);
    for (const std::wstring_view kind : kUncaptioned) {
        if (CompareStringOrdinal(name.c_str(), -1, kind.data(), -1, TRUE) == CSTR_EQUAL) {
            // A combo box's own edit is named with its combo box.
            return ClassOf(GetParent(control)) != L"ComboBox";
        }
    }
    return false;
}

bool IsLabel(HWND window) {
    return window != nullptr && (SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) != 0 &&
           GetWindowTextLengthW(window) > 0;
}

}  // namespace

std::vector<std::string> UnnamedControls(HWND window) {
    std::vector<std::string> unnamed;
    EnumChildWindows(
        window,
        [](HWND child, LPARAM found) -> BOOL {
            if (NeedsLabel(child) && !IsLabel(GetWindow(child, GW_HWNDPREV))) {
                reinterpret_cast<std::vector<std::string>*>(found)->push_back(
                    Narrow(ClassOf(child)) + " " + std::to_string(GetDlgCtrlID(child)));
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&unnamed));
    return unnamed;
}

}  // namespace quorin
