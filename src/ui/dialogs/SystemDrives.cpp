#include "ui/dialogs/SystemDrives.h"

#include <windows.h>

#include <cwctype>

#include "platform/Text.h"

namespace quorin {

namespace {

// Asking a drive with no medium for its label must not bring up the system's "insert a disk"
// box.
std::wstring VolumeLabel(const wchar_t* root) {
    const UINT previous = SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    wchar_t label[MAX_PATH + 1] = {};
    const BOOL found =
        GetVolumeInformationW(root, label, MAX_PATH + 1, nullptr, nullptr, nullptr, nullptr, 0);
    SetErrorMode(previous);
    return found ? label : L"";
}

}  // namespace

std::vector<std::string> SystemDriveEntries() {
    std::wstring roots(GetLogicalDriveStringsW(0, nullptr) + 1, L'\0');
    roots.resize(GetLogicalDriveStringsW(static_cast<DWORD>(roots.size()), roots.data()));
    std::vector<std::string> entries;
    for (const wchar_t* root = roots.c_str(); *root != L'\0'; root += wcslen(root) + 1) {
        std::wstring entry{static_cast<wchar_t>(std::towlower(root[0])), L':'};
        if (const std::wstring label = VolumeLabel(root); !label.empty()) {
            entry += L" [" + label + L"]";
        }
        entries.push_back(Narrow(entry));
    }
    return entries;
}

unsigned SystemDriveType(const std::string& root) {
    return GetDriveTypeW(Widen(root).c_str());
}

}  // namespace quorin
