#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorin {

inline constexpr std::string_view kUsage =
    "usage: quorin-cli [--folder DIR] [--settings FILE] build | find WORD | words [add WORD PATH | "
    "delete WORD]";

// What --help prints.
inline constexpr std::string_view kHelp =
    "usage: quorin-cli [--folder DIR] [--settings FILE] COMMAND\n"
    "       quorin-cli --help | -h | --version\n"
    "\n"
    "Commands:\n"
    "  build               index the drives of the settings into \"index.txt\"\n"
    "  find WORD           list the indexed files whose names contain WORD, in any case\n"
    "  words               list the assigned words and their files\n"
    "  words add WORD PATH assign WORD to the existing file PATH\n"
    "  words delete WORD   remove the assignment of WORD, in any case\n"
    "\n"
    "Options:\n"
    "  --folder DIR        the program folder, with \"index.txt\" and \"words.txt\"\n"
    "                      (default: the folder of quorin-cli)\n"
    "  --settings FILE     read the settings from this INI file instead of the user's\n"
    "  -h, --help          print this help and exit (also /? on Windows)\n"
    "  --version           print the version and exit\n";

enum class CliCommand { Build, Find, Words, WordsAdd, WordsDelete, Help, Version };

struct CliRequest {
    CliCommand command = CliCommand::Build;
    std::string word;                         // for find, words add and words delete
    std::string path;                         // for words add
    std::optional<std::string> folder;        // the program folder
    std::optional<std::string> settingsFile;  // an INI file instead of the default store
};

// The arguments after the program name; options may stand before or after the command, and
// --help, -h or --version anywhere asks for nothing else. Throws UsageError for anything else.
CliRequest ParseCommandLine(const std::vector<std::string>& args);

}  // namespace quorin
