#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "platform/FileSystem.h"
#include "platform/OleDate.h"
#include "platform/Path.h"
#include "support/ReaderNames.h"
#include "ui/Dpi.h"
#include "ui/Hourglass.h"
#include "ui/WindowErrors.h"
#include "ui/dialogs/DialogTestHelpers.h"
#include "ui/main/MainWindowFixture.h"

namespace quorin::test {
namespace {

std::vector<std::string> ChildTexts(HWND parent) {
    std::vector<std::string> texts;
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        if (const std::string text = WindowText(child); !text.empty()) {
            texts.push_back(text);
        }
    }
    return texts;
}

RECT ScreenRect(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return rect;
}

TEST_F(MainWindowTest, LoadsHiddenWithTabsPanelsAndEveryText) {
    Load();
    EXPECT_EQ(UnnamedControls(Window()), std::vector<std::string>{}) << "a reader names each";
    EXPECT_FALSE(IsWindowVisible(Window()));
    EXPECT_EQ(WindowText(Window()), "Quorin");
    const int dpi = WindowDpi(Window());
    RECT client{};
    GetClientRect(Window(), &client);
    EXPECT_EQ(PixelsToTwips(client.right, dpi), 5310);
    RECT counter = ScreenRect(Control(kIdCounter));  // on the progress panel
    MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&counter), 2);
    EXPECT_EQ(client.bottom - counter.bottom, TwipsToPixels(90, dpi))
        << "the lowest control, 90 twips above the bottom edge";

    RECT previous = ScreenRect(Control(kIdTab));
    for (int i = 1; i < 4; ++i) {
        const RECT tab = ScreenRect(Control(kIdTab + i));
        EXPECT_EQ(tab.left, previous.right) << "tab " << i << " touches the one before";
        previous = tab;
    }
    EXPECT_EQ(Window::RectInParent(Control(kIdTab + 4)).right,
              client.right - TwipsToPixels(60, dpi))
        << "60 twips from the right edge";

    EXPECT_EQ(PanelsShown(), (std::vector<bool>{true, false, false, false, false, false}));

    EXPECT_EQ(ChildTexts(Window()),
              (std::vector<std::string>{"Go", "Index", "Options", "Help", "Exit"}));
    const std::vector<std::string> panelTexts[kPanelCount] = {
        {"Enter word:", "Go"},
        {"Index last updated:", "Index automatically updated every 1 day(s).", "Update Index Now"},
        {"General Options", "Change file types that are indexed", "Add/delete assigned words"},
        {"Click here for help", "Quorin", "Veltaro, Inc."},
        {"Please wait while Quorin shuts down..."},
        {"Please wait while Quorin indexes your hard drive. Depending on how much stuff you have, "
         "this may take a few minutes...",
         "# of folders indexed:", "Cancel"},
    };
    for (int i = 0; i < kPanelCount; ++i) {
        const HWND panel = GetDlgItem(Window(), kIdPanel + i);
        EXPECT_EQ(ChildTexts(panel), panelTexts[i]) << "panel " << i;
        const RECT place = Window::RectInParent(panel);
        EXPECT_EQ(place.left, 0);
        EXPECT_EQ(PixelsToTwips(place.top, dpi), 240);
    }

    const TrayRecord& record = tray.Record();  // its tip: the build test's
    EXPECT_EQ(record.hWnd, static_cast<uint32_t>(reinterpret_cast<uintptr_t>(Window())));
    EXPECT_NE(record.hIcon, 0u);
    SendMessageW(Window(), RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
    EXPECT_EQ(trayCalls, (std::vector<std::pair<DWORD, HWND>>(2, {NIM_ADD, Window()})))
        << "added at load, and again when Explorer restarts";
}

// The build is below the session-end handler on the stack: the engine must outlive it.
TEST_F(MainWindowTest, ExitTabAndSessionEndUnloadSavingThePositionAndRemovingTheEngine) {
    tree.WriteFile("docs/a.txt", "a");
    Load();
    HWND window = Window();
    SetWindowPos(window, nullptr, 150, 90, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    SendMessageW(window, WM_ENDSESSION, FALSE, 0);
    EXPECT_EQ(unloads, 0) << "another program kept the session going";
    bool engineKept = false;
    int unloadsDuringBuild = -1;
    std::string placeSavedAtOnce;
    events.onEvents = [&] {
        if (unloadsDuringBuild < 0) {
            SendMessageW(window, WM_ENDSESSION, TRUE, 0);
            engineKept = index.Exists() && index.Get().Indexing();
            unloadsDuringBuild = unloads;
            placeSavedAtOnce = settings.Get("Main", "StartX", "");
        }
    };
    Build();
    EXPECT_TRUE(engineKept);
    EXPECT_EQ(unloadsDuringBuild, 0);
    EXPECT_EQ(placeSavedAtOnce, std::to_string(PixelsToTwips(150, ScreenDpi())))
        << "the process may end before the build returns";
    ASSERT_EQ(prompter.boxes.size(), 1u);
    EXPECT_EQ(prompter.boxes[0].title, "Update Index Cancelled");
    EXPECT_EQ(unloads, 1);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_FALSE(index.Exists());
    EXPECT_FALSE(std::filesystem::exists(JoinPath(program.Path(), "index.txt")));

    events.onEvents = nullptr;
    Load();
    window = Window();
    SetWindowPos(window, nullptr, 200, 120, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    index.Get();
    ClickTab(4);
    EXPECT_EQ(unloads, 2);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(trayCalls.back(), std::make_pair(DWORD{NIM_DELETE}, window));
    EXPECT_FALSE(index.Exists());
    EXPECT_EQ(settings.Get("Main", "StartX", ""), std::to_string(PixelsToTwips(200, ScreenDpi())));
    EXPECT_EQ(settings.Get("Main", "StartY", ""), std::to_string(PixelsToTwips(120, ScreenDpi())));

    Load();
    SendMessageW(Window(), WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(unloads, 3) << "the session ending while idle unloads at once";
}

// Each change of the main window's visibility and state, in order: visible, minimised.
HWND watchedWindow = nullptr;
std::vector<std::pair<bool, bool>> seenStates;

LRESULT CALLBACK RecordStates(int code, WPARAM wParam, LPARAM lParam) {
    const auto* call = reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (code == HC_ACTION && call->hwnd == watchedWindow && call->message == WM_WINDOWPOSCHANGED) {
        seenStates.emplace_back(IsWindowVisible(call->hwnd) != FALSE,
                                IsIconic(call->hwnd) != FALSE);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// However the window comes up after it was minimised, closed or escaped, it is in front, in its
// place, and the keys typed next reach its word box: a window still active when it went away gets
// no WM_ACTIVATE. Each way down and each way up once (every way down leaves it hidden and
// minimised, and every way up ends in one helper), with the pair that once lost the focus first.
TEST_F(MainWindowTest, EveryWayDownHidesAndEveryWayUpBringsTheWindowInFrontInPlaceWithTheKeys) {
    settings.Save("Main", "StartX", "3000");
    settings.Save("Main", "StartY", "1500");
    Load();
    const int dpi = WindowDpi(Window());
    EXPECT_EQ(ScreenRect(Window()).left, TwipsToPixels(3000, dpi)) << "remembered position";

    // A real move with the left button held over the top row of a wide window (150 % and up,
    // where the row has an x of 514) is not a tray click.
    POINT topRow{WM_LBUTTONUP, 0};
    ClientToScreen(Window(), &topRow);
    SetCursorPos(topRow.x, topRow.y);
    PostMessageW(Window(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(WM_LBUTTONUP, 0));
    events.pump.DoEvents();
    EXPECT_FALSE(IsWindowVisible(Window()));
    SetCursorPos(topRow.x + 40, topRow.y + 300);  // to where the icon would be

    Tray(WM_LBUTTONUP);
    ASSERT_TRUE(IsWindowVisible(Window()));
    SetWindowPos(Window(), nullptr, 200, 120, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    watchedWindow = Window();
    const HHOOK hook =
        SetWindowsHookExW(WH_CALLWNDPROCRET, RecordStates, nullptr, GetCurrentThreadId());
    SendMessageW(Window(), WM_CLOSE, 0, 0);
    UnhookWindowsHookEx(hook);
    ASSERT_FALSE(seenStates.empty());
    EXPECT_EQ(seenStates.front(), std::make_pair(false, false))
        << "hidden first, so that no minimise animation plays";
    EXPECT_FALSE(IsWindowVisible(Window()));
    EXPECT_TRUE(IsIconic(Window()));
    EXPECT_EQ(unloads, 0) << "the close box only hides";

    Tray(WM_LBUTTONDBLCLK);
    EXPECT_TRUE(IsWindowVisible(Window()));
    EXPECT_FALSE(IsIconic(Window()));
    EXPECT_EQ(ScreenRect(Window()).left, 200);
    EXPECT_EQ(ScreenRect(Window()).top, 120);

    SetWindowPos(Window(), nullptr, 250, 130, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    Tray(WM_LBUTTONUP);
    EXPECT_EQ(ScreenRect(Window()).left, 250) << "a visible window is only brought forward";

    using Step = std::pair<const char*, std::function<void()>>;
    const std::pair<Step, Step> cases[] = {
        {{"minimised", [&] { SendMessageW(Window(), WM_SYSCOMMAND, SC_MINIMIZE, 0); }},
         {"tray click", [&] { Tray(WM_LBUTTONUP); }}},
        {{"closed", [&] { SendMessageW(Window(), WM_CLOSE, 0, 0); }},
         {"tray menu Go", [&] { Command(kIdMenuGo); }}},
        {{"escaped",
          [&] {
              PostMessageW(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 0);
              events.pump.DoEvents();
          }},
         {"hotkey", [&] { SendMessageW(Window(), WM_HOTKEY, GlobalHotkey::kId, 0); }}},
    };
    for (const auto& [down, up] : cases) {
        form->Show();
        SetForegroundWindow(Window());
        SetFocus(Control(kIdWord));
        down.second();
        EXPECT_FALSE(IsWindowVisible(Window())) << down.first;
        up.second();
        EXPECT_TRUE(IsWindowVisible(Window()) && !IsIconic(Window())) << down.first;
        EXPECT_EQ(GetForegroundWindow(), Window()) << down.first << ", then " << up.first;
        EXPECT_TRUE(IsChild(Control(kIdWord), GetFocus())) << down.first << ", then " << up.first;
    }
    EXPECT_EQ(unloads, 0) << "each only hides";

    // The hotkey puts a window in front away, and brings it back on Go with the word selected.
    ClickTab(kHelpPanel);
    SetWord("notes");
    SendMessageW(Window(), WM_HOTKEY, GlobalHotkey::kId, 0);
    EXPECT_FALSE(IsWindowVisible(Window()));
    SendMessageW(Window(), WM_HOTKEY, GlobalHotkey::kId + 1, 0);
    EXPECT_FALSE(IsWindowVisible(Window())) << "not our hotkey";
    SendMessageW(Window(), WM_HOTKEY, GlobalHotkey::kId, 0);
    EXPECT_EQ(form->CurrentTab(), kGoPanel);
    EXPECT_EQ(PanelsShown(), (std::vector<bool>{true, false, false, false, false, false}));
    EXPECT_EQ(SendMessageW(Control(kIdWord), CB_GETEDITSEL, 0, 0), MAKELRESULT(0, 5))
        << "the whole word, ready to be typed over";

    SetWindowPos(Window(), nullptr, 300, 140, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    SendMessageW(Window(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
    EXPECT_FALSE(IsWindowVisible(Window()));
    SendMessageW(Window(), WM_CLOSE, 0, 0);  // while minimised: the position is kept
    form->Unload();
    EXPECT_EQ(settings.Get("Main", "StartX", ""), std::to_string(PixelsToTwips(200, dpi)))
        << "the position stored at the last close before minimising";
}

TEST_F(MainWindowTest, TheKeysGoRoundPanelsAndLinksAndNeverReachAHiddenWordBox) {
    Load();
    form->Show();
    SetForegroundWindow(Window());
    const auto ctrlTab = [this](std::initializer_list<BYTE> held) {
        if (GetFocus() == nullptr) {
            SetFocus(Window());  // a panel hidden with the focus in it leaves the focus nowhere
        }
        PressKey(VK_TAB, held);
        return form->CurrentTab();
    };
    EXPECT_EQ(ctrlTab({VK_CONTROL}), 1);
    EXPECT_EQ(PanelsShown(), (std::vector<bool>{false, true, false, false, false, false}));
    EXPECT_EQ(ctrlTab({VK_CONTROL}), 2);
    EXPECT_EQ(ctrlTab({VK_CONTROL}), 3);
    EXPECT_EQ(ctrlTab({VK_CONTROL}), 0) << "from Help round to Go, past Exit";
    EXPECT_EQ(ctrlTab({VK_CONTROL, VK_SHIFT}), 3);
    EXPECT_EQ(unloads, 0);

    SetFocus(Window());
    SendMessageW(Window(), WM_ACTIVATE, WA_ACTIVE, 0);
    EXPECT_NE(GetFocus(), Control(kIdWord)) << "reactivated on Help";
    EXPECT_NE(GetParent(GetFocus()), Control(kIdWord)) << "not the word box's edit field either";
    EXPECT_EQ(help.owner, Window());
    for (const int link : {kIdHelp, kIdQuorinPage, kIdVeltaroPage}) {
        Command(link);
    }
    EXPECT_EQ(help.topics,
              (std::vector<int32_t>{kHelpUsingQuorin, kHelpAboutQuorin, kHelpAboutVeltaro}))
        << "every link opens something that ships with the program";

    ClickTab(2);
    EXPECT_EQ(PanelsShown(), (std::vector<bool>{false, false, true, false, false, false}));
    SetFocus(Control(kIdGeneralOptions));
    PressKey(VK_RETURN);
    PressKey(VK_TAB);
    EXPECT_EQ(GetFocus(), Control(kIdFileTypes));
    PressKey(VK_RETURN);
    PressKey(VK_TAB);
    PressKey(VK_SPACE);
    EXPECT_EQ(options.panels,
              (std::vector<int>{kOptionsGeneral, kOptionsFileTypes, kOptionsWords}));

    Command(kIdMenuGo);  // the tray menu's Go
    EXPECT_EQ(form->CurrentTab(), 0);
    EXPECT_EQ(PanelsShown(), (std::vector<bool>{true, false, false, false, false, false}));
    SetFocus(Window());
    SendMessageW(Window(), WM_ACTIVATE, WA_ACTIVE, 0);
    EXPECT_EQ(GetParent(GetFocus()), Control(kIdWord)) << "on the Go panel the box takes it";
    EXPECT_EQ(unloads, 0);
}

// Every build, the user's and the timer's, keeps the wait pointer for its whole length, and the
// Index panel says after it what the index holds. The first build's 21 roots name one folder of
// 238 subfolders: 5,019 folders, 18 over the limit; the timer's has one root, then cannot save.
TEST_F(MainWindowTest, ABuildDisablesTabsShowsProgressKeepsTheWaitPointerRefusesToExitAndSums) {
    for (int i = 0; i < 238; ++i) {
        tree.MakeFolder(std::to_string(i));
    }
    tree.WriteFile("a.txt", "");
    settings.Save("Index", "DriveCount", "21");
    for (int i = 0; i < 21; ++i) {
        settings.Save("Index", "Drive" + std::to_string(i), tree.Path());
    }
    settings.Save("Index", "Interval", "36");
    Load();
    ClickTab(1);
    EXPECT_EQ(PanelsShown(), (std::vector<bool>{false, true, false, false, false, false}));
    EXPECT_EQ(Text(kIdUpdateInterval), "The index is automatically updated every 36 hour(s).");
    EXPECT_EQ(Text(kIdLastUpdated), FormatLocalDateTime(0));
    std::vector<bool> tabsEnabled;
    bool progressOnTop = false;
    std::string tip;
    bool waitThroughout = true;  // shown, and the window's cursor message leaves it be
    events.onEvents = [&] {
        waitThroughout = waitThroughout && Hourglass::Shown() &&
                         SendMessageW(Window(), WM_SETCURSOR, reinterpret_cast<WPARAM>(Window()),
                                      MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)) == TRUE;
        if (!tip.empty()) {
            return;
        }
        tip = std::string(TrayTip(tray.Record()));
        for (int i = 0; i < kTabCount; ++i) {
            tabsEnabled.push_back(IsWindowEnabled(Control(kIdTab + i)) != FALSE);
        }
        progressOnTop =
            PanelShown(kProgressPanel) && GetWindow(GetDlgItem(Window(), kIdPanel), GW_HWNDFIRST) ==
                                              GetDlgItem(Window(), kIdPanel + int{kProgressPanel});
        Command(kIdMenuExit);
    };
    Build();
    EXPECT_EQ(tip, "Quorin (indexing...)");
    EXPECT_EQ(tabsEnabled, std::vector<bool>(kTabCount, false));
    EXPECT_TRUE(progressOnTop);
    ASSERT_EQ(prompter.boxes.size(), 1u);
    EXPECT_EQ(prompter.boxes[0],
              (ScriptedPrompter::Box{"Cannot exit",
                                     "You cannot exit the program while it is indexing. "
                                     "Cancel the indexing then exit the program.",
                                     PromptButtons::Ok, PromptIcon::Information}));
    EXPECT_TRUE(IsWindowVisible(Window())) << "shown for the message";
    EXPECT_EQ(unloads, 0);
    EXPECT_NE(index.Get().LastUpdated, 0) << "the build went on";

    EXPECT_EQ(TrayTip(tray.Record()), "Quorin");
    EXPECT_FALSE(PanelShown(kProgressPanel));
    EXPECT_TRUE(IsWindowEnabled(Control(kIdTab)));
    EXPECT_EQ(Text(kIdCounter), "Saving...");
    EXPECT_EQ(Text(kIdLastUpdated), FormatLocalDateTime(index.Get().LastUpdated))
        << "refreshed when a build ends";
    const auto linkShown = [this] {
        return (GetWindowLongW(Control(kIdFoldersLeftOut), GWL_STYLE) & WS_VISIBLE) != 0;
    };
    EXPECT_EQ(Text(kIdIndexSummary), "");
    EXPECT_EQ(Text(kIdFoldersLeftOut), "5,001 folders, 21 files; 18 left out");
    EXPECT_TRUE(linkShown());
    Command(kIdFoldersLeftOut);
    EXPECT_EQ(options.panels, std::vector<int>{FakeOptionsOpener::kAllFoldersOption});

    settings.Save("Index", "DriveCount", "1");
    index.Get().UpdateSettings();
    clock.now += 2;
    SendMessageW(Window(), WM_TIMER, kTimer1Id, 0);
    ASSERT_EQ(index.Get().LastUpdated, clock.now) << "the timer built too";
    EXPECT_EQ(Text(kIdIndexSummary), "239 folders and 1 file indexed.");
    EXPECT_FALSE(linkShown());
    EXPECT_TRUE(waitThroughout);
    EXPECT_FALSE(Hourglass::Shown());

    // The timer's rule is ReindexSchedule's, whatever the interval shown; the window follows it
    // also after a failed save, told once. A folder in the file's place refuses it.
    std::vector<std::string> reports;
    SetWindowErrorHandler([&](std::string_view message) { reports.emplace_back(message); });
    std::filesystem::remove(FsPath(JoinPath(program.Path(), "index.txt")));
    std::filesystem::create_directory(FsPath(JoinPath(program.Path(), "index.txt")));
    const double start = clock.now += 2;
    for (int tick = 0; tick < 4; ++tick) {
        SendMessageW(Window(), WM_TIMER, kTimer1Id, 0);
        clock.now += 65.0 / 86400.0;
    }
    clock.now = start + 23.0 / 24.0;
    SendMessageW(Window(), WM_TIMER, kTimer1Id, 0);
    EXPECT_EQ(reports.size(), 1u);
    EXPECT_EQ(index.Get().LastUpdated, start);
    clock.now = start + 1.0 + 1.0 / 86400.0;
    SendMessageW(Window(), WM_TIMER, kTimer1Id, 0);
    SetWindowErrorHandler(nullptr);
    EXPECT_EQ(reports.size(), 2u);

    Command(kIdMenuExit);
    EXPECT_EQ(unloads, 1) << "no build: the exit entry ends the program";
}

TEST_F(MainWindowTest, GoCarriesOutEachActionInTheWindow) {
    tree.WriteFile("notes.txt", "n");
    tree.WriteFile("alpha1.doc", "a");
    tree.WriteFile("alpha2.doc", "a");
    Load();
    Build();
    form->Show();
    Command(kIdGo);
    EXPECT_EQ(Text(kIdFile), "");
    SetWord("xyz");
    Command(kIdGo);
    EXPECT_EQ(Text(kIdFile),
              "Nothing is named like \"xyz\".");  // opening nothing: the counts below
    EXPECT_TRUE(IsWindowVisible(Window()));
    SendMessageW(Window(), WM_COMMAND, MAKEWPARAM(kIdWord, CBN_EDITCHANGE),
                 reinterpret_cast<LPARAM>(Control(kIdWord)));
    EXPECT_EQ(Text(kIdFile), "") << "told until the word changes";

    SetWord("Notes");
    Command(kIdGo);
    ASSERT_EQ(shell.opened.size(), 1u);
    EXPECT_EQ(shell.opened[0].file, JoinPath(tree.Path(), "notes.txt"));
    EXPECT_EQ(shell.opened[0].workingFolder, tree.Path());
    EXPECT_EQ(shell.opened[0].parameters, "");
    EXPECT_EQ(shell.opened[0].showCommand, 5);
    EXPECT_TRUE(IsWindowVisible(Window())) << "one match leaves the window as it is";
    EXPECT_EQ(Text(kIdWord), "Notes");
    EXPECT_FALSE(IsWindowVisible(Control(kIdSearchProgress))) << "the search bar goes again";

    SetWord("alpha");
    SendMessageW(GetWindow(Control(kIdWord), GW_CHILD), WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(matches.words, std::vector<std::string>{"alpha"}) << "Enter in the box is Go";
    EXPECT_EQ(matches.counts, std::vector<int>{2});
    EXPECT_EQ(shell.opened.size(), 1u);
    EXPECT_FALSE(IsWindowVisible(Window()));

    form->Show();
    index.Get().AddWord({"notes", "alpha1.doc", *index.Get().GetDirectory(tree.Path()), {}});
    form->AddWords();
    std::string captionWhileOpening;
    shell.onOpen = [&] { captionWhileOpening = Text(kIdFile); };
    SetWindowPos(Window(), nullptr, 210, 170, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    SetWord("NOTES");
    Command(kIdGo);
    ASSERT_EQ(shell.opened.size(), 2u);
    EXPECT_EQ(shell.opened[1].file, JoinPath(tree.Path(), "alpha1.doc"));
    EXPECT_EQ(shell.opened[1].workingFolder, tree.Path() + "\\");
    EXPECT_EQ(captionWhileOpening, "Opening NOTES...");
    EXPECT_EQ(Text(kIdFile), "");
    EXPECT_FALSE(IsWindowVisible(Window())) << "an assigned word hides the window";
    const int dpi = WindowDpi(Window());
    EXPECT_EQ(form->RememberedPosition().x, PixelsToTwips(210, dpi));
    EXPECT_EQ(form->RememberedPosition().y, PixelsToTwips(170, dpi));
}

TEST_F(MainWindowTest, TypingCompletesWithTheTopEntryAndFocusSelectsAllInTooltipColours) {
    Load();
    const HWND edit = GetWindow(Control(kIdWord), GW_CHILD);
    // Characters as typed; '\b' is Backspace, '\x7f' Delete (a key without a character).
    const auto type = [edit](std::string_view keys) {
        for (const char key : keys) {
            if (key == '\b' || key == '\x7f') {
                SendMessageW(edit, WM_KEYDOWN, key == '\b' ? VK_BACK : VK_DELETE, 0);
            }
            if (key != '\x7f') {
                SendMessageW(edit, WM_CHAR, static_cast<WPARAM>(key), 0);
            }
        }
    };
    // The text with the selection marked: "No[tepad]".
    const auto marked = [this] {
        DWORD start = 0;
        DWORD end = 0;
        SendMessageW(Control(kIdWord), CB_GETEDITSEL, reinterpret_cast<WPARAM>(&start),
                     reinterpret_cast<LPARAM>(&end));
        const std::string text = Text(kIdWord);
        return text.substr(0, start) + "[" + text.substr(start, end - start) + "]" +
               text.substr(end);
    };
    type("no");
    EXPECT_EQ(marked(), "no[]") << "an empty list never completes";
    for (const char* word : {"Notes", "Notepad"}) {
        index.Get().AddWord({word, std::string(word) + ".exe", 0, {}});
    }
    form->AddWords();
    SetWord("");
    // The entry's capitalisation, the entry nearer the top; a further letter completes again.
    for (const auto& [keys, shown] : {std::pair{"n", "N[otes]"},
                                      {"o", "No[tes]"},
                                      {"\b", "No[]"},
                                      {"t", "Not[es]"},
                                      {"\x7f", "Not[]"}}) {
        type(keys);
        EXPECT_EQ(marked(), shown) << "after " << keys;
    }
    SetWord("");
    type("xy");
    EXPECT_EQ(marked(), "xy[]");

    SetWord("");
    type("no");
    index.Get().AddWord({"nothing", "nothing.exe", 0, {}});
    form->AddWords();
    EXPECT_EQ(marked(), "No[tes]") << "reloading the words keeps the text and its selection";
    EXPECT_EQ(SendMessageW(Control(kIdWord), CB_GETCOUNT, 0, 0), 3);

    SetWord("word");
    form->Show();
    SetForegroundWindow(Window());
    SetFocus(Control(kIdWord));
    EXPECT_EQ(marked(), "[word]");
    const HDC dc = GetDC(edit);
    const auto brush = [&] {
        return SendMessageW(Control(kIdWord), WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc),
                            reinterpret_cast<LPARAM>(edit));
    };
    const LRESULT tooltip = reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_INFOBK));
    EXPECT_EQ(brush(), tooltip) << "the colours reach the edit field through the box and panel";
    EXPECT_EQ(GetTextColor(dc), GetSysColor(COLOR_INFOTEXT));
    SetFocus(Window());
    EXPECT_NE(brush(), tooltip) << "the window colours again";
    ReleaseDC(edit, dc);
}

}  // namespace
}  // namespace quorin::test
