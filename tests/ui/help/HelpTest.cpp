#include <windows.h>

#include <richedit.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "platform/Path.h"
#include "platform/TextFile.h"
#include "support/TempFolder.h"
#include "ui/WindowText.h"
#include "ui/help/Help.h"
#include "ui/help/HelpFile.h"
#include "ui/help/HelpViewer.h"
#include "ui/help/ProgramHelp.h"

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

TEST(ParseHelpFile,
     ReadsTopicsWithParagraphsHeadingsAndBulletsWhateverTheLineEndsAndOnlyUnderValidHeaders) {
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

    // CR LF and a byte order mark read alike.
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

    EXPECT_TRUE(ParseHelpFile("").empty());
    EXPECT_TRUE(
        ParseHelpFile("Plain text\n@topics 10 Not a header\n @topic 10 Indented\n").empty());

    // A header without a number starts no topic, and its body goes with it.
    EXPECT_TRUE(std::ranges::equal(
        ParseHelpFile("@topic Using Quorin\nlost\n@topic 12x Title\nlost too\n@topic\n"
                      "@topic 30 Good\nkept\n"),
        ParseHelpFile("@topic 30 Good\nkept\n"), same));
}

TEST(HelpFile, ThePathHasOneSeparatorATopicIsTheFirstOfItsNumberAndAMissingOneIsExplained) {
    EXPECT_EQ(HelpFilePath("C:\\"), "C:\\qn.HLP");
    EXPECT_EQ(HelpFilePath("C:\\Quorin"), "C:\\Quorin\\qn.HLP");
    EXPECT_EQ(HelpFilePath("  C:\\Program Files\\Quorin  "), "C:\\Program Files\\Quorin\\qn.HLP");
    EXPECT_EQ(HelpFilePath(" C:\\ "), "C:\\qn.HLP");

    const TempFolder folder;
    const std::string file =
        folder.WriteFile("qn.HLP", "@topic 10 Using Quorin\nType.\n@topic 10 Second\nNo.\n");
    const HelpTopic found = LoadHelpTopic(file, 10);
    EXPECT_EQ(found.title, "Using Quorin");
    EXPECT_EQ(found.blocks, (std::vector<HelpBlock>{{Kind::Paragraph, "Type."}}));

    for (const auto& [path, context, title, says] :
         {std::tuple{file, 55, "Help topic not found", "no topic number 55"},
          {JoinPath(folder.Path(), "absent.HLP"), 10, "Help is not available",
           "could not be read"}}) {
        const HelpTopic missing = LoadHelpTopic(path, context);
        EXPECT_EQ(missing.title, title);
        ASSERT_EQ(missing.blocks.size(), 1u);
        EXPECT_NE(missing.blocks[0].text.find(says), std::string::npos);
        EXPECT_NE(missing.blocks[0].text.find(path), std::string::npos);
    }
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

std::string ShownText(HWND viewer) {
    return WindowText(FindWindowExW(viewer, nullptr, MSFTEDIT_CLASS, nullptr));
}

bool IsBold(HWND viewer, LONG start, LONG end) {
    const HWND box = FindWindowExW(viewer, nullptr, MSFTEDIT_CLASS, nullptr);
    CHARRANGE range{start, end};
    SendMessageW(box, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
    CHARFORMAT2W format{};
    format.cbSize = sizeof(format);
    SendMessageW(box, EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    return (format.dwMask & CFM_BOLD) != 0 && (format.dwEffects & CFE_BOLD) != 0;
}

TEST(HelpViewer, OpensTheTopicWhereThePositionRecordSaysAndReusesTheWindowUntilClosed) {
    const TempFolder folder;
    folder.WriteFile(
        "qn.HLP",
        "@topic 10 Using Quorin\nType a word.\n@topic 20 Setting up\nChoose the drives.\n");
    ProgramHelp help(folder.Path());
    help.Setup(nullptr);
    EXPECT_EQ(help.File(), JoinPath(folder.Path(), "qn.HLP"));
    help.ShowTopic(kHelpUsingQuorin);
    const HWND viewer = FindWindowW(kHelpViewerClass, nullptr);
    ASSERT_NE(viewer, nullptr);
    EXPECT_TRUE(IsWindowVisible(viewer));
    EXPECT_EQ(GetWindow(viewer, GW_OWNER), nullptr);  // help outlives a hidden main window
    std::string text = ShownText(viewer);
    EXPECT_EQ(text.rfind("Using Quorin", 0), 0u) << text;
    EXPECT_NE(text.find("Type a word."), std::string::npos) << text;
    EXPECT_TRUE(IsBold(viewer, 0, 5));
    EXPECT_FALSE(IsBold(viewer, 14, 18));
    // 256/1024 of the screen from the left and the top, half the screen in size.
    RECT place{};
    GetWindowRect(viewer, &place);
    const int width = GetSystemMetrics(SM_CXSCREEN), height = GetSystemMetrics(SM_CYSCREEN);
    EXPECT_EQ(std::tuple(place.left, place.top, place.right, place.bottom),
              std::tuple(width / 4, height / 4, width / 4 + width / 2, height / 4 + height / 2));

    SetWindowPos(viewer, nullptr, 10, 20, 400, 300, SWP_NOZORDER);
    help.ShowTopic(kHelpSettingUp);
    EXPECT_EQ(FindWindowW(kHelpViewerClass, nullptr), viewer);
    text = ShownText(viewer);
    EXPECT_NE(text.find("Choose the drives."), std::string::npos) << text;
    EXPECT_EQ(text.find("Type a word."), std::string::npos) << text;
    GetWindowRect(viewer, &place);
    EXPECT_EQ(place.left, 10);  // the user's place is kept
    help.ShowTopic(55);         // LoadHelpTopic's explanation, as for a missing file
    EXPECT_NE(ShownText(viewer).find("no topic number 55"), std::string::npos);

    SendMessageW(viewer, WM_CLOSE, 0, 0);  // the user closes it
    EXPECT_FALSE(IsWindow(viewer));
    help.ShowTopic(kHelpSettingUp);
    const HWND reopened = FindWindowW(kHelpViewerClass, nullptr);
    ASSERT_NE(reopened, nullptr);
    EXPECT_TRUE(IsWindowVisible(reopened));
    help.Close();
    EXPECT_FALSE(IsWindow(reopened));
    help.Close();  // nothing open: nothing happens
}

TEST(HelpViewerPlace, HalfTheScreenButScaledWithTheDpiAndInsideTheWorkArea) {
    const std::tuple<RECT, RECT, int, RECT> cases[] = {
        {{0, 0, 1280, 800}, {0, 0, 1280, 770}, 96, {320, 200, 960, 600}},
        {{0, 0, 1920, 1080}, {0, 0, 1920, 1040}, 96, {480, 270, 1440, 810}},
        {{0, 0, 1280, 800}, {0, 0, 1280, 770}, 144, {320, 170, 1280, 770}},  // 960 x 600
        {{1280, 0, 2560, 800}, {1280, 0, 2560, 800}, 192, {1280, 0, 2560, 800}},
    };
    for (const auto& [monitor, workArea, dpi, expected] : cases) {
        const RECT place = HelpViewerPlace(HelpWindowPosition{}, monitor, workArea, dpi);
        EXPECT_TRUE(EqualRect(&place, &expected))
            << dpi << " dpi: " << place.left << "," << place.top << "-" << place.right << ","
            << place.bottom;
    }
}

}  // namespace
}  // namespace quorin
