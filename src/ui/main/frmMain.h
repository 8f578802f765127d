#pragma once

#include <windows.h>

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "index/IndexProgress.h"
#include "index/LazyIndex.h"
#include "platform/Clock.h"
#include "platform/Prompter.h"
#include "platform/SettingsStore.h"
#include "platform/Shell.h"
#include "platform/WinHandles.h"
#include "ui/PacedProgress.h"
#include "ui/RememberedPlace.h"
#include "ui/Window.h"
#include "ui/controls/TabRow.h"
#include "ui/controls/ctlLinkLabel.h"
#include "ui/help/Help.h"
#include "ui/main/GlobalHotkey.h"
#include "ui/main/HotkeyTarget.h"
#include "ui/main/MainBuilds.h"
#include "ui/main/MainPanels.h"
#include "ui/main/MainSettings.h"
#include "ui/main/MatchesOpener.h"
#include "ui/main/OptionsOpener.h"
#include "ui/main/ProgressPanel.h"
#include "ui/main/TrayMenu.h"
#include "ui/main/WordBox.h"
#include "ui/main/clsSysTray.h"

namespace quorin {

inline constexpr wchar_t kMainWindowClass[] = L"QuorinMain";
inline constexpr int kTabCount = 5;
inline constexpr int kPanelCount = 6;

// The panels, numbered as their tabs; the progress of a build has no tab of its own.
enum MainPanel : int {
    kGoPanel = 0,
    kIndexPanel = 1,
    kOptionsPanel = 2,
    kHelpPanel = 3,
    kExitPanel = 4,
    kProgressPanel = 5,
};
inline constexpr UINT_PTR kTimer1Id = 1;

// Control ids, so that tests can find the controls of the real window.
enum MainControlId : int {
    kIdTab = 100,    // + tab index
    kIdPanel = 110,  // + panel index
    kIdWord = 200,
    kIdGo = IDOK,  // Enter in the window presses Go
    kIdFile = 201,
    kIdSearchProgress = 202,
    kIdLastUpdated = 210,
    kIdUpdateInterval = 211,
    kIdUpdate = 212,
    kIdIndexSummary = 213,
    kIdFoldersLeftOut = 214,
    kIdGeneralOptions = 220,
    kIdFileTypes = 221,
    kIdWords = 222,
    kIdHelp = 230,
    kIdQuorinPage = 231,
    kIdVeltaroPage = 232,
    kIdAnimation = 250,
    kIdCounter = 251,
    kIdCancel = 252,
    kIdMenuGo = 300,
    kIdMenuExit = 301,
};

// What the main window works with; it owns none of it.
struct MainServices {
    SettingsStore& settings;
    const Clock& clock;
    Prompter& prompter;
    Shell& shell;
    LazyIndex& index;
    clsSysTray& tray;
    MatchesOpener& matches;
    OptionsOpener& options;
    Help& help;
    std::function<void()> onUnloaded;  // the program ends with the main window
};

// The main window: a row of tabs over six stacked panels (word entry, index, options, help,
// shutdown, and the progress of a build), living in the tray. It is the progress window of the
// builds it starts and the search progress of Go.
class frmMain final : public Window,
                      public BuildProgress,
                      public SearchProgress,
                      public HotkeyTarget {
  public:
    // Loads the window hidden: layout, remembered position, words and the tray icon.
    explicit frmMain(MainServices services);
    ~frmMain() override;

    void Show();
    // The program's own unload: saves the position, releases the engine, removes the icon.
    void Unload();
    void EnableTimer();
    // Rebuilds the index with this window as its progress window.
    void BuildIndex(bool Silent) { builds_.Run(Silent, *this); }
    bool Unloaded() const { return unloaded_; }

    void AddWords();
    void DisableTabs();
    void EnableTabs();

    void BuildStarted() override;
    void SetCounter(std::string_view text) override;
    void BuildEnded() override;

    void Show(int maximum) override;
    void SetValue(int value) override;
    void Hide() override;

    bool ApplyHotkey(const std::optional<Hotkey>& hotkey) override;
    bool HotkeyFree(const Hotkey& hotkey) override;

    // A control of the window by its id, wherever it lies.
    HWND Control(int id) const;
    int CurrentTab() const { return currentTab_; }
    POINT RememberedPosition() const { return startPlace_.Twips(); }

  protected:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnClose() override;
    void OnSize(UINT sizeType, int width, int height) override;
    void OnTimer(UINT_PTR id) override;
    void OnCommand(int id, int code, HWND control) override;
    HBRUSH OnControlColor(HWND control, HDC dc) override;
    bool OnKey(const MSG& message) override;
    void OnDpiChanged(int dpi, const RECT& suggested) override;

  private:
    friend struct MainDesign;

    void Form_Load();
    void Form_Activate();
    bool Form_QueryUnload(bool userClose);  // true cancels the unload
    void Form_Unload();
    void Form_MouseMove(WPARAM wParam, LPARAM lParam);
    void Form_Paint();
    void cboWord_Command(int code);
    void CreateControls();
    void CreatePanelControls();

    void tabLabel_Click(int Index);
    void cmdGo_Click();
    void Timer1_Timer();
    void lnkUpdate_Click();
    void lnkCancel_Click();
    void mnuSystrayGo_Click();
    void mnuSystrayExit_Click();
    void Hotkey_Pressed(WPARAM id);

    void LayOut();
    void KeepWordBoxClear();
    void ShowPanel();
    void Repaint();
    void BringUp(bool toRememberedPlace);
    void StorePosition();
    void SelectPanel(int panel);
    void UpdateIndexPanel();
    bool Indexing() const;

    MainServices services_;
    MainBuilds builds_{services_.index, [this] { Unload(); }};
    int dpi_ = 96;
    MainPanels picPanel;
    TabRow tabLabel;
    HWND lblEnterWord_ = nullptr;
    WordBox cboWord;
    HWND lblFile = nullptr;
    HWND ProgressBar1 = nullptr;
    PacedProgress searchProgress_;  // ProgressBar1's pace
    HWND lblLastUpdated = nullptr;
    HWND lblUpdateInterval = nullptr;
    // What the index holds; with folders left out, the link to "Index every folder" instead.
    HWND lblIndexSummary_ = nullptr;
    ctlLinkLabel* lnkFoldersLeftOut_ = nullptr;
    ProgressPanel progressPanel_;
    TrayMenu mnuSystray{kIdMenuGo, kIdMenuExit};
    UniqueFont font_;
    UniqueIcon icon_;
    UniqueIcon indexingIcon_;
    int currentTab_ = 0;
    RememberedPlace startPlace_{MainSettings::kStartPlace};
    GlobalHotkey hotkey_;
    bool unloaded_ = false;
    UINT taskbarCreated_ = 0;
};

}  // namespace quorin
