#include "ui/dialogs/CommonFileChooser.h"

#include <commdlg.h>

#include <algorithm>

#include "platform/Text.h"

namespace quorin {

// The filter is written as pairs of a description and patterns separated by "|"; the dialog
// wants them separated by NULs and ended by two.
std::string CommonFileChooser::Choose(HWND owner, std::string_view filter,
                                      const std::string& fileName) {
    std::wstring filters = Widen(filter);
    std::replace(filters.begin(), filters.end(), L'|', L'\0');
    filters.append(2, L'\0');
    std::wstring file = Widen(fileName);
    file.resize(std::max<size_t>(file.size() + 1, 32768), L'\0');

    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = filters.c_str();
    dialog.lpstrFile = file.data();
    dialog.nMaxFile = static_cast<DWORD>(file.size());
    dialog.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (!GetOpenFileNameW(&dialog)) {
        return fileName;
    }
    return Narrow(file.c_str());
}

}  // namespace quorin
