#include <gtest/gtest.h>

#include <cstdlib>
#include <regex>
#include <sstream>

#include "cli/CliApp.h"
#include "platform/Path.h"
#include "platform/TextFile.h"
#include "support/TempFolder.h"

#ifdef _WIN32
#include "platform/Text.h"
#else
#include <sys/wait.h>
#endif

namespace quorin {
namespace {

struct ProcessResult {
    int exitCode = -1;
    std::string out;  // line ends as "\n" on every platform
    std::string err;
};

#ifdef _WIN32
constexpr char kCli[] = "Z:" QUORIN_CLI_PATH;  // Wine shows the build tree as drive Z:
#else
constexpr char kCli[] = QUORIN_CLI_PATH;
#endif

const std::string kUsageLine =
    "usage: quorin-cli [--folder DIR] [--settings FILE] build | find WORD | words [add WORD PATH | "
    "delete WORD]\n";

// Most runs call RunCli in this process, which is quick under Wine; a few start the program.
class CliProgramTest : public ::testing::Test {
  protected:
    ProcessResult Run(std::vector<std::string> args, bool withFolders = true) const {
        if (withFolders) {
            args.insert(args.begin(), {"--folder", program_, "--settings", settings_});
        }
        std::ostringstream out;
        std::ostringstream err;
        const int exitCode = RunCli(args, out, err);
        return {exitCode, out.str(), err.str()};
    }

    // Through the shell, with the streams caught in files.
    ProcessResult RunTheProgram(const std::vector<std::string>& args) const {
        const std::string out = JoinPath(folders_.Path(), "out.txt");
        const std::string err = JoinPath(folders_.Path(), "err.txt");
        const auto quoted = [](std::string_view text) {
            return std::string("\"").append(text).append("\"");
        };
        std::string command = quoted(kCli);
        for (const std::string& arg : args) {
            command.append(" ").append(quoted(arg));  // they hold no quotes, dollars or backquotes
        }
        command.append(" >").append(quoted(out)).append(" 2>").append(quoted(err));
#ifdef _WIN32
        const int exitCode = _wsystem(Widen(quoted(command)).c_str());  // cmd drops the outer ones
#else
        const int status = std::system(command.c_str());
        const int exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
#endif
        const auto lines = [](std::string text) {
            std::erase(text, '\r');
            return text;
        };
        return {exitCode, lines(ReadWholeFile(out)), lines(ReadWholeFile(err))};
    }

    TempFolder folders_;
    std::string root_ = folders_.MakeFolder("tree");
    std::string program_ = folders_.MakeFolder("program");
    std::string settings_ = folders_.WriteFile(
        "settings.ini", "[Main]\nConfigured=1\n[Index]\nDriveCount=1\nDrive0=" + root_ +
                            "\nFilter=.TXT \nFilterIsInclude=True\n");
};

TEST_F(CliProgramTest, BuildsFindsAndAddsListsAndDeletesWords) {
    folders_.WriteFile("tree/notes.txt", "");
    const std::string cafe = folders_.WriteFile("tree/sub/café.TXT", "");
    folders_.WriteFile("tree/sub/skipped.tmp", "");
    const ProcessResult build = Run({"build"});
    EXPECT_EQ(build.exitCode, 0) << build.err;
    EXPECT_TRUE(std::regex_match(
        build.out, std::regex("Indexed 2 folders and 2 files in \\d+\\.\\d\\d s\\.\n")))
        << build.out;

    EXPECT_EQ(Run({"find", "txt"}).out, JoinPath(root_, "notes.txt") + "\n" + cafe + "\n");
    // The program hands its arguments to RunCli whole (through wmain on Windows, where "/?" asks
    // for the usage) and passes its exit code and both streams on.
    const ProcessResult found =
        RunTheProgram({"--folder", program_, "--settings", settings_, "find", "É"});
    EXPECT_EQ(found.exitCode, 0);
    EXPECT_EQ(found.out, cafe + "\n");
#ifdef _WIN32
    EXPECT_TRUE(RunTheProgram({"/?"}).out.starts_with("usage: quorin-cli"));
#endif
    const ProcessResult refused = RunTheProgram({"rebuild"});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_EQ(refused.out, "");
    EXPECT_EQ(refused.err, "Unknown command \"rebuild\".\n" + kUsageLine);
    const ProcessResult none = Run({"find", "nothing"});
    EXPECT_EQ(none.exitCode, 0);
    EXPECT_EQ(none.out, "");

    folders_.WriteFile("program/words.txt",
                       "coffee\r\n" + JoinPath(root_, "sub") + "\r\ncafé.TXT\r\n");
    EXPECT_EQ(Run({"words"}).out, "coffee\t" + cafe + "\n");
    EXPECT_EQ(Run({"words", "add", "Notes", JoinPath(root_, "notes.txt")}).exitCode, 0);
    EXPECT_EQ(Run({"words", "delete", "COFFEE"}).exitCode, 0);
    EXPECT_EQ(Run({"words"}).out, "Notes\t" + JoinPath(root_, "notes.txt") + "\n");
}

TEST_F(CliProgramTest, HelpAndVersion) {
    const ProcessResult help = Run({"--help"}, false);  // "-h" and its places: CommandLineTest
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_TRUE(help.out.starts_with("usage: quorin-cli")) << help.out;
    for (const char* item : {"build", "find WORD", "words add WORD PATH", "words delete WORD",
                             "--folder DIR", "--settings FILE", "--version"}) {
        EXPECT_NE(help.out.find(item), std::string::npos) << item;
    }
    const ProcessResult version = Run({"--version"}, false);
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_TRUE(std::regex_match(version.out, std::regex("quorin-cli \\d+\\.\\d+\\.\\d+\n")))
        << version.out;
}

TEST_F(CliProgramTest, EveryRefusalIsOneSentenceExitCodeOneAndWordsTxtUnchanged) {
    const std::string notes = folders_.WriteFile("tree/notes.txt", "");
    const std::string assigned = "Notes\r\n" + root_ + "\r\nnotes.txt\r\n";
    const std::string damaged = "a\r\nb\r\n";
    const std::string words = JoinPath(program_, "words.txt");
    const std::string missing = JoinPath(folders_.Path(), "missing");
    const struct {
        std::string wordsTxt;
        std::vector<std::string> args;
        std::string err;
    } cases[] = {
        {damaged,
         {"words"},
         "The file \"" + words +
             "\" ends in the middle of an assignment: its line count must be a multiple of "
             "three.\n"},
        {assigned,
         {"--folder", missing, "build"},
         "The program folder \"" + missing + "\" does not exist.\n"},
        {assigned,
         {"words", "add", "x"},
         "The command \"words add\" needs the path of its file.\n" + kUsageLine},
        {assigned, {"words", "add", "  ", notes}, "The word to assign is blank.\n"},
        {assigned,
         {"words", "add", "x", missing},
         "The file \"" + missing + "\" does not exist.\n"},
        {assigned, {"words", "add", "x", root_}, "The file \"" + root_ + "\" does not exist.\n"},
        {assigned,
         {"words", "add", "NOTES", notes},
         "The word \"NOTES\" is already assigned to a file.\n"},
        {assigned, {"words", "delete", "note"}, "The word \"note\" is not assigned to a file.\n"},
    };
    for (const auto& [wordsTxt, args, err] : cases) {
        folders_.WriteFile("program/words.txt", wordsTxt);
        const bool withFolders = args[0] != "--folder";
        const ProcessResult result = Run(args, withFolders);
        EXPECT_EQ(result.exitCode, 1) << err;
        EXPECT_EQ(result.err, err);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(ReadWholeFile(words), wordsTxt) << err;
    }
}

}  // namespace
}  // namespace quorin
