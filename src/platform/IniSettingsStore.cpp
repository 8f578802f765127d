#include "platform/IniSettingsStore.h"

#include "platform/Errors.h"
#include "platform/FileSystem.h"
#include "platform/Text.h"
#include "platform/TextFile.h"

#include <system_error>

namespace quorin {
namespace {

bool HasLineBreak(std::string_view text) {
    return text.find_first_of("\r\n") != std::string_view::npos;
}

// True when the name reads back unchanged from its line of the file.
bool IsStorableKey(std::string_view key) {
    return !key.empty() && TrimBlanks(key) == key && !HasLineBreak(key) &&
           key.find('=') == std::string_view::npos && key.find_first_of(";#[") != 0;
}

bool IsStorableSection(std::string_view section) {
    return !section.empty() && TrimBlanks(section) == section && !HasLineBreak(section);
}

}  // namespace

IniSettingsStore::IniSettingsStore(std::string path) : path_(std::move(path)) {
    if (FileExists(path_)) {
        Load();
    }
}

std::string IniSettingsStore::Get(std::string_view section, std::string_view key,
                                  std::string_view defaultValue) const {
    return values_.Get(section, key, defaultValue);
}

void IniSettingsStore::Save(std::string_view section, std::string_view key,
                            std::string_view value) {
    if (!IsStorableSection(section) || !IsStorableKey(key) || HasLineBreak(value)) {
        throw Error("The setting \"" + std::string(key) + "\" of section \"" +
                    std::string(section) + "\" cannot be stored in the settings file \"" + path_ +
                    "\".");
    }
    values_.Save(section, key, value);
    WriteFile();
}

void IniSettingsStore::Load() {
    TextFileReader reader(path_);
    std::string line;
    std::string section;
    for (int lineNumber = 1; reader.ReadLine(line); ++lineNumber) {
        const std::string_view trimmed = TrimBlanks(line);
        if (trimmed.empty() || trimmed.front() == ';' || trimmed.front() == '#') {
            continue;
        }
        if (trimmed.front() == '[' && trimmed.back() == ']' && trimmed.size() > 2) {
            section = TrimBlanks(trimmed.substr(1, trimmed.size() - 2));
            continue;
        }
        const std::string_view text(line);
        const size_t equals = text.find('=');
        const std::string_view key = equals == std::string_view::npos
                                         ? std::string_view()
                                         : TrimBlanks(text.substr(0, equals));
        if (section.empty() || key.empty()) {
            throw FileError("Line " + std::to_string(lineNumber) + " of the settings file \"" +
                            path_ + "\" is neither a [section] header nor a key=value line.");
        }
        values_.Save(section, key, text.substr(equals + 1));
    }
}

void IniSettingsStore::WriteFile() const {
    std::string content;
    std::string section;
    values_.ForEach([&](const std::string& name, const std::string& key, const std::string& value) {
        if (name != section) {
            content += (content.empty() ? "[" : "\r\n[") + name + "]\r\n";
            section = name;
        }
        content += key + "=" + value + "\r\n";
    });
    std::error_code ignored;  // a folder that cannot be made shows up as the save's own error
    std::filesystem::create_directories(FsPath(path_).parent_path(), ignored);
    ReplaceFileWhole(path_, content);
}

}  // namespace quorin
