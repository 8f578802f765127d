#include <gtest/gtest.h>

#include "cli/CommandLine.h"
#include "cli/UsageError.h"

namespace quorin {
namespace {

using Args = std::vector<std::string>;

TEST(CommandLineTest, OptionsMayStandAnywhereAndAnythingElseIsAUsageError) {
    const CliRequest find =
        ParseCommandLine({"--folder", "F", "find", "Budget 98", "--settings", "s.ini"});
    EXPECT_EQ(find.command, CliCommand::Find);
    EXPECT_EQ(find.word, "Budget 98");
    EXPECT_EQ(find.folder, "F");
    EXPECT_EQ(find.settingsFile, "s.ini");

    const CliRequest words = ParseCommandLine({"words"});
    EXPECT_EQ(words.command, CliCommand::Words);
    EXPECT_FALSE(words.folder);
    EXPECT_FALSE(words.settingsFile);
    EXPECT_EQ(ParseCommandLine({"find", ""}).word, "");  // an empty word matches everything
    const CliRequest add = ParseCommandLine({"words", "add", "add", "C:\\a.txt"});
    EXPECT_EQ(add.command, CliCommand::WordsAdd);
    EXPECT_EQ(add.word, "add");
    EXPECT_EQ(add.path, "C:\\a.txt");
    EXPECT_EQ(ParseCommandLine({"words", "delete", "x"}).command, CliCommand::WordsDelete);
    EXPECT_EQ(ParseCommandLine({"bogus", "-h"}).command, CliCommand::Help);
    EXPECT_EQ(ParseCommandLine({"--version", "--bogus"}).command, CliCommand::Version);
    for (const Args& bad :
         {Args{}, Args{"index"}, Args{"find"}, Args{"build", "x"}, Args{"find", "a", "b"},
          Args{"--verbose", "build"}, Args{"build", "--folder"}, Args{"words", "x"},
          Args{"words", "add", "a", "b", "c"}, Args{"words", "delete"}}) {
        EXPECT_THROW(ParseCommandLine(bad), UsageError) << ::testing::PrintToString(bad);
    }
}

}  // namespace
}  // namespace quorin
