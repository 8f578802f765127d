#include "cli/CommandLine.h"

#include <string_view>

#include "cli/UsageError.h"

namespace quorin {
namespace {

struct CommandShape {
    std::string_view name;
    CliCommand command;
    std::vector<std::string_view> operands;  // what the usage calls them
};

const CommandShape kCommands[] = {
    {"build", CliCommand::Build, {}},
    {"find", CliCommand::Find, {"the word to look for"}},
    {"words", CliCommand::Words, {}},
    {"words add", CliCommand::WordsAdd, {"the word to assign", "the path of its file"}},
    {"words delete", CliCommand::WordsDelete, {"the word to remove"}},
};

// "words add" and "words delete" are commands of two words.
size_t NameWords(const std::vector<std::string>& words) {
    return words.size() > 1 && words[0] == "words" && (words[1] == "add" || words[1] == "delete")
               ? 2
               : 1;
}

const CommandShape& ShapeNamed(const std::string& name) {
    for (const CommandShape& shape : kCommands) {
        if (shape.name == name) {
            return shape;
        }
    }
    throw UsageError("Unknown command \"" + name + "\".");
}

// The command and its operands, checked against what the command takes.
CliRequest RequestFor(const std::vector<std::string>& words) {
    if (words.empty()) {
        throw UsageError("No command given.");
    }
    const size_t nameWords = NameWords(words);
    const CommandShape& shape = ShapeNamed(nameWords == 2 ? words[0] + " " + words[1] : words[0]);
    const size_t given = words.size() - nameWords;
    const size_t wanted = shape.operands.size();
    if (given < wanted) {
        throw UsageError("The command \"" + std::string(shape.name) + "\" needs " +
                         std::string(shape.operands[given]) + ".");
    }
    if (given > wanted) {
        throw UsageError("The command \"" + std::string(shape.name) + "\" takes no argument \"" +
                         words[nameWords + wanted] + "\".");
    }
    CliRequest request;
    request.command = shape.command;
    if (wanted >= 1) {
        request.word = words[nameWords];
    }
    if (wanted == 2) {
        request.path = words[nameWords + 1];
    }
    return request;
}

}  // namespace

CliRequest ParseCommandLine(const std::vector<std::string>& args) {
    std::vector<std::string> words;
    std::optional<std::string> folder;
    std::optional<std::string> settingsFile;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (arg == "--help" || arg == "-h" || arg == "--version") {
            CliRequest request;
            request.command = arg == "--version" ? CliCommand::Version : CliCommand::Help;
            return request;
        }
        if (!arg.starts_with("--")) {
            words.push_back(arg);
            continue;
        }
        if (arg != "--folder" && arg != "--settings") {
            throw UsageError("Unknown option \"" + arg + "\".");
        }
        if (i + 1 == args.size()) {
            throw UsageError("The option \"" + arg + "\" needs a value.");
        }
        (arg == "--folder" ? folder : settingsFile) = args[++i];
    }
    CliRequest request = RequestFor(words);
    request.folder = folder;
    request.settingsFile = settingsFile;
    return request;
}

}  // namespace quorin
