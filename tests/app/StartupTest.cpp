#include <gtest/gtest.h>

#include <filesystem>

#include "QuorinVersion.h"
#include "app/Main.h"
#include "app/MainInstance.h"
#include "platform/Path.h"
#include "ui/main/MainFakes.h"

namespace quorin::test {
namespace {

constexpr std::string_view kMissingIndexText =
    "Your index file is either missing or corrupted. Would you like to generate a new index file "
    "now? (Answering no will exit the program.)";

class StartupTest : public ProgramFixture {
  protected:
    ~StartupTest() override {
        startup.reset();
        events.pump.DoEvents();
    }

    bool RunMain(std::string folder = {}) {
        startup = std::make_unique<Startup>(
            StartupServices{settings, clock, prompter, shell, index, matches, options, help,
                            folder.empty() ? program.Path() : folder, false, [this] { ++unloads; },
                            [this](frmMain& form) { connected = &form; }});
        return startup->Main();
    }
    bool IndexFileExists() const {
        return std::filesystem::exists(JoinPath(program.Path(), "index.txt"));
    }

    std::unique_ptr<Startup> startup;
    frmMain* connected = nullptr;
};

TEST_F(StartupTest, RecordsWhereAndWhichVersionTheProgramIs) {
    prompter.answers = {PromptAnswer::No};
    RunMain();
    EXPECT_EQ(settings.Get("Main", "Path", ""), program.Path() + "\\");
    EXPECT_EQ(settings.Get("Main", "VersionMajor", ""), std::to_string(QUORIN_VERSION_MAJOR));
    EXPECT_EQ(settings.Get("Main", "VersionMinor", ""), std::to_string(QUORIN_VERSION_MINOR));
    EXPECT_EQ(settings.Get("Main", "VersionRevision", ""), std::to_string(QUORIN_VERSION_REVISION));

    prompter.answers = {PromptAnswer::No};
    RunMain("C:");
    EXPECT_EQ(settings.Get("Main", "Path", ""), "C:\\\\") << "a drive root doubles the separator";
}

TEST_F(StartupTest, AnsweringNoToTheMissingIndexEndsTheProgram) {
    prompter.answers = {PromptAnswer::No};
    EXPECT_FALSE(RunMain());
    ASSERT_EQ(prompter.boxes.size(), 1u);
    EXPECT_EQ(prompter.boxes[0].title, "Missing index");
    EXPECT_EQ(prompter.boxes[0].text, kMissingIndexText);
    EXPECT_EQ(prompter.boxes[0].buttons, PromptButtons::YesNo);
    EXPECT_EQ(prompter.boxes[0].icon, PromptIcon::Question);
    EXPECT_EQ(unloads, 1);
    EXPECT_FALSE(IndexFileExists());
}

TEST_F(StartupTest, AnsweringYesShowsTheWindowAndBuildsTheIndex) {
    tree.WriteFile("sub/file.txt", "x");
    prompter.answers = {PromptAnswer::Yes};
    bool shownDuringBuild = false;
    events.onEvents = [&] { shownDuringBuild = IsWindowVisible(startup->MainForm()->hwnd()); };
    EXPECT_TRUE(RunMain());
    EXPECT_TRUE(shownDuringBuild);
    EXPECT_TRUE(IndexFileExists());
    EXPECT_EQ(unloads, 0);
    EXPECT_EQ(index.Get().LastUpdated, clock.now);
}

// The start-up build yields to the user's clicks: Go, an assignment in the Matches window and a
// message box must find the main window's services connected by then.
TEST_F(StartupTest, TheMainWindowIsConnectedBeforeTheFirstBuildLetsTheUserIn) {
    prompter.answers = {PromptAnswer::Yes};
    std::vector<bool> connectedDuringBuild;
    events.onEvents = [&] {
        connectedDuringBuild.push_back(connected != nullptr && connected == startup->MainForm());
    };
    EXPECT_TRUE(RunMain());
    ASSERT_FALSE(connectedDuringBuild.empty());
    EXPECT_EQ(connectedDuringBuild, std::vector<bool>(connectedDuringBuild.size(), true));
}

TEST_F(StartupTest, TheSessionEndingDuringTheFirstBuildEndsTheProgramAfterIt) {
    prompter.answers = {PromptAnswer::Yes};
    events.onEvents = [&] {
        if (unloads == 0 && startup->MainForm()->hwnd() != nullptr) {
            SendMessageW(startup->MainForm()->hwnd(), WM_ENDSESSION, TRUE, 0);
            EXPECT_TRUE(index.Exists());
        }
    };
    EXPECT_FALSE(RunMain());
    EXPECT_EQ(unloads, 1);
    EXPECT_FALSE(index.Exists());
    EXPECT_FALSE(IndexFileExists());
}

TEST_F(StartupTest, CancellingTheFirstBuildEndsTheProgram) {
    prompter.answers = {PromptAnswer::Yes};
    events.onEvents = [&] { index.Get().Cancel(); };
    EXPECT_FALSE(RunMain());
    ASSERT_EQ(prompter.boxes.size(), 2u);
    EXPECT_EQ(prompter.boxes[1].title, "Update Index Cancelled");
    EXPECT_EQ(unloads, 1);
    EXPECT_FALSE(IndexFileExists());
}

TEST_F(StartupTest, AnExistingIndexAsksNothing) {
    program.WriteFile("index.txt", "2023-03-14 08:00:00\r\n0\r\n");
    EXPECT_TRUE(RunMain());
    EXPECT_TRUE(prompter.boxes.empty());
    EXPECT_FALSE(IsWindowVisible(startup->MainForm()->hwnd())) << "it waits in the tray";
}

TEST_F(StartupTest, ABadSettingEndsTheProgramWithOneMessageAndWritesNothing) {
    settings.Save("Index", "Interval", "often");
    program.WriteFile("index.txt", "2023-03-14 08:00:00\r\n0\r\n");
    EXPECT_FALSE(RunMain());
    ASSERT_EQ(prompter.boxes.size(), 1u);
    EXPECT_NE(prompter.boxes[0].text.find("\"Interval\""), std::string::npos)
        << prompter.boxes[0].text;
    EXPECT_EQ(prompter.boxes[0].icon, PromptIcon::Critical);
    EXPECT_EQ(settings.Get("Main", "StartX", "none"), "none");
    EXPECT_EQ(unloads, 0);
    EXPECT_FALSE(std::filesystem::exists(JoinPath(program.Path(), "words.txt")));
}

TEST(MainInstance, OnlyTheFirstCopyRuns) {
    const MainInstance first("Local\\Quorin.Test.Instance");
    EXPECT_TRUE(first.IsFirst());
    const MainInstance second("Local\\Quorin.Test.Instance");
    EXPECT_FALSE(second.IsFirst());
}

}  // namespace
}  // namespace quorin::test
