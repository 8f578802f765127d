#include "cli/CliApp.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#include "cli/CommandLine.h"
#include "cli/ConsolePrompter.h"
#include "cli/DefaultSettings.h"
#include "cli/IdleEventPump.h"
#include "cli/SilentBuildProgress.h"
#include "cli/UsageError.h"
#include "index/clsIndex.h"
#include "platform/FileSystem.h"
#include "platform/IniSettingsStore.h"
#include "platform/Path.h"
#include "platform/TextFile.h"
#include "ui/dialogs/NewWordModel.h"

namespace quorin {
namespace {

std::string ProgramFolder(const CliRequest& request) {
    const std::string folder = request.folder.value_or(ExecutableFolder());
    std::error_code error;
    if (!std::filesystem::is_directory(FsPath(folder), error)) {
        throw Error("The program folder \"" + folder + "\" does not exist.");
    }
    return folder;
}

std::unique_ptr<SettingsStore> OpenSettings(const CliRequest& request) {
    if (!request.settingsFile) {
        return OpenDefaultSettings();
    }
    // A mistyped name would otherwise quietly index with the default settings.
    if (!FileExists(*request.settingsFile)) {
        throw Error("The settings file \"" + *request.settingsFile + "\" does not exist.");
    }
    return std::make_unique<IniSettingsStore>(*request.settingsFile);
}

std::string FullPath(const clsIndex& index, const clsItem& item) {
    return JoinPath(index.GetPath(item.Directory), item.Filename);
}

void Build(clsIndex& index, std::ostream& out) {
    SilentBuildProgress window;
    const auto start = std::chrono::steady_clock::now();
    index.CreateIndex(true, window);
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    char seconds[32];
    std::snprintf(seconds, sizeof seconds, "%.2f", elapsed.count());
    out << "Indexed " << index.FolderCount() << " folders and " << index.ItemCount() << " files in "
        << seconds << " s.\n";
}

void Find(const clsIndex& index, const std::string& word, std::ostream& out) {
    const std::optional<MatchList> matches = index.FindMatch(word);
    if (!matches) {
        return;
    }
    for (int32_t position = 1; position <= matches->Count(); ++position) {
        out << FullPath(index, matches->Item(position)) << '\n';
    }
}

void ListWords(clsIndex& index, std::ostream& out) {
    for (const clsItem& item : index.Words()) {
        out << item.Word << '\t' << FullPath(index, item) << '\n';
    }
}

// The refusals of Add New Word as quorin-cli words them.
std::string RefusalText(NewWordFault fault, const CliRequest& request) {
    switch (fault) {
        case NewWordFault::NoWord:
            return "The word to assign is blank.";
        case NewWordFault::NoFile:
            return "The file \"" + request.path + "\" does not exist.";
        case NewWordFault::WordAssigned:
            break;
    }
    return "The word \"" + request.word + "\" is already assigned to a file.";
}

// "words.txt" is saved whole only when the word passes every check.
void AddWord(clsIndex& index, const CliRequest& request) {
    if (const std::optional<NewWordFault> fault = CheckNewWord(index, request.word, request.path)) {
        throw Error(RefusalText(*fault, request));
    }
    index.AddWord(NewWordItem(index, request.word, request.path));
}

void DeleteWord(clsIndex& index, const std::string& word) {
    if (index.Words().Item(word) == nullptr) {
        throw Error("The word \"" + word + "\" is not assigned to a file.");
    }
    index.Words().Remove(word);
    index.SaveWords();
}

void Run(const CliRequest& request, std::ostream& out, std::ostream& err) {
    if (request.command == CliCommand::Help) {
        out << kHelp;
        return;
    }
    if (request.command == CliCommand::Version) {
        out << "quorin-cli " << QUORIN_CLI_VERSION << '\n';
        return;
    }
    const std::string folder = ProgramFolder(request);
    const std::unique_ptr<SettingsStore> settings = OpenSettings(request);
    const SystemClock clock;
    ConsolePrompter prompter(err);
    IdleEventPump events;
    clsIndex index(IndexServices{*settings, clock, prompter, events, folder});
    switch (request.command) {
        case CliCommand::Build:
            Build(index, out);
            break;
        case CliCommand::Find:
            Find(index, request.word, out);
            break;
        case CliCommand::Words:
            ListWords(index, out);
            break;
        case CliCommand::WordsAdd:
            AddWord(index, request);
            break;
        case CliCommand::WordsDelete:
            DeleteWord(index, request.word);
            break;
        case CliCommand::Help:
        case CliCommand::Version:
            break;
    }
}

}  // namespace

int RunCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    try {
        Run(ParseCommandLine(args), out, err);
        out.flush();
        return 0;
    } catch (const UsageError& error) {
        err << error.what() << '\n' << kUsage << '\n';
    } catch (const std::exception& error) {
        err << error.what() << '\n';
    }
    return 1;
}

}  // namespace quorin
