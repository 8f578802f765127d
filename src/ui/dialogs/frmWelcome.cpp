#include "ui/dialogs/frmWelcome.h"

#include <commctrl.h>

#include <array>

#include "WelcomeDialog.h"
#include "index/clsIndex.h"
#include "platform/Prompter.h"
#include "platform/Text.h"
#include "resource.h"
#include "ui/BuildAnimation.h"
#include "ui/Dpi.h"
#include "ui/Hourglass.h"
#include "ui/ProgramIcon.h"
#include "ui/TabKeys.h"
#include "ui/TextFlow.h"
#include "ui/WindowText.h"
#include "ui/help/Help.h"
#include "ui/main/OptionsOpener.h"

namespace quorin {

namespace {

constexpr int kProgressBlock = kWelcomePageCount;  // the progress page, after the four pages
constexpr int kBlockSize = 10;

constexpr std::array<std::string_view, kWelcomePageCount> kTabCaptions = {"Welcome", "File Types",
                                                                          "Drives", "Index"};

constexpr std::string_view kConfirmCancelTitle = "Confirm cancel";
constexpr std::string_view kConfirmCancelText =
    "Are you sure you want to cancel? Quorin will not run until you complete this configuration "
    "wizard.";

std::string WelcomeText() {
    const std::string crlf = "\r\n";
    return std::string("Welcome to Quorin. Quorin will index your hard drive and ") +
           "let you find any file, launch any program, or open any document... with just a word. " +
           crlf + crlf +
           "This configuration wizard will walk you through the steps of specifing what drive(s) "
           "you want to index and what files types you want to include." +
           crlf + crlf + "Click 'Next' to continue.";
}

// The rule above the links spans the client area, which the rounding of dialog units can make a
// pixel or two narrower than the rule's 300 units.
void SpanClientWidth(HWND control) {
    const RECT place = Window::RectInParent(control);
    RECT client{};
    GetClientRect(GetParent(control), &client);
    SetWindowPos(control, nullptr, 0, place.top, client.right, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

frmWelcome::frmWelcome(WelcomeServices services)
    : Dialog(IDD_WELCOME), services_(std::move(services)) {
    ctlLinkLabel::Register();
    ctlTabLabel::Register();
}

frmWelcome::~frmWelcome() = default;

bool frmWelcome::OnInit() {
    Form_Load();
    return true;
}

void frmWelcome::Form_Load() {
    const Hourglass busy;
    services_.help.Setup(hwnd());
    lnkNext = ctlLinkLabel::From(Item(IDC_WELCOME_NEXT));
    lnkFinish = ctlLinkLabel::From(Item(IDC_WELCOME_FINISH));
    lnkCancel = ctlLinkLabel::From(Item(IDC_WELCOME_CANCEL));
    lnkPrevious = ctlLinkLabel::From(Item(IDC_WELCOME_PREVIOUS));
    Animation1 = Item(IDC_WELCOME_ANIMATION);
    lblCounter = Item(IDC_WELCOME_COUNTER);

    icon_ = SmallProgramIcon(IDI_QUORIN);
    SetIcon(icon_.get());

    SetText(Item(IDC_WELCOME_WELCOME), WelcomeText());
    PlaceAfterText(Item(IDC_WELCOME_DRIVES_TEXT), Item(IDC_WELCOME_DRIVES));
    SpanClientWidth(Item(IDC_WELCOME_SHAPE1));
    CreateTabs();
    fileTypes_.Attach(Item(IDC_WELCOME_FILETYPES));
    for (int block = 1; block <= kProgressBlock; ++block) {
        ShowBlock(block, false);
    }
    ShowPage();
    FillFileTypes();
}

// Made here rather than in the template, so they take the dialog's font like its controls.
void frmWelcome::CreateTabs() {
    tabLabel.Create(hwnd(), IDC_WELCOME_TAB0, kTabCaptions);
    const auto font = SendMessageW(Item(IDC_WELCOME_WELCOME), WM_GETFONT, 0, 0);
    for (int tab = 0; tab < tabLabel.Count(); ++tab) {
        SendMessageW(tabLabel[tab].hwnd(), WM_SETFONT, static_cast<WPARAM>(font), FALSE);
    }
    tabLabel.PlaceInRow(0, 0);
}

// The band behind the tab row, in the colour of the unselected tabs.
void frmWelcome::Form_Paint() {
    RECT tab{};
    GetWindowRect(tabLabel[0].hwnd(), &tab);
    TabRow::PaintBand(hwnd(), tab.bottom - tab.top);
}

LRESULT frmWelcome::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT && tabLabel.Count() > 0) {
        Form_Paint();
        return 0;
    }
    const LRESULT result = Dialog::HandleMessage(message, wParam, lParam);
    if (message == WM_DPICHANGED) {
        // The new font has resized the tabs and rewrapped the text the link follows.
        tabLabel.PlaceInRow(0, 0);
        PlaceAfterText(Item(IDC_WELCOME_DRIVES_TEXT), Item(IDC_WELCOME_DRIVES));
        SpanClientWidth(Item(IDC_WELCOME_SHAPE1));
    }
    return result;
}

bool frmWelcome::OnKey(const MSG& message) {
    const std::optional<int> next = PageAfterCtrlTab(message, page_, kWelcomePageCount);
    if (!next || !tabLabel[0].Enabled()) {
        return false;
    }
    tabLabel_Click(*next);
    return true;
}

void frmWelcome::DisableTabs() {
    tabLabel.SetEnabled(false);
}

void frmWelcome::EnableTabs() {
    tabLabel.SetEnabled(true);
}

void frmWelcome::BuildStarted() {
    PlayBuildAnimation(Animation1, services_.index.ProgramFolder());
    DisableTabs();
}

void frmWelcome::SetCounter(std::string_view text) {
    SetLiveText(lblCounter, text);
}

// Enter goes on with whichever of "Next >" and "Finish" is shown; Escape is "Cancel".
void frmWelcome::OnOk() {
    if (IsWindowVisible(lnkFinish->hwnd()) != FALSE) {
        if (lnkFinish->Enabled()) {
            lnkFinish_Click();
        }
    } else {
        lnkNext_Click();
    }
}

void frmWelcome::OnCancel() {
    if (lnkCancel->Enabled()) {
        lnkCancel_Click();
    }
}

// The close box ends the wizard without the question, as the user plainly asked; the first
// build cannot be cancelled, so it is not closed while that runs.
void frmWelcome::OnClose() {
    if (!services_.index.Indexing()) {
        EndDialog(IDCANCEL);
    }
}

void frmWelcome::OnDestroy() {
    services_.help.Close();
}

void frmWelcome::OnCommand(int id, int code, HWND) {
    if (code != kLabelClick) {
        return;
    }
    if (id >= IDC_WELCOME_TAB0 && id < IDC_WELCOME_TAB0 + kWelcomePageCount) {
        tabLabel_Click(id - IDC_WELCOME_TAB0);
        return;
    }
    switch (id) {
        case IDC_WELCOME_NEXT:
            lnkNext_Click();
            break;
        case IDC_WELCOME_PREVIOUS:
            lnkPrevious_Click();
            break;
        case IDC_WELCOME_FINISH:
            lnkFinish_Click();
            break;
        case IDC_WELCOME_CANCEL:
            lnkCancel_Click();
            break;
        case IDC_WELCOME_MORE:
            lnkMore_Click();
            break;
        case IDC_WELCOME_CHANGE_FILETYPES:
            lnkFileTypes_Click();
            break;
        case IDC_WELCOME_DRIVES:
            lnkDrives_Click();
            break;
        default:
            break;
    }
}

LRESULT frmWelcome::OnNotify(const NMHDR& header) {
    if (header.hwndFrom == fileTypes_.hwnd() && header.code == LVN_COLUMNCLICK) {
        fileTypes_.ColumnClick(reinterpret_cast<const NMLISTVIEW&>(header).iSubItem);
    }
    return 0;
}

void frmWelcome::tabLabel_Click(int Index) {
    page_ = Index;
    ShowPage();
}

void frmWelcome::lnkNext_Click() {
    if (page_ + 1 < kWelcomePageCount) {
        ++page_;
        ShowPage();
    }
}

void frmWelcome::lnkPrevious_Click() {
    if (page_ > 0) {
        --page_;
        ShowPage();
    }
}

void frmWelcome::lnkMore_Click() {
    services_.help.ShowTopic(kHelpSettingUp);
}

void frmWelcome::lnkFileTypes_Click() {
    services_.options.ShowOptionsModal(hwnd(), kOptionsFileTypes);
    FillFileTypes();
}

void frmWelcome::lnkDrives_Click() {
    services_.options.ShowOptionsModal(hwnd(), kOptionsGeneral);
}

void frmWelcome::lnkCancel_Click() {
    if (services_.prompter.Ask(kConfirmCancelTitle, kConfirmCancelText, PromptButtons::YesNo,
                               PromptIcon::Question) == PromptAnswer::Yes) {
        EndDialog(IDCANCEL);
    }
}

void frmWelcome::lnkFinish_Click() {
    ShowBlock(page_, false);
    ShowBlock(kProgressBlock, true);
    lnkPrevious->SetEnabled(false);
    lnkFinish->SetEnabled(false);
    lnkCancel->SetEnabled(false);
    RedrawWindow(hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    try {
        services_.index.CreateIndex(false, *this);
    } catch (...) {
        LeaveProgressPage();  // the error is shown; the user may try again or cancel
        throw;
    }
    EndDialog(IDOK);
}

void frmWelcome::LeaveProgressPage() {
    StopBuildAnimation(Animation1);
    ShowBlock(kProgressBlock, false);
    lnkFinish->SetEnabled(true);
    lnkCancel->SetEnabled(true);
    EnableTabs();
    ShowPage();
}

void frmWelcome::ShowPage() {
    tabLabel[page_].SetSelected(true);
    for (int page = 0; page < kWelcomePageCount; ++page) {
        ShowBlock(page, page == page_);
    }
    const HWND focus = GetFocus();
    const bool onwardFocused = focus == lnkNext->hwnd() || focus == lnkFinish->hwnd();
    const bool last = page_ == kWelcomePageCount - 1;
    // The one shown first, so that the dialog never finds itself without either.
    const ctlLinkLabel* shown = last ? lnkFinish : lnkNext;
    const ctlLinkLabel* hidden = last ? lnkNext : lnkFinish;
    ShowWindow(shown->hwnd(), SW_SHOW);
    ShowWindow(hidden->hwnd(), SW_HIDE);
    lnkPrevious->SetEnabled(page_ != 0);
    KeepFocusOnAVisibleLink(onwardFocused);
}

void frmWelcome::ShowBlock(int block, bool shown) const {
    const int first = IDC_WELCOME_PAGE0 + block * kBlockSize;
    for (int id = first; id < first + kBlockSize; ++id) {
        if (Item(id) != nullptr) {
            ShowItem(id, shown);
        }
    }
}

// The focus stays on the onward link when it was there, and goes to it when hiding or disabling
// the focused control left it with the dialog, with a hidden control or with nobody (the dialog
// manager would hand it to the first control that takes it, which may be "Cancel").
void frmWelcome::KeepFocusOnAVisibleLink(bool onwardFocused) {
    const HWND focus = GetFocus();
    const bool lost = focus == nullptr || focus == hwnd() ||
                      (IsChild(hwnd(), focus) != FALSE &&
                       (IsWindowVisible(focus) == FALSE || IsWindowEnabled(focus) == FALSE));
    if (!lost && !onwardFocused) {
        return;
    }
    const ctlLinkLabel* onward = IsWindowVisible(lnkNext->hwnd()) != FALSE ? lnkNext : lnkFinish;
    SendMessageW(hwnd(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(onward->hwnd()), TRUE);
}

// The types the engine's filter lists, whichever its mode.
void frmWelcome::FillFileTypes() {
    const Hourglass busy;
    fileTypes_.Fill(services_.index.Filter);
}

}  // namespace quorin
