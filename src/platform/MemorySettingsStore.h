#pragma once

#include "platform/SettingsStore.h"

#include <functional>
#include <map>
#include <string>

namespace quorin {

// Settings held in memory only: the store of tests, and the contents of IniSettingsStore.
class MemorySettingsStore final : public SettingsStore {
  public:
    using Visitor = std::function<void(const std::string& section, const std::string& key,
                                       const std::string& value)>;

    std::string Get(std::string_view section, std::string_view key,
                    std::string_view defaultValue) const override;
    void Save(std::string_view section, std::string_view key, std::string_view value) override;

    // Every value, section by section, with the names spelled as they were first saved.
    void ForEach(const Visitor& visit) const;

  private:
    struct Value {
        std::string key;
        std::string value;
    };
    struct Section {
        std::string name;
        std::map<std::string, Value> values;  // by upper-cased key
    };
    std::map<std::string, Section> sections_;  // by upper-cased name
};

}  // namespace quorin
