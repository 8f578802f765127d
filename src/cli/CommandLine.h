#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorin {

inline constexpr std::string_view kUsage =
    "usage: quorin-cli [--folder DIR] [--settings FILE] build | find WORD | words";

enum class CliCommand { Build, Find, Words };

struct CliRequest {
    CliCommand command = CliCommand::Build;
    std::string word;                         // for find
    std::optional<std::string> folder;        // the program folder
    std::optional<std::string> settingsFile;  // an INI file instead of the default store
};

// The arguments after the program name; options may stand before or after the command.
// Throws UsageError for anything else.
CliRequest ParseCommandLine(const std::vector<std::string>& args);

}  // namespace quorin
