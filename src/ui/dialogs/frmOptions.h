#pragma once

#include <windows.h>

#include <array>
#include <functional>

#include "ui/Dialog.h"
#include "ui/dialogs/FileTypesPage.h"
#include "ui/dialogs/GeneralPage.h"
#include "ui/dialogs/WordsPage.h"

namespace quorin {

class clsIndex;
class HotkeyTarget;
class SignInStart;
class FileChooser;
class Help;
class Prompter;
class SettingsStore;

inline constexpr int kOptionsPageCount = 3;

// What the Options dialog works with. All of it must outlive the dialog.
struct OptionsServices {
    clsIndex& index;
    SettingsStore& settings;
    Prompter& prompter;
    Help& help;
    FileChooser& files;
    DriveSource drives;
    FileTypesPage::ExtensionSource extensions;  // the file types the classes root knows
    std::function<void()> AddWords;             // the main window's word list, reloaded
    HICON icon = nullptr;
    HotkeyTarget* hotkeys = nullptr;      // the main window's hotkey, once it is loaded
    const SignInStart* signIn = nullptr;  // the Run value; none: the box changes nothing
};

// "Options": what the index covers (drives, interval, folder options), which file types it
// takes and the user's words, on three pages under a tab control. OK stores section "Index"
// and tells the engine, the hotkey and the Run value; Cancel stores nothing (words added or removed
// are saved already).
class frmOptions final : public Dialog {
  public:
    explicit frmOptions(OptionsServices services);

    // Selects the tab and shows its page: 0 General, 1 File Types, 2 Words. Before the dialog
    // is shown, it chooses the page it opens at.
    void Panel(int page);
    int CurrentPage() const { return currentPage_; }
    // The General page with the focus on "Index every folder", now or when the dialog opens.
    void ShowAllFoldersOption();

  protected:
    bool OnInit() override;
    void OnOk() override { cmdOK_Click(); }
    void OnCommand(int id, int code, HWND control) override;
    LRESULT OnNotify(const NMHDR& header) override;
    HBRUSH OnControlColor(HWND control, HDC dc) override;
    bool OnKey(const MSG& message) override;

  private:
    void Form_Load();
    void TabStrip1_Click();
    void ShowPage();
    void cmdOK_Click();
    bool IntervalAccepted();
    bool SaveSettings();
    void SaveStartOptions();
    void LayOutPages();
    OptionsPage& Page(int page);

    OptionsServices services_;
    HWND TabStrip1 = nullptr;
    GeneralPage generalPage_;
    FileTypesPage fileTypesPage_;
    WordsPage wordsPage_;
    int currentPage_ = 0;
    bool focusAllFolders_ = false;
};

}  // namespace quorin
