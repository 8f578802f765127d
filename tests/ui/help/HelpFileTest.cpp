#include "ui/help/HelpFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "platform/Path.h"
#include "platform/TextFile.h"
#include "support/TempFolder.h"
#include "ui/help/Help.h"

namespace quorin {
namespace {

using Kind = HelpBlockKind;

constexpr std::string_view kTwoTopics =
    "# qn.HLP for the tests\n"
    "Text before the first topic belongs to none.\n"
    "@topic 10   Using Quorin  \n"
    "Quorin opens files\n"
    "  from one word.\n"
    "# a comment inside a topic\n"
    "\n"
    "## The tray icon\n"
    "Click it.\n"
    "- Left click shows\n"
    "  the window.\n"
    "- Right click opens the menu.\n"
    "\n"
    "\n"
    "Last paragraph.\n"
    "@topic 20 Setting up\n"
    "Choose drives.";

TEST(ParseHelpFile, ReadsTopicsWithParagraphsHeadingsAndBullets) {
    const std::vector<HelpTopic> topics = ParseHelpFile(kTwoTopics);
    ASSERT_EQ(topics.size(), 2u);
    EXPECT_EQ(topics[0].context, 10);
    EXPECT_EQ(topics[0].title, "Using Quorin");
    const std::vector<HelpBlock> expected = {
        {Kind::Paragraph, "Quorin opens files from one word."},
        {Kind::Heading, "The tray icon"},
        {Kind::Paragraph, "Click it."},
        {Kind::Bullet, "Left click shows the window."},
        {Kind::Bullet, "Right click opens the menu."},
        {Kind::Paragraph, "Last paragraph."},
    };
    EXPECT_EQ(topics[0].blocks, expected);
    EXPECT_EQ(topics[1].context, 20);
    EXPECT_EQ(topics[1].title, "Setting up");
    EXPECT_EQ(topics[1].blocks, (std::vector<HelpBlock>{{Kind::Paragraph, "Choose drives."}}));
}

TEST(ParseHelpFile, ReadsCrLfAndLfAndABomAlike) {
    std::string crlf;
    for (char c : kTwoTopics) {
        crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    }
    const auto same = [](const HelpTopic& a, const HelpTopic& b) {
        return std::tie(a.context, a.title, a.blocks) == std::tie(b.context, b.title, b.blocks);
    };
    for (const std::string& text : {crlf, "\xEF\xBB\xBF" + crlf}) {
        EXPECT_TRUE(std::ranges::equal(ParseHelpFile(text), ParseHelpFile(kTwoTopics), same));
    }
}

TEST(ParseHelpFile, FindsNoTopicsWithoutValidHeaders) {
    EXPECT_TRUE(ParseHelpFile("").empty());
    EXPECT_TRUE(
        ParseHelpFile("Plain text\n@topics 10 Not a header\n @topic 10 Indented\n").empty());

    // A header without a number starts no topic, and its body goes with it.
    const std::vector<HelpTopic> topics = ParseHelpFile(
        "@topic Using Quorin\nlost\n@topic 12x Title\nlost too\n@topic\n@topic 30 Good\nkept\n");
    ASSERT_EQ(topics.size(), 1u);
    EXPECT_EQ(topics[0].context, 30);
    EXPECT_EQ(topics[0].blocks, (std::vector<HelpBlock>{{Kind::Paragraph, "kept"}}));
}

TEST(FindHelpTopic, GivesTheFirstTopicOfANumberOrNone) {
    const std::vector<HelpTopic> topics =
        ParseHelpFile("@topic 10 First\n@topic 20 Other\n@topic 10 Second\n");
    ASSERT_NE(FindHelpTopic(topics, 10), nullptr);
    EXPECT_EQ(FindHelpTopic(topics, 10)->title, "First");
    EXPECT_EQ(FindHelpTopic(topics, 20)->title, "Other");
    EXPECT_EQ(FindHelpTopic(topics, 80), nullptr);
}

TEST(HelpFilePath, AppendsTheFileNameWithOneSeparator) {
    EXPECT_EQ(HelpFilePath("C:\\"), "C:\\qn.HLP");
    EXPECT_EQ(HelpFilePath("C:\\Quorin"), "C:\\Quorin\\qn.HLP");
    EXPECT_EQ(HelpFilePath("  C:\\Program Files\\Quorin  "), "C:\\Program Files\\Quorin\\qn.HLP");
    EXPECT_EQ(HelpFilePath(" C:\\ "), "C:\\qn.HLP");
}

TEST(LoadHelpTopic, ExplainsAMissingTopicOrFileInTheTopicItself) {
    const TempFolder folder;
    const std::string file = folder.WriteFile("qn.HLP", "@topic 10 Using Quorin\nType.\n");

    const HelpTopic found = LoadHelpTopic(file, 10);
    EXPECT_EQ(found.title, "Using Quorin");
    EXPECT_EQ(found.blocks, (std::vector<HelpBlock>{{Kind::Paragraph, "Type."}}));

    const HelpTopic missingTopic = LoadHelpTopic(file, 55);
    EXPECT_EQ(missingTopic.title, "Help topic not found");
    ASSERT_EQ(missingTopic.blocks.size(), 1u);
    EXPECT_NE(missingTopic.blocks[0].text.find("no topic number 55"), std::string::npos);
    EXPECT_NE(missingTopic.blocks[0].text.find(file), std::string::npos);

    const std::string absent = JoinPath(folder.Path(), "absent.HLP");
    const HelpTopic missingFile = LoadHelpTopic(absent, 10);
    EXPECT_EQ(missingFile.title, "Help is not available");
    ASSERT_EQ(missingFile.blocks.size(), 1u);
    EXPECT_NE(missingFile.blocks[0].text.find(absent), std::string::npos);
    EXPECT_NE(missingFile.blocks[0].text.find("could not be read"), std::string::npos);
}

TEST(ShippedHelpFile, HasEveryTopicTheProgramOpens) {
    const std::string file = HelpFilePath(ExecutableFolder());
    const std::vector<HelpTopic> topics = ParseHelpFile(ReadWholeFile(file));
    EXPECT_EQ(topics.size(), 7u) << "a header that does not parse loses its topic";
    for (int context : {kHelpUsingQuorin, kHelpSettingUp, kHelpAboutQuorin, kHelpAboutVeltaro,
                        kHelpGeneralOptions, kHelpFileTypeOptions, kHelpWordOptions}) {
        SCOPED_TRACE(context);
        const HelpTopic* topic = FindHelpTopic(topics, context);
        ASSERT_NE(topic, nullptr);
        EXPECT_FALSE(topic->title.empty());
        EXPECT_GE(topic->blocks.size(), 2u);
    }
}

}  // namespace
}  // namespace quorin
