#include "ui/main/frmMain.h"

#include <commctrl.h>
#include <windowsx.h>

#include "platform/LenientConversions.h"
#include "platform/Text.h"
#include "resource.h"
#include "ui/Dpi.h"
#include "ui/FocusColors.h"
#include "ui/Hourglass.h"
#include "ui/MessagePump.h"
#include "ui/PaintDc.h"
#include "ui/WindowClass.h"
#include "ui/WindowText.h"
#include "ui/main/GoCommand.h"
#include "ui/main/MainLayout.h"
#include "ui/main/ReindexSchedule.h"
#include "ui/main/TrayCallback.h"

namespace quorin {

namespace {

constexpr DWORD kMainStyle = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
constexpr wchar_t kPanelClass[] = L"QuorinPanel";
constexpr UINT_PTR kWordEditSubclass = 1;
// A key pressed in the word box, passed on to the main window (wParam: the key code).
constexpr UINT kWordKeyDown = WM_APP;
constexpr std::string_view kTip = "Quorin";
constexpr std::string_view kIndexingTip = "Quorin (indexing...)";
constexpr std::string_view kCannotExitText =
    "You cannot exit the program while it is indexing. Cancel the indexing then exit the "
    "program.";

// Panels only hold controls: what their children tell them goes to the main window.
LRESULT CALLBACK PanelProcedure(HWND panel, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
        case WM_NOTIFY:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
            return SendMessageW(GetParent(panel), message, wParam, lParam);
        default:
            return DefWindowProcW(panel, message, wParam, lParam);
    }
}

void RegisterClasses() {
    static const ATOM mainAtom = RegisterWindowClass({.name = kMainWindowClass});
    static const ATOM panelAtom =
        RegisterWindowClass({.name = kPanelClass, .procedure = &PanelProcedure});
    static_cast<void>(mainAtom);
    static_cast<void>(panelAtom);
    ctlTabLabel::Register();
    ctlLinkLabel::Register();
}

int ReadTwips(const SettingsStore& settings, std::string_view key, int defaultValue) {
    return ParseWholeNumber(settings.Get("Main", key, std::to_string(defaultValue)))
        .value_or(defaultValue);
}

// Backspace, Delete and Enter of the word box's edit field reach the main window from here.
LRESULT CALLBACK WordEditProcedure(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                   DWORD_PTR data) {
    HWND form = reinterpret_cast<HWND>(data);
    if (message == WM_KEYDOWN) {
        SendMessageW(form, kWordKeyDown, wParam, 0);
        if (wParam == VK_RETURN) {
            SendMessageW(form, WM_COMMAND, MAKEWPARAM(kIdGo, BN_CLICKED), 0);
            return 0;
        }
    }
    if (message == WM_CHAR && wParam == L'\r') {
        return 0;  // already pressed Go; no beep
    }
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(edit, &WordEditProcedure, kWordEditSubclass);
    }
    return DefSubclassProc(edit, message, wParam, lParam);
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
    icon_.reset(Icon(IDI_QUORIN));
    indexingIcon_.reset(Icon(IDI_INDEXING));
    SendMessageW(hwnd(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon_.get()));
    SendMessageW(hwnd(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon_.get()));
    services_.help.Setup(hwnd());
    CreateControls();
    LayOut();
    RECT frame{};
    GetWindowRect(hwnd(), &frame);
    const int screenWidth = PixelsToTwips(GetSystemMetrics(SM_CXSCREEN), dpi_);
    const int screenHeight = PixelsToTwips(GetSystemMetrics(SM_CYSCREEN), dpi_);
    startX_ = ReadTwips(services_.settings, "StartX",
                        (screenWidth - PixelsToTwips(frame.right - frame.left, dpi_)) / 2);
    startY_ = ReadTwips(services_.settings, "StartY",
                        (screenHeight - PixelsToTwips(frame.bottom - frame.top, dpi_)) / 2);
    SetWindowPos(hwnd(), nullptr, TwipsToPixels(startX_, dpi_), TwipsToPixels(startY_, dpi_), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    AddWords();
    // Let the word list and the layout settle before the icon invites the first click.
    MessagePump().DoEvents();
    services_.tray.CreateIcon(hwnd(), icon_.get(), kTip);
}

HICON frmMain::Icon(int resourceId) const {
    const int size = GetSystemMetrics(SM_CXSMICON);
    return static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(resourceId),
                                         IMAGE_ICON, size, size, 0));
}

void frmMain::CreateControls() {
    static constexpr std::array<std::string_view, kTabCount> kCaptions = {"Go", "Index", "Options",
                                                                          "Help", "Exit"};
    for (int i = 0; i < kTabCount; ++i) {
        tabLabel[i] = &ctlTabLabel::Create(hwnd(), kIdTab + i, kCaptions[i], 0, 0);
    }
    CreatePanels();
    mnuSystray.reset(CreatePopupMenu());
    AppendMenuW(mnuSystray.get(), MF_STRING, kIdMenuGo, L"Go");
    AppendMenuW(mnuSystray.get(), MF_SEPARATOR, 0, nullptr);
    AppendMenuW(mnuSystray.get(), MF_STRING, kIdMenuExit, L"E&xit Quorin");
}

void frmMain::CreatePanels() {
    for (int i = 0; i < kPanelCount; ++i) {
        const DWORD shown = i == kGoPanel ? WS_VISIBLE : 0;
        picPanel[i] = CreateHandle(kPanelClass,
                                   {.title = "",
                                    .style = WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | shown,
                                    .exStyle = WS_EX_CONTROLPARENT,
                                    .parent = hwnd(),
                                    .id = kIdPanel + i},
                                   nullptr);
    }
    struct ControlSpec {
        HWND frmMain::*member;
        int panel;
        const wchar_t* className;
        std::string_view text;
        DWORD style;
        int id;
        RECT twips;
    };
    static const ControlSpec kControls[] = {
        {&frmMain::lblEnterWord, kGoPanel, WC_STATICW, "Enter word:", 0, -1, {120, 165, 960, 225}},
        {&frmMain::cboWord, kGoPanel, WC_COMBOBOXW, "",
         CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP, kIdWord, {1080, 105, 3000, 1800}},
        {&frmMain::cmdGo, kGoPanel, WC_BUTTONW, "Go", BS_DEFPUSHBUTTON | WS_TABSTOP, kIdGo,
         {4200, 90, 900, 375}},
        {&frmMain::lblFile, kGoPanel, WC_STATICW, "", SS_LEFTNOWORDWRAP | SS_NOPREFIX, kIdFile,
         {1080, 540, 4020, 225}},
        {&frmMain::ProgressBar1, kGoPanel, PROGRESS_CLASSW, "", 0, kIdSearchProgress,
         {1080, 570, 3000, 165}},
        {&frmMain::lblIndexLastUpdated, kIndexPanel, WC_STATICW, "Index last updated:", 0, -1,
         {120, 90, 1680, 225}},
        {&frmMain::lblLastUpdated, kIndexPanel, WC_STATICW, "", SS_NOPREFIX, kIdLastUpdated,
         {1800, 90, 3400, 225}},
        {&frmMain::lblUpdateInterval, kIndexPanel, WC_STATICW,
         "Index automatically updated every 1 day(s).", 0, kIdUpdateInterval,
         {120, 345, 5000, 225}},
        {&frmMain::lblShutdown, kExitPanel, WC_STATICW, "Please wait while Quorin shuts down...",
         SS_CENTER, -1, {0, 330, 5280, 225}},
        {&frmMain::Animation1, kProgressPanel, ANIMATE_CLASSW, "",
         ACS_CENTER | ACS_TRANSPARENT | ACS_AUTOPLAY, kIdAnimation, {0, 0, 1440, 900}},
        {&frmMain::lblPleaseWait, kProgressPanel, WC_STATICW,
         "Please wait while Quorin indexes your hard drive. Depending on how much stuff you "
         "have, this may take a few minutes...",
         0, -1, {1500, 30, 3780, 600}},
        {&frmMain::lblFolders, kProgressPanel, WC_STATICW, "# of folders indexed:", SS_NOPREFIX, -1,
         {1500, 660, 1650, 225}},
        {&frmMain::lblCounter, kProgressPanel, WC_STATICW, "", 0, kIdCounter,
         {3150, 660, 1200, 225}},
    };
    struct LinkSpec {
        ctlLinkLabel* frmMain::*member;
        int panel;
        int id;
        std::string_view caption;
        int left;
        int top;
    };
    static const LinkSpec kLinks[] = {
        {&frmMain::lnkUpdate, kIndexPanel, kIdUpdate, "Update Index Now", 120, 600},
        {&frmMain::lnkGeneralOptions, kOptionsPanel, kIdGeneralOptions, "General Options", 120,
         90},
        {&frmMain::lnkFileTypes, kOptionsPanel, kIdFileTypes,
         "Change file types that are indexed", 120, 345},
        {&frmMain::lnkWords, kOptionsPanel, kIdWords, "Add/delete assigned words", 120, 600},
        {&frmMain::lnkHelp, kHelpPanel, kIdHelp, "Click here for help", 120, 90},
        {&frmMain::lnkQuorin, kHelpPanel, kIdQuorinPage, "Quorin", 120, 345},
        {&frmMain::lnkVeltaro, kHelpPanel, kIdVeltaroPage, "Veltaro, Inc.", 120, 600},
        {&frmMain::lnkCancel, kProgressPanel, kIdCancel, "Cancel", 4560, 660},
    };
    for (const ControlSpec& control : kControls) {
        this->*control.member = AddControl(control.panel, control.className, control.text,
                                           control.style, control.id, control.twips);
    }
    for (const LinkSpec& link : kLinks) {
        this->*link.member = AddLink(link.panel, link.id, link.caption, link.left, link.top);
    }
    ShowWindow(ProgressBar1, SW_HIDE);
    SubclassWordEdit();
}

void frmMain::SubclassWordEdit() {
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    GetComboBoxInfo(cboWord, &info);
    SetWindowSubclass(info.hwndItem, &WordEditProcedure, kWordEditSubclass,
                      reinterpret_cast<DWORD_PTR>(hwnd()));
}

HWND frmMain::AddControl(int panel, const wchar_t* className, std::string_view text, DWORD style,
                         int id, RECT twips) {
    const HWND control =
        CreateControl(picPanel[panel], className, text, WS_CLIPSIBLINGS | style, id);
    placements_.push_back({control, twips});
    return control;
}

ctlLinkLabel* frmMain::AddLink(int panel, int id, std::string_view caption, int left, int top) {
    ctlLinkLabel& link = ctlLinkLabel::Create(picPanel[panel], id, caption, 0, 0);
    placements_.push_back({link.hwnd(), {left, top, 0, 0}});
    return &link;
}

HWND frmMain::Control(int id) const {
    if (HWND control = GetDlgItem(hwnd(), id)) {
        return control;
    }
    for (HWND panel : picPanel) {
        if (HWND control = GetDlgItem(panel, id)) {
            return control;
        }
    }
    return nullptr;
}

// Everything the window shows is placed from twips at the window's DPI, so this runs again
// when the DPI changes.
void frmMain::LayOut() {
    dpi_ = WindowDpi(hwnd());
    const LOGFONTW messageFont = MessageFont(dpi_);
    font_.reset(CreateFontIndirectW(&messageFont));
    EnumChildWindows(
        hwnd(),
        [](HWND child, LPARAM font) {
            SendMessageW(child, WM_SETFONT, static_cast<WPARAM>(font), TRUE);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(font_.get()));
    tabLabel[currentTab_]->SetSelected(true);

    std::vector<int> tabWidths;
    for (const ctlTabLabel* tab : tabLabel) {
        RECT box{};
        GetWindowRect(tab->hwnd(), &box);
        tabWidths.push_back(box.right - box.left);
    }
    const MainLayout layout = ComputeMainLayout(dpi_, tabWidths);
    SetWindowPos(hwnd(), nullptr, 0, 0, layout.windowWidth, layout.windowHeight,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    for (int i = 0; i < kTabCount; ++i) {
        SetWindowPos(tabLabel[i]->hwnd(), nullptr, layout.tabLefts[i], 0, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    RECT client{};
    GetClientRect(hwnd(), &client);
    for (HWND panel : picPanel) {
        SetWindowPos(panel, nullptr, 0, layout.panelTop, layout.panelWidth,
                     client.bottom - layout.panelTop, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    for (const Placement& placement : placements_) {
        const RECT& twips = placement.twips;
        const UINT keepSize = twips.right == 0 ? SWP_NOSIZE : 0;
        SetWindowPos(placement.control, nullptr, TwipsToPixels(twips.left, dpi_),
                     TwipsToPixels(twips.top, dpi_), TwipsToPixels(twips.right, dpi_),
                     TwipsToPixels(twips.bottom, dpi_), keepSize | SWP_NOZORDER | SWP_NOACTIVATE);
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
    SendMessageW(cboWord, CB_RESETCONTENT, 0, 0);
    for (const clsItem& item : services_.index.Get().Words()) {
        SendMessageW(cboWord, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Widen(item.Word).c_str()));
    }
}

void frmMain::DisableTabs() {
    for (ctlTabLabel* tab : tabLabel) {
        tab->SetEnabled(false);
    }
}

void frmMain::EnableTabs() {
    for (ctlTabLabel* tab : tabLabel) {
        tab->SetEnabled(true);
    }
}

// Paints the window and every control in it now: the handlers that repaint go on to keep the
// thread busy (a build, the unload), so no paint message would be handled meanwhile.
void frmMain::Repaint() {
    RedrawWindow(hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void frmMain::SelectPanel(int panel) {
    tabLabel[panel]->SetSelected(true);
    currentTab_ = panel;
    ShowPanel();
}

void frmMain::ShowPanel() {
    for (int i = 0; i < kPanelCount; ++i) {
        ShowWindow(picPanel[i], i == currentTab_ ? SW_SHOW : SW_HIDE);
    }
    Repaint();
}

void frmMain::BeginIndexing(const std::string& animationPath) {
    SetWindowPos(picPanel[kProgressPanel], HWND_TOP, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
    SendMessageW(Animation1, ACM_OPENW, 0, reinterpret_cast<LPARAM>(Widen(animationPath).c_str()));
    DisableTabs();
    services_.tray.ChangeIcon(hwnd(), indexingIcon_.get(), kIndexingTip);
}

void frmMain::SetCounter(std::string_view text) {
    SetText(lblCounter, text);
}

void frmMain::EndIndexing() {
    SendMessageW(Animation1, ACM_OPENW, 0, 0);  // closes the file and stops playing
    ShowWindow(picPanel[kProgressPanel], SW_HIDE);
    EnableTabs();
    services_.tray.ChangeIcon(hwnd(), icon_.get(), kTip);
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
            cboWord_KeyDown(static_cast<int>(wParam));
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
        case WM_ENDSESSION:
            if (wParam != FALSE) {
                Unload();
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
    switch (id) {
        case kIdWord:
            cboWord_Command(code);
            break;
        case kIdGo:
            cmdGo_Click();
            break;
        case kIdUpdate:
            lnkUpdate_Click();
            break;
        case kIdCancel:
            lnkCancel_Click();
            break;
        case kIdGeneralOptions:
            services_.options.ShowOptions(kOptionsGeneral);
            break;
        case kIdFileTypes:
            services_.options.ShowOptions(kOptionsFileTypes);
            break;
        case kIdWords:
            services_.options.ShowOptions(kOptionsWords);
            break;
        case kIdHelp:
            lnkHelp_Click();
            break;
        case kIdQuorinPage:
            services_.shell.Open(kQuorinPage, "", "", kShowNormal);
            break;
        case kIdVeltaroPage:
            services_.shell.Open(kVeltaroPage, "", "", kShowNormal);
            break;
        case kIdMenuGo:
            mnuSystrayGo_Click();
            break;
        case kIdMenuExit:
            mnuSystrayExit_Click();
            break;
        default:
            break;
    }
}

void frmMain::cboWord_Command(int code) {
    switch (code) {
        case CBN_EDITCHANGE:
            cboWord_Change();
            break;
        case CBN_SETFOCUS:
            cboWord_GotFocus();
            break;
        case CBN_KILLFOCUS:
            cboWord_LostFocus();
            break;
        default:
            break;
    }
}

void frmMain::Form_Paint() {
    PaintDc paint(hwnd());
    RECT tabRow{};
    GetClientRect(hwnd(), &tabRow);
    tabRow.bottom = TwipsToPixels(kPanelTopTwips, dpi_);
    FillRect(paint.get(), &tabRow, GetSysColorBrush(COLOR_BTNSHADOW));
}

// Where the word box cannot take the focus (another panel is shown), the focus stays where it
// is, so that keys never reach a hidden box.
void frmMain::Form_Activate() {
    if (IsWindowVisible(cboWord)) {
        SetFocus(cboWord);
    }
}

bool frmMain::Form_QueryUnload(bool userClose) {
    if (!IsIconic(hwnd())) {
        StorePosition();
    }
    if (!userClose) {
        return false;
    }
    ShowWindow(hwnd(), SW_MINIMIZE);
    ShowWindow(hwnd(), SW_HIDE);
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
        services_.settings.Save("Main", "StartX", std::to_string(startX_));
        services_.settings.Save("Main", "StartY", std::to_string(startY_));
        services_.index.Release();
        services_.tray.RemoveIcon();
    }
    services_.help.Close();
}

void frmMain::StorePosition() {
    RECT frame{};
    GetWindowRect(hwnd(), &frame);
    startX_ = PixelsToTwips(frame.left, dpi_);
    startY_ = PixelsToTwips(frame.top, dpi_);
}

void frmMain::Form_MouseMove(WPARAM wParam, LPARAM lParam) {
    switch (DecodeTrayCallback(wParam, lParam)) {
        case TrayAction::Restore:
            RestoreFromTray();
            break;
        case TrayAction::Menu: {
            SetForegroundWindow(hwnd());
            POINT cursor{};
            GetCursorPos(&cursor);
            TrackPopupMenu(mnuSystray.get(), TPM_RIGHTBUTTON, cursor.x, cursor.y, 0, hwnd(),
                           nullptr);
            PostMessageW(hwnd(), WM_NULL, 0, 0);  // lets the menu close on a click elsewhere
            break;
        }
        case TrayAction::None:
            break;
    }
}

void frmMain::RestoreFromTray() {
    if (IsWindowVisible(hwnd())) {
        SetForegroundWindow(hwnd());
        return;
    }
    ShowWindow(hwnd(), SW_RESTORE);
    SetForegroundWindow(hwnd());
    ShowWindow(hwnd(), SW_SHOW);
    SetWindowPos(hwnd(), nullptr, TwipsToPixels(startX_, dpi_), TwipsToPixels(startY_, dpi_), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER);
}

void frmMain::ShowInFront() {
    if (IsIconic(hwnd())) {
        ShowWindow(hwnd(), SW_RESTORE);
    }
    SetForegroundWindow(hwnd());
    ShowWindow(hwnd(), SW_SHOW);
    Repaint();
}

void frmMain::tabLabel_Click(int Index) {
    currentTab_ = Index;
    ShowPanel();
    switch (Index) {
        case kGoPanel:
            SetFocus(cboWord);
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
}

void frmMain::cboWord_KeyDown(int KeyCode) {
    completion_.KeyDown(KeyCode);
}

void frmMain::cboWord_Change() {
    DWORD caret = 0;
    SendMessageW(cboWord, CB_GETEDITSEL, reinterpret_cast<WPARAM>(&caret), 0);
    const std::optional<CompletionEdit> edit = completion_.Change(
        WindowText(cboWord), static_cast<int>(caret),
        [this](std::string_view text) -> std::optional<std::string> {
            if (text.empty()) {
                return std::nullopt;  // a cleared box is not a prefix of everything
            }
            const LRESULT found = SendMessageW(cboWord, CB_FINDSTRING, static_cast<WPARAM>(-1),
                                               reinterpret_cast<LPARAM>(Widen(text).c_str()));
            if (found == CB_ERR) {
                return std::nullopt;
            }
            std::wstring entry(
                static_cast<size_t>(SendMessageW(cboWord, CB_GETLBTEXTLEN, found, 0)) + 1, L'\0');
            entry.resize(static_cast<size_t>(SendMessageW(cboWord, CB_GETLBTEXT, found,
                                                          reinterpret_cast<LPARAM>(entry.data()))));
            return Narrow(entry);
        });
    if (edit) {
        SetText(cboWord, edit->text);
        SendMessageW(cboWord, CB_SETEDITSEL, 0, MAKELPARAM(edit->selStart, -1));
    }
}

void frmMain::cboWord_GotFocus() {
    HighlightControl(cboWord);
}

void frmMain::cboWord_LostFocus() {
    UnhighlightControl(cboWord);
}

void frmMain::cmdGo_Click() {
    const std::string word = WindowText(cboWord);
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
        case GoAction::Kind::None:
            break;
    }
}

void frmMain::Timer1_Timer() {
    clsIndex& index = services_.index.Get();
    if (ReindexDue(services_.clock.Now(), index.LastUpdated)) {
        index.CreateIndex(true, *this);
    }
}

void frmMain::lnkUpdate_Click() {
    services_.index.Get().CreateIndex(false, *this);
}

void frmMain::lnkCancel_Click() {
    services_.index.Get().Cancel();
}

void frmMain::lnkHelp_Click() {
    services_.help.ShowTopic(kHelpUsingQuorin);
}

void frmMain::mnuSystrayGo_Click() {
    SelectPanel(kGoPanel);
    ShowInFront();
}

void frmMain::mnuSystrayExit_Click() {
    if (services_.index.Exists() && services_.index.Get().Indexing()) {
        ShowCannotExit();
        return;
    }
    SelectPanel(kExitPanel);
    DisableTabs();
    ShowInFront();
    Unload();
}

void frmMain::ShowCannotExit() {
    ShowInFront();
    services_.prompter.Ask("Cannot exit", kCannotExitText, PromptButtons::Ok,
                           PromptIcon::Information);
}

}  // namespace quorin
