#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "DialogTestHelpers.h"
#include "WelcomeDialog.h"
#include "platform/Path.h"
#include "platform/Text.h"
#include "platform/registry/ScratchClasses.h"
#include "support/ReaderNames.h"
#include "ui/Window.h"
#include "ui/WindowText.h"
#include "ui/controls/ctlTabLabel.h"
#include "ui/dialogs/FileTypeLists.h"
#include "ui/dialogs/KnownExtensions.h"
#include "ui/dialogs/frmWelcome.h"
#include "ui/main/MainFakes.h"

namespace quorin::test {
namespace {

constexpr char kShell32Icon[] = "%SystemRoot%\\system32\\shell32.dll,-152";

class WelcomeTest : public ProgramFixture {
  protected:
    WelcomeTest() {
        classes.RegisterType(".wzt", "QuorinWizard.Text", "Wizard text", kShell32Icon);
        classes.RegisterType(".wzb", "QuorinWizard.Bare", "A bare type", "");
        classes.RegisterType(".wzq", "QuorinWizard.Other", "Not in the filter", kShell32Icon);
        // All-except mode: the wizard lists what the filter names all the same.
        settings.Save("Index", "Filter", ".WZT .WZB ");
        index.Get().UpdateSettings();
    }

    void Open() {
        wizard.ShowModeless(nullptr);
        SetForegroundWindow(wizard.hwnd());
    }
    HWND Field(int id) const { return GetDlgItem(wizard.hwnd(), id); }
    bool Shown(int id) const { return IsWindowVisible(Field(id)) != FALSE; }
    bool Enabled(int id) const { return IsWindowEnabled(Field(id)) != FALSE; }
    void Click(int id) const { ClickItem(wizard.hwnd(), id); }
    void ClickTab(int tab) const { PressAndRelease(Field(IDC_WELCOME_TAB0 + tab)); }
    // The page that is shown, by the first control of each page.
    int PageShown() const {
        int shown = -1;
        for (int page = 0; page < kWelcomePageCount; ++page) {
            if (Shown(IDC_WELCOME_PAGE0 + page * 10)) {
                EXPECT_EQ(shown, -1) << "two pages at once";
                shown = page;
            }
        }
        EXPECT_EQ(shown, wizard.CurrentPage());
        EXPECT_TRUE(ctlTabLabel::From(Field(IDC_WELCOME_TAB0 + shown))->Selected());
        return shown;
    }
    // Our scratch types' rows as "type: description", with " +icon" where there is one.
    std::vector<std::string> Rows() const {
        const HWND list = Field(IDC_WELCOME_FILETYPES);
        std::vector<std::string> rows;
        for (int i = 0; i < ListView_GetItemCount(list); ++i) {
            wchar_t type[64] = {}, description[64] = {};
            ListView_GetItemText(list, i, 0, type, 64);
            LVITEMW item{};
            item.mask = LVIF_IMAGE;
            item.iItem = i;
            ListView_GetItem(list, &item);
            ListView_GetItemText(list, i, 1, description, 64);
            const std::string row =
                Narrow(type) + ": " + Narrow(description) + (item.iImage >= 0 ? " +icon" : "");
            if (row.starts_with(".wz")) {
                rows.push_back(row);
            }
        }
        return rows;
    }

    ScratchClasses classes;
    frmWelcome wizard{WelcomeServices{index.Get(), prompter, options, help}};
};

TEST_F(WelcomeTest, PagesLinksAndFileTypesThenFinishBuildsOnTheProgressPageAndCloses) {
    tree.WriteFile("sub\\plan.txt", "x");
    Open();
    EXPECT_EQ(WindowText(wizard.hwnd()), "Welcome to Quorin");
    EXPECT_EQ(UnnamedControls(wizard.hwnd()), std::vector<std::string>{});
    EXPECT_EQ(WindowText(Field(IDC_WELCOME_WELCOME)),
              "Welcome to Quorin. Quorin will index your hard drive and let you find any file, "
              "launch any program, or open any document... with just a word. \r\n\r\nThis "
              "configuration wizard will walk you through the steps of specifing what drive(s) "
              "you want to index and what files types you want to include.\r\n\r\nClick 'Next' "
              "to continue.");
    std::vector<std::string> captions{WindowText(Field(IDC_WELCOME_TAB0))};
    for (int tab = 1; tab < kWelcomePageCount; ++tab) {
        captions.push_back(WindowText(Field(IDC_WELCOME_TAB0 + tab)));
        const RECT last = Window::RectInParent(Field(IDC_WELCOME_TAB0 + tab - 1));
        const RECT box = Window::RectInParent(Field(IDC_WELCOME_TAB0 + tab));
        EXPECT_EQ(std::pair(box.left, box.top), std::pair(last.right, last.top))
            << "tab " << tab << " starts where the last ends";
    }
    EXPECT_EQ(captions, (std::vector<std::string>{"Welcome", "File Types", "Drives", "Index"}));

    EXPECT_EQ(PageShown(), 0);
    EXPECT_FALSE(Enabled(IDC_WELCOME_PREVIOUS));
    EXPECT_TRUE(Shown(IDC_WELCOME_NEXT));
    EXPECT_FALSE(Shown(IDC_WELCOME_FINISH));
    EXPECT_FALSE(Shown(IDC_WELCOME_ANIMATION)) << "the progress page waits for Finish";
    for (int page = 1; page < kWelcomePageCount; ++page) {
        Click(IDC_WELCOME_NEXT);
        EXPECT_EQ(PageShown(), page);
        EXPECT_TRUE(Enabled(IDC_WELCOME_PREVIOUS));
        const bool last = page == kWelcomePageCount - 1;
        EXPECT_EQ(Shown(IDC_WELCOME_NEXT), !last);
        EXPECT_EQ(Shown(IDC_WELCOME_FINISH), last);
    }
    EXPECT_TRUE(Shown(IDC_WELCOME_USE));
    Click(IDC_WELCOME_PREVIOUS);
    EXPECT_EQ(PageShown(), 2);
    EXPECT_TRUE(Shown(IDC_WELCOME_DRIVES));
    ClickTab(0);
    EXPECT_EQ(PageShown(), 0);
    EXPECT_FALSE(Enabled(IDC_WELCOME_PREVIOUS));
    ClickTab(3);
    EXPECT_EQ(PageShown(), 3);
    EXPECT_TRUE(Shown(IDC_WELCOME_FINISH));

    EXPECT_EQ(Rows(), (std::vector<std::string>{".wzb: A bare type", ".wzt: Wizard text +icon"}))
        << "descriptions, and no icon where there is none";
    // A column click sorts by it, a second one turns the order, a new column is ascending.
    for (const auto& [column, first] : {std::pair{1, ".wzb"}, {1, ".wzt"}, {0, ".wzb"}}) {
        NMLISTVIEW click{};
        click.hdr = {Field(IDC_WELCOME_FILETYPES), IDC_WELCOME_FILETYPES, LVN_COLUMNCLICK};
        click.iSubItem = column;
        SendMessageW(wizard.hwnd(), WM_NOTIFY, IDC_WELCOME_FILETYPES,
                     reinterpret_cast<LPARAM>(&click));
        EXPECT_TRUE(Rows().at(0).starts_with(first)) << column;
    }
    options.onModal = [&] {
        settings.Save("Index", "Filter", ".WZQ .WZB ");
        index.Get().UpdateSettings();
    };
    Click(IDC_WELCOME_CHANGE_FILETYPES);
    EXPECT_EQ(options.panels, (std::vector<int>{kOptionsFileTypes}));
    EXPECT_EQ(options.modalOwners, (std::vector<HWND>{wizard.hwnd()}));
    EXPECT_EQ(Rows(),
              (std::vector<std::string>{".wzb: A bare type", ".wzq: Not in the filter +icon"}));

    options.onModal = nullptr;
    EXPECT_EQ(WindowText(Field(IDC_WELCOME_DRIVES)), "click here.");
    Click(IDC_WELCOME_DRIVES);
    EXPECT_EQ(options.panels, (std::vector<int>{kOptionsFileTypes, kOptionsGeneral}));
    Click(IDC_WELCOME_MORE);
    EXPECT_EQ(help.topics, (std::vector<int32_t>{20}));

    bool closedDuringBuild = false;
    std::vector<bool> progressLinksAndTabs;  // shown, held, disabled: as the build saw them last
    events.onEvents = [&] {
        closedDuringBuild = closedDuringBuild || IsWindow(wizard.hwnd()) == FALSE;
        progressLinksAndTabs = {
            Shown(IDC_WELCOME_ANIMATION) && Shown(IDC_WELCOME_COUNTER) && !Shown(IDC_WELCOME_READY),
            !Enabled(IDC_WELCOME_PREVIOUS) && !Enabled(IDC_WELCOME_FINISH) &&
                !Enabled(IDC_WELCOME_CANCEL),
            !Enabled(IDC_WELCOME_TAB0) && !Enabled(IDC_WELCOME_TAB0 + 3)};
        PostMessageW(wizard.hwnd(), WM_CLOSE, 0, 0);  // the build cannot be closed away
    };
    Click(IDC_WELCOME_FINISH);
    EXPECT_EQ(progressLinksAndTabs, (std::vector<bool>{true, true, true}));
    EXPECT_FALSE(closedDuringBuild);
    EXPECT_FALSE(IsWindow(wizard.hwnd()));
    EXPECT_EQ(wizard.Result(), IDOK);
    EXPECT_NE(index.Get().LastUpdated, 0);
    const std::optional<MatchList> found = index.Get().FindMatch("plan");
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(found->Count(), 1);
    EXPECT_TRUE(prompter.boxes.empty());
}

TEST_F(WelcomeTest, KeysGoOnAndCancelAsksWhereNoStaysAndYesEndsTheWizardStillPending) {
    Open();
    EXPECT_EQ(GetFocus(), Field(IDC_WELCOME_NEXT)) << "Enter presses \"Next >\"";
    PressKey(VK_RETURN);
    PressKey(VK_RETURN);
    PressKey(VK_RETURN);
    EXPECT_EQ(PageShown(), 3);
    EXPECT_EQ(GetFocus(), Field(IDC_WELCOME_FINISH)) << "the focus follows Next to Finish";

    prompter.answers = {PromptAnswer::No, PromptAnswer::Yes};
    PressKey(VK_ESCAPE);
    ASSERT_EQ(prompter.boxes.size(), 1u);
    EXPECT_EQ(prompter.boxes[0],
              (ScriptedPrompter::Box{"Confirm cancel",
                                     "Are you sure you want to cancel? Quorin will not run "
                                     "until you complete this configuration wizard.",
                                     PromptButtons::YesNo, PromptIcon::Question}));

    PressKey(VK_TAB, {VK_CONTROL});
    EXPECT_EQ(PageShown(), 0) << "No stays; Ctrl+Tab goes round";
    PressKey(VK_TAB, {VK_CONTROL, VK_SHIFT});
    EXPECT_EQ(PageShown(), 3) << "and back with Shift";

    ClickTab(0);
    PressKey(VK_TAB);
    PressKey(VK_TAB);
    EXPECT_EQ(GetFocus(), Field(IDC_WELCOME_MORE)) << "Tab skips the disabled \"< Previous\"";
    PressKey(VK_RETURN);
    PressKey(VK_SPACE);
    EXPECT_EQ(help.topics, (std::vector<int32_t>{20, 20}));
    EXPECT_EQ(PageShown(), 0) << "Enter went to the focused link, not to Next";

    Click(IDC_WELCOME_CANCEL);
    EXPECT_EQ(prompter.boxes.size(), 2u);
    EXPECT_FALSE(IsWindow(wizard.hwnd()));
    EXPECT_EQ(wizard.Result(), IDCANCEL);
    EXPECT_EQ(help.closes, 1) << "help goes with the wizard";
    EXPECT_FALSE(std::filesystem::exists(JoinPath(program.Path(), "index.txt")));
}

// A real machine's classes root holds far more names than GetKeyNames lists; the names before
// its bound come in the registry's order, case aside, which puts the "." names first.
TEST(KnownExtensions, ListsTheClassesRootsFileTypesInItsOrderBeyondTheBound) {
    ScratchClasses classes;
    // ".qk": the other tests' scratch types, made beside these, start with ".qz".
    for (const char* name : {".qkb", ".QKA", ".qkc.gz", "QuorinTest.qkd", ".qk*"}) {
        classes.CreateKey(name);
    }
    std::vector<std::string> expected;
    for (int i = 0; i < 3000; ++i) {
        expected.push_back(".qk" + std::to_string(10000 + i));
        classes.CreateKey(expected.back());
        // Named to stand before Wine's own 51-character "Microsoft.DirectMusic..." key, whose
        // name would end the listing before the bound.
        classes.CreateKey("Class.QuorinTest" + std::to_string(10000 + i));
        classes.CreateKey("Class.QuorinTest" + std::to_string(20000 + i));
    }

    const std::vector<std::string> known = KnownExtensions(clsRegistry());
    EXPECT_TRUE(std::all_of(known.begin(), known.end(), IsFileTypeName));
    std::vector<std::string> ours;
    std::copy_if(known.begin(), known.end(), std::back_inserter(ours), [](const std::string& name) {
        return name.rfind(".qk", 0) == 0 || name == ".QKA";
    });
    expected.insert(expected.end(), {".QKA", ".qkb"});
    EXPECT_TRUE(ours == expected) << ours.size() << " of ours listed";
}

}  // namespace
}  // namespace quorin::test
