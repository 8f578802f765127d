#include "ui/dialogs/frmOptions.h"

#include <commctrl.h>

#include "OptionsDialog.h"
#include "index/IndexSettings.h"
#include "index/clsIndex.h"
#include "platform/Errors.h"
#include "platform/Prompter.h"
#include "platform/SettingsStore.h"
#include "platform/registry/SignInStart.h"
#include "ui/Dpi.h"
#include "ui/FocusColors.h"
#include "ui/TabKeys.h"
#include "ui/WindowText.h"
#include "ui/dialogs/DialogTexts.h"
#include "ui/help/Help.h"

namespace quorin {

namespace {

constexpr SIZE kTabPadding{6, 3};  // the system's own at 96 dpi
constexpr std::array<const wchar_t*, kOptionsPageCount> kTabCaptions = {L"General", L"File Types",
                                                                        L"Words"};
constexpr std::array<int, kOptionsPageCount> kPageTemplates = {
    IDD_OPTIONS_GENERAL, IDD_OPTIONS_FILETYPES, IDD_OPTIONS_WORDS};
constexpr std::array<int32_t, kOptionsPageCount> kPageHelp = {
    kHelpGeneralOptions, kHelpFileTypeOptions, kHelpWordOptions};

}  // namespace

frmOptions::frmOptions(OptionsServices services)
    : Dialog(IDD_OPTIONS),
      services_(std::move(services)),
      wordsPage_({services_.index, services_.prompter, services_.files, services_.icon}) {}

void frmOptions::Panel(int page) {
    currentPage_ = page;
    if (hwnd() != nullptr) {
        TabCtrl_SetCurSel(TabStrip1, page);
        TabStrip1_Click();
    }
}

void frmOptions::ShowAllFoldersOption() {
    Panel(0);
    focusAllFolders_ = hwnd() == nullptr;
    if (hwnd() != nullptr) {
        SendMessageW(hwnd(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(generalPage_.AllFolders()),
                     TRUE);
    }
}

bool frmOptions::OnInit() {
    SetIcon(services_.icon);
    TabStrip1 = Item(IDC_OPTIONS_TABS);
    // The system's padding is in pixels; scaled like the font, the captions keep clear of the
    // tabs' edges at any DPI.
    const int dpi = WindowDpi(hwnd());
    TabCtrl_SetPadding(TabStrip1, ScaleForDpi(kTabPadding.cx, dpi),
                       ScaleForDpi(kTabPadding.cy, dpi));
    for (int i = 0; i < kOptionsPageCount; ++i) {
        TCITEMW tab{};
        tab.mask = TCIF_TEXT;
        tab.pszText = const_cast<wchar_t*>(kTabCaptions[static_cast<size_t>(i)]);
        TabCtrl_InsertItem(TabStrip1, i, &tab);
        Page(i).Create(hwnd(), kPageTemplates[static_cast<size_t>(i)]);
    }
    LayOutPages();
    Form_Load();
    Panel(currentPage_);
    if (focusAllFolders_) {
        SendMessageW(hwnd(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(generalPage_.AllFolders()),
                     TRUE);
        return false;
    }
    return currentPage_ != 1;  // the File Types page puts the focus into its list
}

// The pages lie in the tab control's display area, right after it in the tab order.
void frmOptions::LayOutPages() {
    RECT area = RectInParent(TabStrip1);
    SendMessageW(TabStrip1, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
    HWND previous = TabStrip1;
    for (int i = 0; i < kOptionsPageCount; ++i) {
        SetWindowPos(Page(i).hwnd(), previous, area.left, area.top, area.right - area.left,
                     area.bottom - area.top, SWP_NOACTIVATE);
        previous = Page(i).hwnd();
    }
}

void frmOptions::Form_Load() {
    const clsIndex& index = services_.index;
    fileTypesPage_.Load(index.Filter, index.FilterIsInclude, services_.extensions);
    generalPage_.Load(index, services_.drives);
    generalPage_.LoadStart(LoadHotkey(services_.settings),
                           services_.signIn != nullptr && services_.signIn->IsOn(),
                           services_.hotkeys);
}

OptionsPage& frmOptions::Page(int page) {
    switch (page) {
        case 1:
            return fileTypesPage_;
        case 2:
            return wordsPage_;
        default:
            return generalPage_;
    }
}

void frmOptions::TabStrip1_Click() {
    currentPage_ = TabCtrl_GetCurSel(TabStrip1);
    ShowPage();
}

void frmOptions::ShowPage() {
    for (int i = 0; i < kOptionsPageCount; ++i) {
        Page(i).Show(i == currentPage_);
    }
    if (currentPage_ == 1) {
        fileTypesPage_.FocusList();
    }
}

void frmOptions::OnCommand(int id, int code, HWND control) {
    if (id == IDC_OPTIONS_HELP && code == BN_CLICKED) {
        services_.help.ShowTopic(kPageHelp[static_cast<size_t>(currentPage_)]);
        return;
    }
    for (int i = 0; i < kOptionsPageCount; ++i) {
        if (GetParent(control) == Page(i).hwnd()) {
            Page(i).OnCommand(id, code, control);
        }
    }
}

LRESULT frmOptions::OnNotify(const NMHDR& header) {
    if (header.hwndFrom == TabStrip1 && header.code == TCN_SELCHANGE) {
        TabStrip1_Click();
    }
    return 0;
}

HBRUSH frmOptions::OnControlColor(HWND control, HDC dc) {
    return FocusColors(control, dc);
}

// Ctrl+Tab and Ctrl+Shift+Tab change pages, as in every tabbed dialog.
bool frmOptions::OnKey(const MSG& message) {
    const std::optional<int> next = PageAfterCtrlTab(message, currentPage_, kOptionsPageCount);
    if (!next) {
        return false;
    }
    Panel(*next);
    SetFocus(TabStrip1);
    return true;
}

void frmOptions::cmdOK_Click() {
    // Enter leaves the interval box without its losing the focus; OK stores it put right all
    // the same.
    if (GetFocus() == generalPage_.Interval()) {
        generalPage_.txtInterval_LostFocus();
    }
    fileTypesPage_.CatchUp();
    if (fileTypesPage_.WorkingFilter().find_first_not_of(' ') == std::string::npos) {
        switch (services_.prompter.Ask(kNoFilterTitle, kNoFilterText, PromptButtons::YesNoCancel,
                                       PromptIcon::Question)) {
            case PromptAnswer::Yes:
                fileTypesPage_.SetWorkingFilter(services_.index.Filter);
                break;
            case PromptAnswer::No:
                break;
            default:
                return;
        }
    }
    if (!IntervalAccepted()) {
        return;
    }
    // The start options first: when one of them cannot be stored, "Index" is not written either,
    // so that the stored settings never run ahead of the engine.
    SaveStartOptions();
    if (!SaveSettings()) {
        return;
    }
    services_.index.UpdateSettings();
    if (wordsPage_.WordsChanged()) {
        services_.index.LoadWords();
        if (services_.AddWords) {
            services_.AddWords();
        }
    }
    EndDialog(IDOK);
}

// False, with the reason shown and the focus in the box, when the next start could not read
// the interval.
bool frmOptions::IntervalAccepted() {
    const std::string interval = WindowText(generalPage_.Interval());
    if (IsReadableInterval(interval)) {
        return true;
    }
    services_.prompter.Ask(kBadIntervalTitle, BadIntervalText(interval), PromptButtons::Ok,
                           PromptIcon::Exclamation);
    Panel(0);
    SendMessageW(hwnd(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(generalPage_.Interval()), TRUE);
    return false;
}

// False, with the reason shown, when nothing or not everything could be stored.
bool frmOptions::SaveSettings() {
    IndexOptions options;
    generalPage_.Collect(options);
    options.filter = fileTypesPage_.WorkingFilter();
    options.filterIsInclude = fileTypesPage_.IncludeOnly();
    try {
        SaveIndexOptions(options, services_.settings);
    } catch (const Error& error) {
        services_.prompter.Ask(kBadIntervalTitle, error.what(), PromptButtons::Ok,
                               PromptIcon::Critical);
        return false;
    }
    return true;
}

// The hotkey is taken at once, not at the next start.
void frmOptions::SaveStartOptions() {
    const std::optional<Hotkey> hotkey = generalPage_.ChosenHotkey();
    SaveHotkey(services_.settings, hotkey);
    if (services_.hotkeys != nullptr) {
        services_.hotkeys->ApplyHotkey(hotkey);
    }
    if (services_.signIn == nullptr) {
        return;
    }
    if (generalPage_.SignIn()) {
        services_.signIn->TurnOn();
    } else if (services_.signIn->IsOn()) {
        services_.signIn->TurnOff();
    }
}

}  // namespace quorin
