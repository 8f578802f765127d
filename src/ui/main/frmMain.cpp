#include "ui/main/frmMain.h"

#include <commctrl.h>
#include <windowsx.h>

#include "platform/Text.h"
#include "resource.h"
#include "ui/Dpi.h"
#include "ui/FocusColors.h"
#include "ui/Hourglass.h"
#include "ui/MessagePump.h"
#include "ui/ProgramIcon.h"
#include "ui/TabKeys.h"
#include "ui/TextFlow.h"
#include "ui/WindowClass.h"
#include "ui/WindowText.h"
#include "ui/main/GoCommand.h"
#include "ui/main/IndexSummary.h"
#include "ui/main/MainDesign.h"
#include "ui/main/MainLayout.h"
#include "ui/main/ReindexSchedule.h"
#include "ui/main/TrayCallback.h"

namespace quorin {

namespace {

// Left, top, width and the height of the opened list.
constexpr RECT kWordBoxTwips{1080, 105, 3000, 1800};
constexpr DWORD kMainStyle = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
constexpr std::string_view kTip = "Quorin";
constexpr std::string_view kIndexingTip = "Quorin (indexing...)";
constexpr std::string_view kCannotExitText =
    "You cannot exit the program while it is indexing. Cancel the indexing then exit the "
    "program.";

void RegisterClasses() {
    static const ATOM mainAtom = RegisterWindowClass({.name = kMainWindowClass});
    static_cast<void>(mainAtom);
    ctlTabLabel::Register();
    ctlLinkLabel::Register();
}

}  // namespace

frmMain::frmMain(MainServices services) : services_(std::move(services)) {
    RegisterClasses();
    Create(kMainWindowClass, {.title = "Quorin", .style = kMainStyle, .width = 0, .height = 0});
    taskbarCreated_ = RegisterWindowMessageW(L"TaskbarCreated");
    Form_Load();
}

frmMain::~frmMain() {
    if (!unloaded_) {
        services_.tray.RemoveIcon();
    }
}

void frmMain::Form_Load() {
    icon_ = SmallProgramIcon(IDI_QUORIN);
    indexingIcon_ = SmallProgramIcon(IDI_INDEXING);
    SetIcon(icon_.get());
    services_.help.Setup(hwnd());
    CreateControls();
    LayOut();
    startPlace_.Load(services_.settings, CentredOnScreen(hwnd(), dpi_), {}, dpi_);
    startPlace_.MoveTo(hwnd(), dpi_, SWP_NOACTIVATE);
    AddWords();
    // Let the word list and the layout settle before the icon invites the first click.
    MessagePump().DoEvents();
    hotkey_.Register(hwnd(), LoadHotkey(services_.settings));
    services_.tray.CreateIcon(hwnd(), icon_.get(), kTip);
}

void frmMain::CreateControls() {
    picPanel.Create(hwnd(), kPanelCount, kIdPanel);
    static constexpr std::array<std::string_view, kTabCount> kCaptions = {"Go", "Index", "Options",
                                                                          "Help", "Exit"};
    tabLabel.Create(hwnd(), kIdTab, kCaptions);
    CreatePanelControls();
}

// The panels' contents, as the design places them.
void frmMain::CreatePanelControls() {
    cboWord.Attach(picPanel.AddControl(kGoPanel, WC_COMBOBOXW, "",
                                       CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP,
                                       kIdWord, kWordBoxTwips),
                   hwnd());
    for (const MainDesign::Control& control : MainDesign::Controls()) {
        const HWND made = picPanel.AddControl(control.panel, control.className, control.text,
                                              control.style, control.id, control.twips);
        if (control.member != nullptr) {
            this->*control.member = made;
        }
    }
    for (const MainDesign::Link& link : MainDesign::Links()) {
        ctlLinkLabel* made =
            picPanel.AddLink(link.panel, link.id, link.caption, link.left, link.top);
        if (link.member != nullptr) {
            this->*link.member = made;
        }
    }
    // Screen readers name the word box by the label just before it in the tab order.
    SetWindowPos(cboWord.hwnd(), lblEnterWord_, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ShowWindow(ProgressBar1, SW_HIDE);
    ShowWindow(lnkFoldersLeftOut_->hwnd(), SW_HIDE);
    progressPanel_.Attach(picPanel);
}

HWND frmMain::Control(int id) const {
    if (HWND control = GetDlgItem(hwnd(), id)) {
        return control;
    }
    return picPanel.Control(id);
}

// Everything the window shows is placed from twips at the window's DPI, so this runs again
// when the DPI changes.
void frmMain::LayOut() {
    dpi_ = WindowDpi(hwnd());
    font_ = SetMessageFont(hwnd(), dpi_);
    tabLabel[currentTab_].SetSelected(true);
    // The controls first: how far down they reach sets the window's height.
    picPanel.PlaceControls(dpi_);
    KeepWordBoxClear();
    const MainLayout layout = ComputeMainLayout(dpi_, tabLabel.Widths(), picPanel.ContentBottom());
    const SIZE outer = OuterSize({layout.clientWidth, layout.clientHeight}, kMainStyle, 0, dpi_);
    SetWindowPos(hwnd(), nullptr, 0, 0, outer.cx, outer.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    tabLabel.Place(layout.tabLefts, 0);
    picPanel.PlacePanels(layout.panelTop, layout.clientWidth,
                         layout.clientHeight - layout.panelTop);
}

// Where the font draws "Enter word:" wider than its place, the word box gives way on its left.
void frmMain::KeepWordBoxClear() {
    const int left = ClearOfText(lblEnterWord_);
    const RECT box = Window::RectInParent(cboWord.hwnd());
    if (left > box.left) {
        SetWindowPos(cboWord.hwnd(), nullptr, left, box.top, box.right - left,
                     TwipsToPixels(kWordBoxTwips.bottom, dpi_), SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void frmMain::OnDpiChanged(int, const RECT& suggested) {
    SetWindowPos(hwnd(), nullptr, suggested.left, suggested.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    LayOut();
}

void frmMain::Show() {
    ShowWindow(hwnd(), SW_SHOW);
    Repaint();
}

void frmMain::EnableTimer() {
    SetTimer(hwnd(), kTimer1Id, kReindexTimerMilliseconds, nullptr);
}

void frmMain::AddWords() {
    std::vector<std::string> words;
    for (const clsItem& item : services_.index.Get().Words()) {
        words.push_back(item.Word);
    }
    cboWord.SetWords(words);
}

void frmMain::DisableTabs() {
    tabLabel.SetEnabled(false);
}

void frmMain::EnableTabs() {
    tabLabel.SetEnabled(true);
}

// Paints the window and every control in it now: the handlers that repaint go on to keep the
// thread busy (a build, the unload), so no paint message would be handled meanwhile.
void frmMain::Repaint() {
    RedrawWindow(hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void frmMain::SelectPanel(int panel) {
    tabLabel[panel].SetSelected(true);
    currentTab_ = panel;
    ShowPanel();
}

void frmMain::ShowPanel() {
    picPanel.Show(currentTab_);
    Repaint();
}

void frmMain::BuildStarted() {
    progressPanel_.Show(services_.index.Get().ProgramFolder());
    DisableTabs();
    services_.tray.ChangeIcon(hwnd(), indexingIcon_.get(), kIndexingTip);
}

void frmMain::SetCounter(std::string_view text) {
    progressPanel_.SetCounter(text);
}

void frmMain::BuildEnded() {
    UpdateIndexPanel();  // the panel under the progress shows what the build indexed
    progressPanel_.Hide();
    EnableTabs();
    services_.tray.ChangeIcon(hwnd(), icon_.get(), kTip);
    UpdateIndexPanel();  // the Index panel may be the one shown under the progress
}

void frmMain::Show(int maximum) {
    searchProgress_.Start(ProgressBar1, maximum);
    ShowWindow(ProgressBar1, SW_SHOW);
}

void frmMain::SetValue(int value) {
    searchProgress_.Set(ProgressBar1, value);
}

void frmMain::Hide() {
    ShowWindow(ProgressBar1, SW_HIDE);
}

LRESULT frmMain::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case kWordKeyDown:
            cboWord.KeyDown(static_cast<int>(wParam));
            return 0;
        case WM_MOUSEMOVE:
            Form_MouseMove(wParam, lParam);
            return 0;
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE) {
                Form_Activate();
                return 0;
            }
            break;
        case WM_HOTKEY:
            Hotkey_Pressed(wParam);
            return 0;
        case WM_ENDSESSION:
            if (wParam != FALSE) {
                // The process may end before a build below returns and lets the unload run.
                Form_QueryUnload(false);
                startPlace_.Save(services_.settings);
                builds_.EndSession();
            }
            return 0;
        case WM_PAINT:
            Form_Paint();
            return 0;
        default:
            if (message == taskbarCreated_ && taskbarCreated_ != 0) {
                services_.tray.RestoreIcon();
                return 0;
            }
            break;
    }
    return Window::HandleMessage(message, wParam, lParam);
}

void frmMain::OnClose() {
    if (!Form_QueryUnload(true)) {
        Unload();
    }
}

void frmMain::OnSize(UINT sizeType, int, int) {
    if (sizeType == SIZE_MINIMIZED) {
        ShowWindow(hwnd(), SW_HIDE);
    }
}

void frmMain::OnTimer(UINT_PTR id) {
    if (id == kTimer1Id) {
        Timer1_Timer();
    }
}

HBRUSH frmMain::OnControlColor(HWND control, HDC dc) {
    return FocusColors(control, dc);
}

void frmMain::OnCommand(int id, int code, HWND) {
    if (id >= kIdTab && id < kIdTab + kTabCount) {
        if (code == kLabelClick) {
            tabLabel_Click(id - kIdTab);
        }
        return;
    }
    if (id == kIdWord) {
        cboWord_Command(code);
        return;
    }
    using Handler = void (*)(frmMain&);
    static const std::pair<int, Handler> kHandlers[] = {
        {kIdGo, [](frmMain& form) { form.cmdGo_Click(); }},
        {kIdUpdate, [](frmMain& form) { form.lnkUpdate_Click(); }},
        {kIdCancel, [](frmMain& form) { form.lnkCancel_Click(); }},
        {kIdGeneralOptions,
         [](frmMain& form) { form.services_.options.ShowOptions(kOptionsGeneral); }},
        {kIdFileTypes,
         [](frmMain& form) { form.services_.options.ShowOptions(kOptionsFileTypes); }},
        {kIdWords, [](frmMain& form) { form.services_.options.ShowOptions(kOptionsWords); }},
        {kIdFoldersLeftOut, [](frmMain& form) { form.services_.options.ShowAllFoldersOption(); }},
        {kIdHelp, [](frmMain& form) { form.services_.help.ShowTopic(kHelpUsingQuorin); }},
        // Until the program has a web site, its two web links open help topics that ship with it.
        {kIdQuorinPage, [](frmMain& form) { form.services_.help.ShowTopic(kHelpAboutQuorin); }},
        {kIdVeltaroPage, [](frmMain& form) { form.services_.help.ShowTopic(kHelpAboutVeltaro); }},
        {kIdMenuGo, [](frmMain& form) { form.mnuSystrayGo_Click(); }},
        {kIdMenuExit, [](frmMain& form) { form.mnuSystrayExit_Click(); }},
    };
    for (const auto& [handlerId, handler] : kHandlers) {
        if (handlerId == id) {
            handler(*this);
            return;
        }
    }
}

void frmMain::cboWord_Command(int code) {
    if (code == CBN_EDITCHANGE) {
        SetText(lblFile, "");  // what Go said was about the word before
        cboWord.Change();
    } else if (code == CBN_SETFOCUS) {
        HighlightControl(cboWord.hwnd());
    } else if (code == CBN_KILLFOCUS) {
        UnhighlightControl(cboWord.hwnd());
    }
}

// Ctrl+Tab and Ctrl+Shift+Tab go round the tabs as in a tabbed dialog; never to Exit, which
// would end the program on a key meant to look around.
bool frmMain::OnKey(const MSG& message) {
    if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE &&
        SendMessageW(cboWord.hwnd(), CB_GETDROPPEDSTATE, 0, 0) == FALSE) {
        OnClose();  // as the close box: to the tray
        return true;
    }
    std::optional<int> next = PageAfterCtrlTab(message, currentTab_, kExitPanel);
    if (!next || !tabLabel[currentTab_].Enabled()) {
        return false;
    }
    if (currentTab_ == kExitPanel) {
        next = kGoPanel;
    }
    tabLabel[*next].SetSelected(true);
    tabLabel_Click(*next);
    return true;
}

void frmMain::Form_Paint() {
    TabRow::PaintBand(hwnd(), TwipsToPixels(kPanelTopTwips, dpi_));
}

// Where the word box cannot take the focus (another panel is shown), the focus stays where it
// is, so that keys never reach a hidden box.
void frmMain::Form_Activate() {
    if (IsWindowVisible(cboWord.hwnd())) {
        SetFocus(cboWord.hwnd());
    }
}

bool frmMain::Form_QueryUnload(bool userClose) {
    if (!IsIconic(hwnd())) {
        StorePosition();
    }
    if (!userClose) {
        return false;
    }
    // Hidden first, so that no minimise animation plays; minimising it then shows it for no
    // longer than Form_Resize takes to hide it again.
    ShowWindow(hwnd(), SW_HIDE);
    ShowWindow(hwnd(), SW_MINIMIZE);
    return true;
}

void frmMain::Unload() {
    if (unloaded_) {
        return;
    }
    Form_QueryUnload(false);
    Form_Unload();
    unloaded_ = true;
    DestroyWindow(hwnd());
    if (services_.onUnloaded) {
        services_.onUnloaded();
    }
}

void frmMain::Form_Unload() {
    {
        const Hourglass busy;
        startPlace_.Save(services_.settings);
        services_.index.Release();
        services_.tray.RemoveIcon();
    }
    services_.help.Close();
}

void frmMain::StorePosition() {
    startPlace_.Store(hwnd());
}

void frmMain::Form_MouseMove(WPARAM wParam, LPARAM lParam) {
    const DWORD place = GetMessagePos();
    POINT pointer{GET_X_LPARAM(place), GET_Y_LPARAM(place)};
    ScreenToClient(hwnd(), &pointer);
    switch (DecodeTrayCallback(wParam, lParam, pointer)) {
        case TrayAction::Restore:
            BringUp(true);
            break;
        case TrayAction::Menu:
            mnuSystray.Show(hwnd());
            break;
        case TrayAction::None:
            break;
    }
}

// Every way the window comes up ends here: in front, restored, and with the keyboard focus in
// it. A window that was active already gets no WM_ACTIVATE, and one that was minimised kept no
// focus, so the focus is given here rather than left to Form_Activate. A hidden window comes
// back at the remembered place when `toRememberedPlace`; a visible one is not moved.
void frmMain::BringUp(bool toRememberedPlace) {
    const bool wasHidden = !IsWindowVisible(hwnd());
    if (wasHidden || IsIconic(hwnd())) {
        ShowWindow(hwnd(), SW_RESTORE);
    }
    SetForegroundWindow(hwnd());
    ShowWindow(hwnd(), SW_SHOW);
    if (wasHidden && toRememberedPlace) {
        startPlace_.MoveTo(hwnd(), dpi_, 0);
    }
    Repaint();
    if (IsWindowVisible(cboWord.hwnd())) {
        SetFocus(cboWord.hwnd());
    } else if (!IsChild(hwnd(), GetFocus())) {
        SetFocus(hwnd());
    }
}

void frmMain::tabLabel_Click(int Index) {
    currentTab_ = Index;
    ShowPanel();
    switch (Index) {
        case kGoPanel:
            SetFocus(cboWord.hwnd());
            break;
        case kIndexPanel:
            UpdateIndexPanel();
            break;
        case kExitPanel:
            DisableTabs();
            Repaint();
            Unload();
            break;
        default:
            break;
    }
}

void frmMain::UpdateIndexPanel() {
    const clsIndex& index = services_.index.Get();
    SetText(lblLastUpdated, FormatLocalDateTime(index.LastUpdated));
    SetText(lblUpdateInterval, "The index is automatically updated every " +
                                   std::to_string(index.UpdateInterval) + " hour(s).");
    const IndexSummary summary =
        SummarizeIndex(index.FolderCount(), index.ItemCount(), index.FoldersLeftOut());
    SetText(lblIndexSummary_, summary.linksToAllFolders ? "" : summary.text);
    lnkFoldersLeftOut_->SetCaption(summary.linksToAllFolders ? summary.text : "");
    ShowWindow(lnkFoldersLeftOut_->hwnd(), summary.linksToAllFolders ? SW_SHOW : SW_HIDE);
}

void frmMain::cmdGo_Click() {
    const std::string word = WindowText(cboWord.hwnd());
    GoAction action = DecideGo(services_.index.Get(), word, *this);
    switch (action.kind) {
        case GoAction::Kind::OpenAssigned:
            SetText(lblFile, "Opening " + word + "...");
            services_.shell.Open(action.file, "", action.workingFolder, kShowNormal);
            StorePosition();
            ShowWindow(hwnd(), SW_HIDE);
            SetText(lblFile, "");
            break;
        case GoAction::Kind::OpenMatch:
            services_.shell.Open(action.file, "", action.workingFolder, kShowNormal);
            break;
        case GoAction::Kind::ChooseMatch:
            services_.matches.ShowMatches(word, *action.matches);
            StorePosition();
            ShowWindow(hwnd(), SW_HIDE);
            break;
        case GoAction::Kind::NoMatch:
            SetText(lblFile, "Nothing is named like \"" + word + "\".");
            break;
        case GoAction::Kind::None:
            break;
    }
}

void frmMain::Timer1_Timer() {
    if (ReindexDue(services_.clock.Now(), services_.index.Get().LastUpdated)) {
        BuildIndex(true);
    }
}

void frmMain::lnkUpdate_Click() {
    BuildIndex(false);
}

void frmMain::lnkCancel_Click() {
    services_.index.Get().Cancel();
}

void frmMain::mnuSystrayGo_Click() {
    SelectPanel(kGoPanel);
    BringUp(false);
}

void frmMain::mnuSystrayExit_Click() {
    if (Indexing()) {
        BringUp(false);
        services_.prompter.Ask("Cannot exit", kCannotExitText, PromptButtons::Ok,
                               PromptIcon::Information);
        return;
    }
    SelectPanel(kExitPanel);
    DisableTabs();
    BringUp(false);
    Unload();
}

}  // namespace quorin
