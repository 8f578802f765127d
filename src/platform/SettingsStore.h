#pragma once

#include <string>
#include <string_view>

namespace quorin {

// The per-user settings of application "Quorin": string values by section and key.
// Keys and sections compare without regard to case, as in the registry.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    virtual std::string Get(std::string_view section, std::string_view key,
                            std::string_view defaultValue) const = 0;
    virtual void Save(std::string_view section, std::string_view key, std::string_view value) = 0;
};

}  // namespace quorin
