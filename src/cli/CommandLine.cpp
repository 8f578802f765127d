#include "cli/CommandLine.h"

#include "cli/UsageError.h"

namespace quorin {
namespace {

CliCommand CommandNamed(const std::string& name) {
    if (name == "build") {
        return CliCommand::Build;
    }
    if (name == "find") {
        return CliCommand::Find;
    }
    if (name == "words") {
        return CliCommand::Words;
    }
    throw UsageError("Unknown command \"" + name + "\".");
}

// The command and its word, checked against what the command takes.
CliRequest RequestFor(const std::vector<std::string>& words) {
    if (words.empty()) {
        throw UsageError("No command given.");
    }
    CliRequest request;
    request.command = CommandNamed(words[0]);
    const size_t wanted = request.command == CliCommand::Find ? 2 : 1;
    if (words.size() < wanted) {
        throw UsageError("The command \"find\" needs the word to look for.");
    }
    if (words.size() > wanted) {
        throw UsageError("The command \"" + words[0] + "\" takes no argument \"" + words[wanted] +
                         "\".");
    }
    if (request.command == CliCommand::Find) {
        request.word = words[1];
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
