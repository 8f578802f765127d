#include "platform/MemorySettingsStore.h"

#include "platform/Text.h"

namespace quorin {

std::string MemorySettingsStore::Get(std::string_view section, std::string_view key,
                                     std::string_view defaultValue) const {
    const auto found = sections_.find(ToUpper(section));
    if (found == sections_.end()) {
        return std::string(defaultValue);
    }
    const auto value = found->second.values.find(ToUpper(key));
    return value == found->second.values.end() ? std::string(defaultValue) : value->second.value;
}

void MemorySettingsStore::Save(std::string_view section, std::string_view key,
                               std::string_view value) {
    Section& stored =
        sections_.try_emplace(ToUpper(section), Section{std::string(section), {}}).first->second;
    Value& entry =
        stored.values.try_emplace(ToUpper(key), Value{std::string(key), {}}).first->second;
    entry.value = value;
}

void MemorySettingsStore::ForEach(const Visitor& visit) const {
    for (const auto& [upperName, section] : sections_) {
        for (const auto& [upperKey, entry] : section.values) {
            visit(section.name, entry.key, entry.value);
        }
    }
}

}  // namespace quorin
