#include "platform/registry/clsRegistry.h"

#include "platform/Text.h"
#include "platform/WinHandles.h"
#include "platform/registry/TooManyKeyNamesError.h"

#include <array>
#include <cstdint>
#include <utility>

namespace quorin {
namespace {

// Every open asks for full access; where Windows refuses that (a standard user in the classes
// root), the same open is made for reading, so that file types still show.
UniqueKey OpenKey(HKEY root, const std::string& name) {
    const std::wstring wideName = Widen(name);
    HKEY key = nullptr;
    LONG result = RegOpenKeyExW(root, wideName.c_str(), 0, KEY_ALL_ACCESS, &key);
    if (result == ERROR_ACCESS_DENIED) {
        result = RegOpenKeyExW(root, wideName.c_str(), 0, KEY_READ, &key);
    }
    return UniqueKey(result == ERROR_SUCCESS ? key : nullptr);
}

void SetValueEx(HKEY key, const std::string& valueName, DWORD type, const RegistryValue& value) {
    const std::wstring name = Widen(valueName);
    if (type == REG_SZ) {
        const std::wstring text = Widen(value.AsText());
        const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
        RegSetValueExW(key, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                       bytes);
    } else if (type == REG_DWORD) {
        const std::int32_t number = value.AsNumber();
        RegSetValueExW(key, name.c_str(), 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number),
                       sizeof number);
    }
}

// `size` is the byte count the registry reported, terminating NUL included.
RegistryValue ReadText(HKEY key, const std::wstring& name, DWORD size) {
    std::wstring buffer((size + 1) / sizeof(wchar_t), L'\0');
    DWORD bytes = static_cast<DWORD>(buffer.size() * sizeof(wchar_t));
    if (buffer.empty() ||
        RegQueryValueExW(key, name.c_str(), nullptr, nullptr,
                         reinterpret_cast<BYTE*>(buffer.data()), &bytes) != ERROR_SUCCESS) {
        return {};
    }
    buffer.pop_back();
    return RegistryValue(Narrow(buffer));
}

RegistryValue ReadNumber(HKEY key, const std::wstring& name) {
    std::int32_t number = 0;
    DWORD bytes = sizeof number;
    if (RegQueryValueExW(key, name.c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(&number),
                         &bytes) != ERROR_SUCCESS) {
        return {};
    }
    return RegistryValue(number);
}

RegistryValue QueryValueEx(HKEY key, const std::string& valueName) {
    const std::wstring name = Widen(valueName);
    DWORD type = REG_NONE;
    DWORD size = 0;
    if (RegQueryValueExW(key, name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS) {
        return {};
    }
    switch (type) {
        case REG_SZ:
        case REG_EXPAND_SZ:
            return ReadText(key, name, size);
        case REG_DWORD:
            return ReadNumber(key, name);
        default:
            return {};
    }
}

}  // namespace

void clsRegistry::CreateNewKey(const std::string& sNewKeyName, HKEY lPredefinedKey) const {
    HKEY created = nullptr;
    const LONG result =
        RegCreateKeyExW(lPredefinedKey, Widen(sNewKeyName).c_str(), 0, nullptr,
                        REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, &created, nullptr);
    const UniqueKey key(result == ERROR_SUCCESS ? created : nullptr);  // closed right here
}

void clsRegistry::SetKeyValue(const std::string& sKeyName, const std::string& sValueName,
                              const RegistryValue& vValueSetting, DWORD lValueType) const {
    const UniqueKey key = OpenKey(HKEY_CURRENT_USER, sKeyName);
    if (key) {
        SetValueEx(key.get(), sValueName, lValueType, vValueSetting);
    }
}

RegistryValue clsRegistry::QueryValue(HKEY lPredefinedKey, const std::string& sKeyName,
                                      const std::string& sValueName) const {
    const UniqueKey key = OpenKey(lPredefinedKey, sKeyName);
    return key ? QueryValueEx(key.get(), sValueName) : RegistryValue();
}

std::vector<std::string> clsRegistry::GetKeyNames(HKEY lPredefinedKey,
                                                  const std::string& sKeyName) const {
    const UniqueKey key = OpenKey(lPredefinedKey, sKeyName);
    std::vector<std::string> names;
    std::array<wchar_t, kMaxKeyNameLength> buffer{};
    // A name that does not fit the buffer fails the call, which ends the listing.
    for (DWORD i = 0;
         key && RegEnumKeyW(key.get(), i, buffer.data(), kMaxKeyNameLength) == ERROR_SUCCESS; ++i) {
        if (names.size() == kMaxKeyNames) {
            throw TooManyKeyNamesError("The registry key \"" + sKeyName + "\" has more than " +
                                           std::to_string(kMaxKeyNames) + " subkeys.",
                                       std::move(names));
        }
        names.push_back(Narrow(buffer.data()));
    }
    names.emplace_back();
    return names;
}

}  // namespace quorin
