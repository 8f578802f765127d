#pragma once

#include "platform/MemorySettingsStore.h"

#include <string>

namespace quorin {

// Settings in a text file of "[Section]" headers and "key=value" lines, for the platforms
// without a registry. Everything after the first "=" is the value, blanks included; blank
// lines and lines that begin with ";" or "#" are ignored. Each Save rewrites the whole file.
class IniSettingsStore final : public SettingsStore {
  public:
    // A missing file is an empty store. Throws FileError for an unreadable file or a malformed
    // line, naming the file and the line.
    explicit IniSettingsStore(std::string path);

    std::string Get(std::string_view section, std::string_view key,
                    std::string_view defaultValue) const override;
    // Throws Error when the names or the value cannot be written as a line of the file, and
    // FileError when the file cannot be written.
    void Save(std::string_view section, std::string_view key, std::string_view value) override;

  private:
    void Load();
    void WriteFile() const;

    std::string path_;
    MemorySettingsStore values_;
};

}  // namespace quorin
