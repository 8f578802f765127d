#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "index/IndexProgress.h"
#include "platform/WinHandles.h"
#include "ui/Dialog.h"
#include "ui/controls/TabRow.h"
#include "ui/controls/ctlLinkLabel.h"
#include "ui/dialogs/WelcomeFileTypes.h"

namespace quorin {

class clsIndex;
class Help;
class OptionsOpener;
class Prompter;

// What the wizard works with.
struct WelcomeServices {
    clsIndex& index;
    Prompter& prompter;
    OptionsOpener& options;
    Help& help;
};

inline constexpr int kWelcomePageCount = 4;

// "Welcome to Quorin": the first-run wizard. Four pages (welcome, file types, drives, index)
// reached by their tabs and by "< Previous" and "Next >"; what is indexed is changed through the
// Options dialog; Ctrl+Tab and Ctrl+Shift+Tab go round the pages as the tabs do. Finish builds the
// first index on the progress page and closes the wizard with OK, the one way start-up knows that
// the first index was built.
class frmWelcome final : public Dialog, public BuildProgress {
  public:
    explicit frmWelcome(WelcomeServices services);
    ~frmWelcome() override;

    void DisableTabs();
    void EnableTabs();

    void BuildStarted() override;
    void SetCounter(std::string_view text) override;
    void BuildEnded() override {}  // Finish tidies the wizard itself

    int CurrentPage() const { return page_; }

  protected:
    bool OnInit() override;
    void OnOk() override;
    void OnCancel() override;
    void OnClose() override;
    void OnDestroy() override;
    bool OnKey(const MSG& message) override;
    void OnCommand(int id, int code, HWND control) override;
    LRESULT OnNotify(const NMHDR& header) override;
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void Form_Load();
    void Form_Paint();
    void CreateTabs();
    void tabLabel_Click(int Index);
    void lnkNext_Click();
    void lnkPrevious_Click();
    void lnkMore_Click();
    void lnkFileTypes_Click();
    void lnkDrives_Click();
    void lnkCancel_Click();
    void lnkFinish_Click();

    void ShowPage();
    void ShowBlock(int block, bool shown) const;
    void KeepFocusOnAVisibleLink(bool onwardFocused);
    void FillFileTypes();
    void LeaveProgressPage();

    WelcomeServices services_;
    int page_ = 0;
    TabRow tabLabel;
    ctlLinkLabel* lnkNext = nullptr;
    ctlLinkLabel* lnkFinish = nullptr;
    ctlLinkLabel* lnkCancel = nullptr;
    ctlLinkLabel* lnkPrevious = nullptr;
    HWND Animation1 = nullptr;
    HWND lblCounter = nullptr;
    UniqueIcon icon_;
    WelcomeFileTypes fileTypes_;
};

}  // namespace quorin
