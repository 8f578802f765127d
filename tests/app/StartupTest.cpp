#include <gtest/gtest.h>

#include <filesystem>

#include "QuorinVersion.h"
#include "WelcomeDialog.h"
#include "app/MainInstance.h"
#include "app/Startup.h"
#include "platform/Path.h"
#include "ui/dialogs/DialogTestHelpers.h"
#include "ui/dialogs/frmWelcome.h"
#include "ui/main/MainFakes.h"
#include "ui/splash/frmSplash.h"

namespace quorin::test {
namespace {

class StartupTest : public ProgramFixture {
  protected:
    StartupTest() { settings.Save("Main", "Configured", "1"); }
    ~StartupTest() override {
        startup.reset();
        events.pump.DoEvents();
    }

    bool RunMain(std::string folder = {}, bool showSplash = false) {
        startup = std::make_unique<Startup>(StartupServices{
            settings, clock, prompter, shell, index, matches, options, help,
            folder.empty() ? program.Path() : folder, showSplash, [this] { ++unloads; },
            [this](frmMain& form) {
                connected = &form;
                const HWND splash = FindWindowW(kSplashClass, nullptr);
                splashWhenLoaded = splash != nullptr && IsWindowVisible(splash);
            }});
        return startup->Main();
    }
    bool IndexFileExists() const {
        return std::filesystem::exists(JoinPath(program.Path(), "index.txt"));
    }

    std::unique_ptr<Startup> startup;
    frmMain* connected = nullptr;
    bool splashWhenLoaded = false;
};

TEST_F(StartupTest, AnsweringNoToTheMissingIndexEndsTheProgramAfterRecordingTheProgram) {
    prompter.answers = {PromptAnswer::No};
    EXPECT_FALSE(RunMain());
    ASSERT_EQ(prompter.boxes.size(), 1u);
    EXPECT_EQ(prompter.boxes[0],
              (ScriptedPrompter::Box{
                  "Missing index",
                  "Your index file is either missing or corrupted. Would you like to generate a "
                  "new index file now? (Answering no will exit the program.)",
                  PromptButtons::YesNo, PromptIcon::Question}));
    EXPECT_EQ(unloads, 1);
    EXPECT_FALSE(IndexFileExists());
    EXPECT_EQ(settings.Get("Main", "Path", ""), program.Path() + "\\");
    EXPECT_EQ(settings.Get("Main", "VersionMajor", ""), std::to_string(QUORIN_VERSION_MAJOR));
    EXPECT_EQ(settings.Get("Main", "VersionMinor", ""), std::to_string(QUORIN_VERSION_MINOR));
    EXPECT_EQ(settings.Get("Main", "VersionRevision", ""), std::to_string(QUORIN_VERSION_REVISION));

    prompter.answers = {PromptAnswer::No};
    RunMain("C:");
    EXPECT_EQ(settings.Get("Main", "Path", ""), "C:\\\\") << "a drive root doubles the separator";
}

// "Missing index" answered Yes. The first build stopped by the session's end (the engine kept
// until the build returns) or by Cancel: either way the program ends after it, with no index.
TEST_F(StartupTest, AnsweringYesBuildsTheIndexUnlessTheSessionEndsOrACancelStopsTheProgram) {
    for (const bool sessionEnds : {true, false}) {
        prompter.answers = {PromptAnswer::Yes};
        const int before = unloads;
        events.onEvents = [&] {
            if (!sessionEnds) {
                index.Get().Cancel();
            } else if (unloads == before && startup->MainForm()->hwnd() != nullptr) {
                SendMessageW(startup->MainForm()->hwnd(), WM_ENDSESSION, TRUE, 0);
                EXPECT_TRUE(index.Exists());
            }
        };
        EXPECT_FALSE(RunMain()) << sessionEnds;
        EXPECT_EQ(unloads, before + 1);
        EXPECT_FALSE(IndexFileExists());
        EXPECT_EQ(prompter.boxes.back().title, "Update Index Cancelled");
    }
    EXPECT_FALSE(index.Exists()) << "the cancelled build's engine is gone too";

    // Not stopped, the build yields to the user's clicks: Go, an assignment in the Matches window
    // and a message box must find the main window shown and its services connected by then.
    tree.WriteFile("sub/file.txt", "x");
    prompter.answers = {PromptAnswer::Yes};
    connected = nullptr;
    std::vector<bool> readyDuringBuild;
    events.onEvents = [&] {
        readyDuringBuild.push_back(connected != nullptr && connected == startup->MainForm() &&
                                   IsWindowVisible(startup->MainForm()->hwnd()));
    };
    EXPECT_TRUE(RunMain());
    ASSERT_FALSE(readyDuringBuild.empty());
    EXPECT_EQ(readyDuringBuild, std::vector<bool>(readyDuringBuild.size(), true));
    EXPECT_TRUE(IndexFileExists());
    EXPECT_EQ(unloads, 2) << "none more";
    EXPECT_EQ(index.Get().LastUpdated, clock.now);
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

// A machine where the wizard has never been finished.
class FirstStartTest : public StartupTest {
  protected:
    FirstStartTest() { settings.Save("Main", "Configured", ""); }

    // What the user does in the wizard once start-up shows it; records that it was shown.
    void InWizard(std::function<void(HWND)> action) {
        WhenLoopRuns([this, action = std::move(action)] {
            const HWND wizard = FindWindowW(nullptr, L"Welcome to Quorin");
            wizardShown = wizard != nullptr && IsWindowVisible(wizard);
            looked = true;
            if (wizard != nullptr) {
                action(wizard);
            }
        });
    }
    std::string Configured() const { return settings.Get("Main", "Configured", ""); }

    bool wizardShown = false;
    bool looked = false;
};

TEST_F(FirstStartTest, TheWizardsFinishBuildsTheIndexAndTheProgramRunsFromTheTray) {
    tree.WriteFile("sub/file.txt", "x");
    InWizard([](HWND wizard) {
        for (int page = 1; page < kWelcomePageCount; ++page) {
            ClickItem(wizard, IDC_WELCOME_NEXT);
        }
        ClickItem(wizard, IDC_WELCOME_FINISH);
    });
    EXPECT_TRUE(RunMain({}, true));
    EXPECT_TRUE(wizardShown);
    EXPECT_TRUE(splashWhenLoaded) << "the splash is back after the wizard until then";
    EXPECT_EQ(FindWindowW(kSplashClass, nullptr), nullptr);
    EXPECT_TRUE(IndexFileExists());
    EXPECT_TRUE(prompter.boxes.empty()) << "no \"Missing index\" after the wizard's build";
    EXPECT_EQ(Configured(), "1");
    EXPECT_EQ(settings.Get("Main", "Path", ""), program.Path() + "\\") << "written before";
    ASSERT_NE(startup->MainForm(), nullptr);
    EXPECT_FALSE(IsWindowVisible(startup->MainForm()->hwnd())) << "it waits in the tray";
}

TEST_F(FirstStartTest, ACancelledOrClosedWizardEndsTheProgramAndComesBackNextTime) {
    prompter.answers = {PromptAnswer::Yes};
    for (const bool closed : {false, true}) {
        wizardShown = false;
        InWizard([closed](HWND wizard) {
            if (closed) {
                SendMessageW(wizard, WM_CLOSE, 0, 0);
            } else {
                ClickItem(wizard, IDC_WELCOME_CANCEL);
            }
        });
        EXPECT_FALSE(RunMain());
        EXPECT_TRUE(wizardShown);
        EXPECT_EQ(startup->MainForm(), nullptr);
        EXPECT_FALSE(IndexFileExists());
        EXPECT_EQ(Configured(), "");
    }
    EXPECT_EQ(prompter.boxes.size(), 1u) << "cancelling asks, closing asks nothing";
}

TEST_F(FirstStartTest, AnInstallationWithAnIndexFromBeforeTheWizardCountsAsConfigured) {
    program.WriteFile("index.txt", "2023-03-14 08:00:00\r\n0\r\n");
    InWizard([](HWND wizard) { SendMessageW(wizard, WM_CLOSE, 0, 0); });
    EXPECT_TRUE(RunMain());
    EXPECT_EQ(Configured(), "1");
    EXPECT_TRUE(prompter.boxes.empty()) << "an existing index asks nothing";
    EXPECT_FALSE(IsWindowVisible(startup->MainForm()->hwnd())) << "it waits in the tray";
    MessagePump::RunUntil([this] { return looked; });
    EXPECT_FALSE(wizardShown);
}

TEST(MainInstance, OnlyTheFirstCopyRuns) {
    const MainInstance first("Local\\Quorin.Test.Instance");
    EXPECT_TRUE(first.IsFirst());
    const MainInstance second("Local\\Quorin.Test.Instance");
    EXPECT_FALSE(second.IsFirst());
}

}  // namespace
}  // namespace quorin::test
