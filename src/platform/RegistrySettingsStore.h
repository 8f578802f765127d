#pragma once

#include "platform/SettingsStore.h"

#include <string>

namespace quorin {

// Settings as REG_SZ values under HKEY_CURRENT_USER\<root>\<section>. Tests pass a scratch
// root of their own and delete it afterwards.
class RegistrySettingsStore final : public SettingsStore {
  public:
    explicit RegistrySettingsStore(std::string rootKeyPath = "Software\\Quorin");

    // A missing key or value, or one that is not a string, gives the default.
    std::string Get(std::string_view section, std::string_view key,
                    std::string_view defaultValue) const override;
    // Throws Error with Windows' reason when the value cannot be written.
    void Save(std::string_view section, std::string_view key, std::string_view value) override;

  private:
    std::wstring SectionPath(std::string_view section) const;

    std::string rootKeyPath_;
};

}  // namespace quorin
