#pragma once

#include "platform/registry/RegistryValue.h"

#include <windows.h>

#include <string>
#include <vector>

namespace quorin {

// Thin wrapper over the registry: every call opens its key, does one thing and closes it again.
// Reads and writes absorb their failures; nothing is reported to the caller.
class clsRegistry {
  public:
    // Creates the key (or opens it when it exists) and closes it at once.
    void CreateNewKey(const std::string& sNewKeyName, HKEY lPredefinedKey) const;

    // Writes one value of an existing key under HKEY_CURRENT_USER. REG_SZ stores the value's
    // text, REG_DWORD its number; any other type writes nothing.
    void SetKeyValue(const std::string& sKeyName, const std::string& sValueName,
                     const RegistryValue& vValueSetting, DWORD lValueType) const;

    // REG_SZ and REG_EXPAND_SZ come back as text (unexpanded), REG_DWORD as a number; every
    // other type, a missing key or value, or any failure gives the empty value. An empty
    // sValueName reads the key's default value.
    RegistryValue QueryValue(HKEY lPredefinedKey, const std::string& sKeyName,
                             const std::string& sValueName) const;

    // The names of the key's direct subkeys followed by one empty element. The listing ends
    // at the first name of kMaxKeyNameLength characters or more, which it leaves out. More
    // than kMaxKeyNames names throw TooManyKeyNamesError, an OutOfRangeError carrying
    // the names listed before the bound.
    std::vector<std::string> GetKeyNames(HKEY lPredefinedKey, const std::string& sKeyName) const;

    static constexpr size_t kMaxKeyNames = 5001;
    static constexpr DWORD kMaxKeyNameLength = 50;
};

}  // namespace quorin
