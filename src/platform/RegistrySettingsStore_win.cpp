#include "platform/RegistrySettingsStore.h"

#include "platform/Errors.h"
#include "platform/OsError.h"
#include "platform/Text.h"
#include "platform/WinHandles.h"

namespace quorin {
namespace {

// The value's text, or false when it is missing or not a string. Loops because the value may
// grow between asking for its size and reading it.
bool QueryString(HKEY key, const std::wstring& name, std::wstring& text) {
    DWORD type = 0;
    DWORD size = 0;
    LSTATUS status = RegQueryValueExW(key, name.c_str(), nullptr, &type, nullptr, &size);
    std::wstring buffer;
    while (status == ERROR_SUCCESS || status == ERROR_MORE_DATA) {
        if (type != REG_SZ && type != REG_EXPAND_SZ) {
            return false;
        }
        buffer.assign(size / sizeof(wchar_t) + 1, L'\0');
        size = static_cast<DWORD>(buffer.size() * sizeof(wchar_t));
        status = RegQueryValueExW(key, name.c_str(), nullptr, &type,
                                  reinterpret_cast<BYTE*>(buffer.data()), &size);
        if (status == ERROR_SUCCESS) {
            // Stored strings need not end in a NUL; cut at the first one or at the data's end.
            buffer.resize(size / sizeof(wchar_t));
            text.assign(buffer.c_str());
            return type == REG_SZ || type == REG_EXPAND_SZ;
        }
    }
    return false;
}

}  // namespace

RegistrySettingsStore::RegistrySettingsStore(std::string rootKeyPath)
    : rootKeyPath_(std::move(rootKeyPath)) {}

std::wstring RegistrySettingsStore::SectionPath(std::string_view section) const {
    return Widen(rootKeyPath_ + "\\" + std::string(section));
}

std::string RegistrySettingsStore::Get(std::string_view section, std::string_view key,
                                       std::string_view defaultValue) const {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, SectionPath(section).c_str(), 0, KEY_QUERY_VALUE,
                      &opened) != ERROR_SUCCESS) {
        return std::string(defaultValue);
    }
    const UniqueKey sectionKey(opened);
    std::wstring text;
    return QueryString(sectionKey.get(), Widen(key), text) ? Narrow(text)
                                                           : std::string(defaultValue);
}

void RegistrySettingsStore::Save(std::string_view section, std::string_view key,
                                 std::string_view value) {
    HKEY created = nullptr;
    LSTATUS status =
        RegCreateKeyExW(HKEY_CURRENT_USER, SectionPath(section).c_str(), 0, nullptr,
                        REG_OPTION_NON_VOLATILE, KEY_SET_VALUE, nullptr, &created, nullptr);
    const UniqueKey sectionKey(status == ERROR_SUCCESS ? created : nullptr);
    if (status == ERROR_SUCCESS) {
        const std::wstring text = Widen(value);
        status = RegSetValueExW(sectionKey.get(), Widen(key).c_str(), 0, REG_SZ,
                                reinterpret_cast<const BYTE*>(text.c_str()),
                                static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    }
    if (status != ERROR_SUCCESS) {
        throw Error("The setting \"" + std::string(key) + "\" of section \"" +
                    std::string(section) + "\" could not be saved in the registry: " +
                    OsErrorText(static_cast<unsigned long>(status)) + ".");
    }
}

}  // namespace quorin
