#include <gtest/gtest.h>

#include <regex>

#include "ChildProcess.h"
#include "platform/Path.h"
#include "support/TempFolder.h"

namespace quorin {
namespace {

const std::string kUsageLine =
    "usage: quorin-cli [--folder DIR] [--settings FILE] build | find WORD | words\n";

class CliProgramTest : public ::testing::Test {
  protected:
    ProcessResult Run(std::vector<std::string> args, bool withFolders = true) const {
        if (withFolders) {
            args.insert(args.begin(), {"--folder", program_, "--settings", settings_});
        }
#ifdef _WIN32
        const std::string cli = "Z:" QUORIN_CLI_PATH;  // Wine shows the build tree as drive Z:
#else
        const std::string cli = QUORIN_CLI_PATH;
#endif
        return RunProgram(cli, args, folders_.Path());
    }

    TempFolder folders_;
    std::string root_ = folders_.MakeFolder("tree");
    std::string program_ = folders_.MakeFolder("program");
    std::string settings_ = folders_.WriteFile(
        "settings.ini", "[Main]\nConfigured=1\n[Index]\nDriveCount=1\nDrive0=" + root_ +
                            "\nFilter=.TXT \nFilterIsInclude=True\n");
};

TEST_F(CliProgramTest, BuildsFindsAndListsWords) {
    folders_.WriteFile("tree/notes.txt", "");
    const std::string cafe = folders_.WriteFile("tree/sub/café.TXT", "");
    folders_.WriteFile("tree/sub/skipped.tmp", "");
    const ProcessResult build = Run({"build"});
    EXPECT_EQ(build.exitCode, 0) << build.err;
    EXPECT_TRUE(std::regex_match(
        build.out, std::regex("Indexed 2 folders and 2 files in \\d+\\.\\d\\d s\\.\n")))
        << build.out;

    EXPECT_EQ(Run({"find", "txt"}).out, JoinPath(root_, "notes.txt") + "\n" + cafe + "\n");
    EXPECT_EQ(Run({"find", "É"}).out, cafe + "\n");
    const ProcessResult none = Run({"find", "nothing"});
    EXPECT_EQ(none.exitCode, 0);
    EXPECT_EQ(none.out, "");

    folders_.WriteFile("program/words.txt",
                       "coffee\r\n" + JoinPath(root_, "sub") + "\r\ncafé.TXT\r\n");
    EXPECT_EQ(Run({"words"}).out, "coffee\t" + cafe + "\n");
}

TEST_F(CliProgramTest, FailuresAreOneSentenceAndExitCodeOne) {
    const std::string words = folders_.WriteFile("program/words.txt", "a\r\nb\r\n");
    const std::string missing = JoinPath(folders_.Path(), "missing");
    const struct {
        ProcessResult result;
        std::string err;
    } cases[] = {
        {Run({"words"}), "The file \"" + words +
                             "\" ends in the middle of an assignment: its line count must be a "
                             "multiple of three.\n"},
        {Run({"--folder", missing, "build"}, false),
         "The program folder \"" + missing + "\" does not exist.\n"},
        {Run({"rebuild"}), "Unknown command \"rebuild\".\n" + kUsageLine},
    };
    for (const auto& [result, err] : cases) {
        EXPECT_EQ(result.exitCode, 1) << err;
        EXPECT_EQ(result.err, err);
        EXPECT_EQ(result.out, "");
    }
}

}  // namespace
}  // namespace quorin
