// Every visible control of every window lies wholly inside its window's client area, whatever
// frame and DPI the system draws with. at_metrics.sh runs this with the window metrics of
// Windows 10 and 11 at 96, 144 and 192 dpi.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "WelcomeDialog.h"
#include "platform/registry/ScratchClasses.h"
#include "ui/Dpi.h"
#include "ui/WindowText.h"
#include "ui/dialogs/DialogTestHelpers.h"
#include "ui/dialogs/frmNewWord.h"
#include "ui/dialogs/frmOptions.h"
#include "ui/dialogs/frmWelcome.h"
#include "ui/help/HelpViewer.h"
#include "ui/main/MainWindowFixture.h"
#include "ui/matches/frmMatches.h"
#include "ui/splash/frmSplash.h"

namespace quorin::test {
namespace {

// The visible controls, at any depth, not wholly inside the window's client area.
void ExpectInside(HWND window, const std::string& what) {
    struct Walk {
        HWND window;
        RECT client;
        std::vector<std::string> outside;
    } walk{window, {}, {}};
    GetClientRect(window, &walk.client);
    EnumChildWindows(
        window,
        [](HWND child, LPARAM param) {
            Walk& found = *reinterpret_cast<Walk*>(param);
            RECT rect{};
            GetWindowRect(child, &rect);
            MapWindowPoints(nullptr, found.window, reinterpret_cast<POINT*>(&rect), 2);
            RECT joined{};
            UnionRect(&joined, &rect, &found.client);
            if (IsWindowVisible(child) && !EqualRect(&joined, &found.client)) {
                found.outside.push_back(
                    std::to_string(GetDlgCtrlID(child)) + " \"" + WindowText(child) + "\" right " +
                    std::to_string(rect.right) + " bottom " + std::to_string(rect.bottom));
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&walk));
    EXPECT_EQ(walk.outside, std::vector<std::string>{})
        << what << " at " << WindowDpi(window) << " dpi";
}

TEST_F(MainWindowTest, EveryPanelAndTheProgressOfABuild) {
    tree.WriteFile("sub\\plan.txt", "x");
    Load().Show();
    for (int tab = kGoPanel; tab <= kHelpPanel; ++tab) {
        ClickTab(tab);
        ExpectInside(Window(), "main window, " + Text(kIdTab + tab));
    }
    // What the Exit tab shows while the program unloads.
    ShowWindow(GetDlgItem(Window(), kIdPanel + int{kExitPanel}), SW_SHOW);
    ExpectInside(Window(), "main window, Exit");
    ShowWindow(GetDlgItem(Window(), kIdPanel + int{kExitPanel}), SW_HIDE);

    bool checked = false;
    events.onEvents = [&] {
        if (!checked && PanelShown(kProgressPanel)) {
            checked = true;
            ExpectInside(Window(), "main window, progress");
        }
    };
    Build();
    EXPECT_TRUE(checked);
}

TEST_F(ProgramFixture, MatchesAtItsDesignedAndMinimumSizesHelpAndSplash) {
    frmMatches& form = frmMatches::Load({index.Get(), shell, settings, prompter, [] {}, nullptr});
    form.Word("plan");
    form.Show();
    ExpectInside(form.hwnd(), "Matches, designed size");
    SetWindowPos(form.hwnd(), nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
    ExpectInside(form.hwnd(), "Matches, minimum size");
    DestroyWindow(form.hwnd());

    HelpViewer helpWindow;
    helpWindow.ShowTopic({10, "Using Quorin", {{HelpBlockKind::Paragraph, "Type a word."}}},
                         {100, 100, 740, 500});
    ExpectInside(FindWindowW(kHelpViewerClass, nullptr), "help window");
    frmSplash splash;
    splash.Show();
    ExpectInside(FindWindowW(kSplashClass, nullptr), "splash");
}

TEST_F(ProgramFixture, WizardAtEachPageAndItsProgress) {
    ScratchClasses classes;
    tree.WriteFile("sub\\plan.txt", "x");
    frmWelcome wizard{WelcomeServices{index.Get(), prompter, options, help}};
    wizard.ShowModeless(nullptr);
    for (int page = 0; page < kWelcomePageCount; ++page) {
        PressAndRelease(GetDlgItem(wizard.hwnd(), IDC_WELCOME_TAB0 + page));
        ExpectInside(wizard.hwnd(), "wizard, page " + std::to_string(page + 1));
    }
    bool checked = false;
    events.onEvents = [&] {
        if (!checked && IsWindowVisible(GetDlgItem(wizard.hwnd(), IDC_WELCOME_COUNTER))) {
            checked = true;
            ExpectInside(wizard.hwnd(), "wizard, progress");
        }
    };
    ClickItem(wizard.hwnd(), IDC_WELCOME_FINISH);
    EXPECT_TRUE(checked);
}

TEST_F(ProgramFixture, OptionsAtEachPageAndAddNewWord) {
    FakeFileChooser files;
    const DriveSource drives{[] { return std::vector<std::string>{"c: [SYSTEM]"}; },
                             [](const std::string&) { return 3u; }};
    const auto extensions = [] { return std::vector<std::string>{".doc", ".txt"}; };
    frmOptions dialog{
        OptionsServices{index.Get(), settings, prompter, help, files, drives, extensions, [] {}}};
    for (int page = kOptionsGeneral; page <= kOptionsWords; ++page) {
        dialog.Panel(page);
        dialog.ShowModeless(nullptr);
        ExpectInside(dialog.hwnd(), "Options, page " + std::to_string(page + 1));
    }
    frmNewWord newWord{NewWordServices{index.Get(), prompter, files, nullptr}};
    newWord.ShowModeless(nullptr);
    ExpectInside(newWord.hwnd(), "Add New Word");
}

}  // namespace
}  // namespace quorin::test
