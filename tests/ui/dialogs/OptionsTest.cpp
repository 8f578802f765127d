#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <optional>

#include "DialogTestHelpers.h"
#include "OptionsDialog.h"
#include "platform/Errors.h"
#include "platform/Path.h"
#include "platform/Text.h"
#include "platform/TextFile.h"
#include "platform/registry/SignInStart.h"
#include "support/ReaderNames.h"
#include "ui/WindowErrors.h"
#include "ui/WindowText.h"
#include "ui/dialogs/frmOptions.h"
#include "ui/main/MainFakes.h"

namespace quorin::test {
namespace {

constexpr char kScratchRun[] = "Software\\QuorinTest\\Options\\Run";

// The main window's hotkey as the dialog sees it.
struct FakeHotkeys final : HotkeyTarget {
    bool ApplyHotkey(const std::optional<Hotkey>& hotkey) override {
        applied.push_back(hotkey);
        return true;
    }
    bool HotkeyFree(const Hotkey& hotkey) override { return hotkey != taken; }

    std::vector<std::optional<Hotkey>> applied;
    Hotkey taken{MOD_ALT, VK_SPACE};
};

// The settings as the dialog sees them, where the key named in `refused` ("Section/Key")
// cannot be written.
struct RefusingStore final : SettingsStore {
    explicit RefusingStore(SettingsStore& inner) : store(inner) {}
    std::string Get(std::string_view section, std::string_view key,
                    std::string_view defaultValue) const override {
        return store.Get(section, key, defaultValue);
    }
    void Save(std::string_view section, std::string_view key, std::string_view value) override {
        if (refused == std::string(section) + "/" + std::string(key)) {
            throw Error("The setting \"" + refused + "\" could not be saved.");
        }
        store.Save(section, key, value);
    }
    SettingsStore& store;
    std::string refused;
};

class OptionsTest : public ProgramFixture {
  protected:
    OptionsTest() {
        settings.Save("Index", "Drive0", "D:");
        settings.Save("Index", "Drive1", "q:");
        settings.Save("Index", "DriveCount", "2");
        settings.Save("Index", "Drive2", "stale");
        settings.Save("Index", "Filter", ".DOC ");
        settings.Save("Index", "FilterIsInclude", "True");
        index.Get().UpdateSettings();  // the dialog's services made the engine already
    }
    ~OptionsTest() override { RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\QuorinTest\\Options"); }

    void Open(int page) {
        dialog.Panel(page);
        dialog.ShowModeless(nullptr);
        SetForegroundWindow(dialog.hwnd());
    }
    // A control of the dialog or of one of its children, the pages.
    HWND Control(int id) const {
        HWND found = GetDlgItem(dialog.hwnd(), id);
        for (HWND page = GetWindow(dialog.hwnd(), GW_CHILD); found == nullptr && page != nullptr;
             page = GetWindow(page, GW_HWNDNEXT)) {
            found = GetDlgItem(page, id);
        }
        return found;
    }
    void Click(int id) const { ClickItem(GetParent(Control(id)), id); }
    // A user's click in a multi-select list: the item toggles and the list tells its parent.
    void ToggleInList(int id, int item) const {
        const HWND list = Control(id);
        const LRESULT selected = SendMessageW(list, LB_GETSEL, item, 0);
        SendMessageW(list, LB_SETSEL, selected > 0 ? FALSE : TRUE, item);
        SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(id, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
    }
    std::vector<std::string> Selected(int id) const {
        std::vector<std::string> texts;
        const HWND list = Control(id);
        for (int i = 0; i < SendMessageW(list, LB_GETCOUNT, 0, 0); ++i) {
            if (SendMessageW(list, LB_GETSEL, i, 0) > 0) {
                wchar_t text[64] = {};
                SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(text));
                texts.push_back(Narrow(text));
            }
        }
        return texts;
    }
    bool Shown(int id) const { return IsWindowVisible(Control(id)) != FALSE; }
    // Which page shows, by a list of each: drives, file types, words.
    std::vector<bool> Pages() const {
        return {Shown(IDC_OPTIONS_DRIVES), Shown(IDC_OPTIONS_INCLUDE), Shown(IDC_OPTIONS_WORDS)};
    }
    std::string Setting(std::string_view key) const { return settings.Get("Index", key, "-"); }

    // The user's click on a check box, which turns it over.
    void Tick(int id) const { SendMessageW(Control(id), BM_CLICK, 0, 0); }
    bool Ticked(int id) const {
        return SendMessageW(Control(id), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    void PressHotkey(WORD value) const {
        const HWND field = Control(IDC_OPTIONS_HOTKEY);
        SendMessageW(field, HKM_SETHOTKEY, value, 0);
        SendMessageW(GetParent(field), WM_COMMAND, MAKEWPARAM(IDC_OPTIONS_HOTKEY, EN_CHANGE),
                     reinterpret_cast<LPARAM>(field));
    }

    RefusingStore store{settings};
    FakeFileChooser files;
    FakeHotkeys hotkeys;
    SignInStart signIn{"\"C:\\Q\\quorin.exe\" /tray", kScratchRun};
    int addWords = 0;
    frmOptions dialog{OptionsServices{
        index.Get(), store, prompter, help, files,
        DriveSource{[] {
                        return std::vector<std::string>{"a:", "c: [SYSTEM]", "d: [DATA]",
                                                        "e: [DVD]", "n: [SHARE]"};
                    },
                    [](const std::string& root) -> unsigned {
                        return root == "a:\\" || root == "e:\\" ? 2u : root == "n:\\" ? 4u : 3u;
                    }},
        [] {
            return std::vector<std::string>{".doc", ".txt", ".bmp"};
        },
        [this] { ++addWords; }, nullptr, &hotkeys, &signIn}};
};

TEST_F(OptionsTest, PagesKeysAndHelpThenOkStoresEverySettingInItsFormAndTellsTheEngine) {
    settings.Save("Main", "Hotkey", "Alt+Space");
    signIn.TurnOn();
    Open(2);
    EXPECT_EQ(WindowText(dialog.hwnd()), "Options");
    EXPECT_EQ(UnnamedControls(dialog.hwnd()), std::vector<std::string>{});
    const HWND tabs = Control(IDC_OPTIONS_TABS);
    EXPECT_EQ(TabCtrl_GetCurSel(tabs), 2);
    EXPECT_EQ(Pages(), (std::vector<bool>{false, false, true}));
    Click(IDC_OPTIONS_HELP);
    SetFocus(tabs);
    PressKey(VK_TAB, {VK_CONTROL});
    EXPECT_EQ(dialog.CurrentPage(), 0) << "Ctrl+Tab goes round";
    EXPECT_EQ(Pages(), (std::vector<bool>{true, false, false}));
    Click(IDC_OPTIONS_HELP);
    dialog.Panel(1);
    EXPECT_EQ(TabCtrl_GetCurSel(tabs), 1);
    EXPECT_EQ(Pages(), (std::vector<bool>{false, true, false}));
    EXPECT_EQ(GetFocus(), Control(IDC_OPTIONS_INCLUDE)) << "the list of the mode chosen";
    Click(IDC_OPTIONS_HELP);
    EXPECT_EQ(help.topics, (std::vector<int32_t>{100, 80, 90}));

    // The file types follow the saved mode; a mode change keeps the types indexed.
    EXPECT_EQ(Selected(IDC_OPTIONS_INCLUDE), (std::vector<std::string>{".doc"}));
    EXPECT_TRUE(Selected(IDC_OPTIONS_EXCLUDE).empty());
    EXPECT_FALSE(IsWindowEnabled(Control(IDC_OPTIONS_EXCLUDE)));
    Tick(IDC_OPTIONS_INCLUDEMODE);  // already chosen: no change
    EXPECT_EQ(Selected(IDC_OPTIONS_INCLUDE), (std::vector<std::string>{".doc"}));
    CheckRadioButton(GetParent(Control(IDC_OPTIONS_EXCLUDEMODE)), IDC_OPTIONS_INCLUDEMODE,
                     IDC_OPTIONS_EXCLUDEMODE, IDC_OPTIONS_EXCLUDEMODE);
    Click(IDC_OPTIONS_EXCLUDEMODE);
    EXPECT_EQ(Selected(IDC_OPTIONS_EXCLUDE), (std::vector<std::string>{".txt", ".bmp"}));
    EXPECT_TRUE(IsWindowEnabled(Control(IDC_OPTIONS_EXCLUDE)));
    ToggleInList(IDC_OPTIONS_EXCLUDE, 2);

    dialog.ShowAllFoldersOption();
    EXPECT_EQ(dialog.CurrentPage(), 0);
    EXPECT_EQ(GetFocus(), Control(IDC_OPTIONS_ALLFOLDERS));
    const HWND drives = Control(IDC_OPTIONS_DRIVES);
    ASSERT_EQ(SendMessageW(drives, LB_GETCOUNT, 0, 0), 3);
    EXPECT_EQ(Selected(IDC_OPTIONS_DRIVES), (std::vector<std::string>{"d: [DATA]"}))
        << "D: matches d: [DATA]; q: is gone";
    EXPECT_TRUE(Ticked(IDC_OPTIONS_SYSTEM));
    const HWND interval = Control(IDC_OPTIONS_INTERVAL);
    EXPECT_EQ(WindowText(interval), "24");
    SetFocus(interval);
    SetText(interval, "2.50 hours");  // IntervalTextTest has the cases; leaving corrects it
    SetFocus(drives);
    EXPECT_EQ(WindowText(interval), "2.5");

    EXPECT_EQ(WindowText(Control(IDC_OPTIONS_HOTKEYINUSE)),
              "Alt+Space is in use by another program. Choose another.");
    EXPECT_TRUE(Ticked(IDC_OPTIONS_SIGNIN));
    Tick(IDC_OPTIONS_USEHOTKEY);
    EXPECT_FALSE(IsWindowEnabled(Control(IDC_OPTIONS_HOTKEY)));
    EXPECT_EQ(WindowText(Control(IDC_OPTIONS_HOTKEYINUSE)), "") << "no hotkey, nothing held";
    Tick(IDC_OPTIONS_SIGNIN);

    ToggleInList(IDC_OPTIONS_DRIVES, 0);  // c: [SYSTEM] too
    SetText(interval, "1.5");
    Click(IDC_OPTIONS_IGNORE);
    SendMessageW(Control(IDC_OPTIONS_IGNORE), BM_SETCHECK, BST_UNCHECKED, 0);
    EXPECT_FALSE(Ticked(IDC_OPTIONS_ALLFOLDERS));
    Tick(IDC_OPTIONS_ALLFOLDERS);
    Click(IDOK);
    EXPECT_TRUE(prompter.boxes.empty());
    EXPECT_FALSE(IsWindow(dialog.hwnd()));
    std::string written;
    settings.ForEach(
        [&](const std::string& section, const std::string& key, const std::string& value) {
            written += section == "Index" ? key + "=" + value + "\n" : "";
        });
    // Drive2 is beyond the count: higher keys are left alone.
    EXPECT_EQ(
        written,
        "AllFolders=True\nDrive0=c:\nDrive1=d:\nDrive2=stale\nDriveCount=2\nFilter=.TXT \n"
        "FilterIsInclude=False\nIgnoreTempFolders=0\nIncludeSystemFolders=-1\nInterval=1.5\n");
    EXPECT_EQ(index.Get().UpdateInterval, 2) << "the engine read the settings again";
    EXPECT_TRUE(index.Get().AllFolders);
    EXPECT_EQ(addWords, 0) << "no word changed";
    EXPECT_EQ(settings.Get("Main", "Hotkey", "-"), "");
    EXPECT_EQ(hotkeys.applied, (std::vector<std::optional<Hotkey>>{std::nullopt}));
    EXPECT_FALSE(signIn.IsOn());
}

TEST_F(OptionsTest, ARefusedIntervalOrAHotkeyThatCannotBeStoredOrCancelStoresNothing) {
    std::vector<std::string> reports;
    SetWindowErrorHandler([&](std::string_view message) { reports.emplace_back(message); });
    store.refused = "Main/Hotkey";
    dialog.ShowAllFoldersOption();  // before the dialog is shown
    Open(0);
    EXPECT_EQ(GetFocus(), Control(IDC_OPTIONS_ALLFOLDERS));

    dialog.Panel(1);
    SetText(Control(IDC_OPTIONS_INTERVAL), "99999999999");
    Click(IDOK);
    ASSERT_EQ(prompter.boxes.size(), 1u);
    EXPECT_NE(prompter.boxes[0].text.find("\"99999999999\""), std::string::npos);
    EXPECT_EQ(dialog.CurrentPage(), 0);
    EXPECT_EQ(GetFocus(), Control(IDC_OPTIONS_INTERVAL));

    EXPECT_FALSE(Ticked(IDC_OPTIONS_USEHOTKEY)) << "the fixture turns the hotkey off";
    EXPECT_EQ(SendMessageW(Control(IDC_OPTIONS_HOTKEY), HKM_GETHOTKEY, 0, 0),
              MAKEWORD(VK_SPACE, HOTKEYF_ALT))
        << "the default offered";
    Tick(IDC_OPTIONS_USEHOTKEY);
    Tick(IDC_OPTIONS_SIGNIN);
    SetText(Control(IDC_OPTIONS_INTERVAL), "12");
    Click(IDOK);
    SetWindowErrorHandler(nullptr);
    EXPECT_EQ(reports, std::vector<std::string>{"The setting \"Main/Hotkey\" could not be saved."});
    EXPECT_EQ(index.Get().UpdateInterval, 24);
    EXPECT_TRUE(IsWindow(dialog.hwnd()));

    dialog.Panel(2);
    WhenLoopRuns([&] {
        // Found by its title: under load the system may not have made it active yet.
        const HWND newWord = FindWindowW(L"#32770", L"Add New Word");
        ASSERT_NE(newWord, nullptr);
        EXPECT_FALSE(IsWindowEnabled(dialog.hwnd())) << "modal over the Options dialog";
        SendMessageW(newWord, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    });
    Click(IDC_OPTIONS_ADDNEW);
    Click(IDCANCEL);
    EXPECT_FALSE(IsWindow(dialog.hwnd()));
    EXPECT_EQ(Setting("Interval"), "-") << "nothing written";
    EXPECT_EQ(Setting("DriveCount"), "2");
    EXPECT_EQ(settings.Get("Main", "Hotkey", "-"), "");
    EXPECT_TRUE(hotkeys.applied.empty());
    EXPECT_FALSE(signIn.IsOn());
    EXPECT_EQ(addWords, 0) << "Cancel does not refresh the main window";
}

TEST_F(OptionsTest, AnEmptyFilterIsAskedAboutBeforeAnythingIsTakenAndYesKeepsTheSavedOne) {
    settings.Save("Main", "Hotkey", "Ctrl+Alt+Q");
    Open(0);
    const HWND field = Control(IDC_OPTIONS_HOTKEY);
    EXPECT_EQ(SendMessageW(field, HKM_GETHOTKEY, 0, 0),
              MAKEWORD('Q', HOTKEYF_CONTROL | HOTKEYF_ALT));
    EXPECT_TRUE(Ticked(IDC_OPTIONS_USEHOTKEY));
    EXPECT_TRUE(IsWindowEnabled(field));
    EXPECT_EQ(WindowText(Control(IDC_OPTIONS_HOTKEYINUSE)), "");
    EXPECT_FALSE(Ticked(IDC_OPTIONS_SIGNIN));
    PressHotkey(MAKEWORD(VK_SPACE, HOTKEYF_ALT));
    EXPECT_EQ(WindowText(Control(IDC_OPTIONS_HOTKEYINUSE)),
              "Alt+Space is in use by another program. Choose another.");
    PressHotkey(MAKEWORD(VK_F2, HOTKEYF_CONTROL));
    EXPECT_EQ(WindowText(Control(IDC_OPTIONS_HOTKEYINUSE)), "");
    Tick(IDC_OPTIONS_SIGNIN);

    dialog.Panel(1);
    ToggleInList(IDC_OPTIONS_INCLUDE, 0);
    prompter.answers = {PromptAnswer::Cancel, PromptAnswer::Yes};
    Click(IDOK);
    ASSERT_EQ(prompter.boxes.size(), 1u);
    EXPECT_EQ(prompter.boxes[0].title, "No filter specified");
    EXPECT_EQ(prompter.boxes[0].buttons, PromptButtons::YesNoCancel);
    EXPECT_TRUE(IsWindow(dialog.hwnd()));
    EXPECT_EQ(Setting("Interval"), "-");
    EXPECT_TRUE(hotkeys.applied.empty()) << "nothing is taken before OK goes through";
    Click(IDOK);
    EXPECT_EQ(Setting("Filter"), ".DOC ") << "Yes keeps the saved filter";
    EXPECT_EQ(settings.Get("Main", "Hotkey", "-"), "Ctrl+F2");
    EXPECT_EQ(hotkeys.applied, (std::vector<std::optional<Hotkey>>{Hotkey{MOD_CONTROL, VK_F2}}));
    EXPECT_TRUE(signIn.IsOn());
}

TEST_F(OptionsTest, WordsAreRemovedAfterAskingAndOkReloadsThemWhileNoStoresAnEmptyFilter) {
    index.Get().AddWord({"plan", "plan.txt", 0, "PLAN"});
    Open(2);
    const HWND words = Control(IDC_OPTIONS_WORDS);
    ASSERT_EQ(ListView_GetItemCount(words), 1);
    Click(IDC_OPTIONS_DELETE);
    EXPECT_TRUE(prompter.boxes.empty()) << "no row selected: nothing asked";

    ListView_SetItemState(words, 0, LVIS_SELECTED, LVIS_SELECTED);
    prompter.answers = {PromptAnswer::No, PromptAnswer::Yes, PromptAnswer::No};
    Click(IDC_OPTIONS_DELETE);
    ASSERT_EQ(prompter.boxes.size(), 1u);
    EXPECT_EQ(prompter.boxes[0].title, "Confirm delete");
    EXPECT_EQ(prompter.boxes[0].text,
              "Are you sure you want to disassociate the word 'plan' from the file '" +
                  index.Get().GetPath(0) + "\\plan.txt'?");
    EXPECT_EQ(ListView_GetItemCount(words), 1);
    Click(IDC_OPTIONS_DELETE);
    EXPECT_EQ(ListView_GetItemCount(words), 0);
    EXPECT_EQ(ReadWholeFile(JoinPath(program.Path(), "words.txt")), "") << "saved at once";

    dialog.Panel(1);
    ToggleInList(IDC_OPTIONS_INCLUDE, 0);
    Click(IDOK);
    EXPECT_FALSE(IsWindow(dialog.hwnd()));
    EXPECT_EQ(Setting("Filter"), "");
    EXPECT_EQ(addWords, 1);
    EXPECT_EQ(index.Get().Words().Count(), 0);
}

}  // namespace
}  // namespace quorin::test
