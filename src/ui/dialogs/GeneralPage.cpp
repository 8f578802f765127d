#include "ui/dialogs/GeneralPage.h"

#include <commctrl.h>

#include <array>
#include <utility>

#include "OptionsDialog.h"
#include "index/clsIndex.h"
#include "platform/Text.h"
#include "ui/FocusColors.h"
#include "ui/WindowText.h"
#include "ui/dialogs/IntervalText.h"

namespace quorin {

namespace {

// The hotkey control speaks HOTKEYF_ flags, RegisterHotKey MOD_ flags.
constexpr std::array<std::pair<unsigned, unsigned>, 3> kFlagPairs = {{
    {HOTKEYF_CONTROL, MOD_CONTROL},
    {HOTKEYF_ALT, MOD_ALT},
    {HOTKEYF_SHIFT, MOD_SHIFT},
}};

WPARAM ControlValue(const Hotkey& hotkey) {
    unsigned flags = 0;
    for (const auto& [control, modifier] : kFlagPairs) {
        flags |= (hotkey.modifiers & modifier) != 0 ? control : 0;
    }
    return MAKEWORD(hotkey.key, flags);
}

Hotkey FromControlValue(LRESULT value) {
    Hotkey hotkey{0, LOBYTE(LOWORD(value))};
    for (const auto& [control, modifier] : kFlagPairs) {
        hotkey.modifiers |= (HIBYTE(LOWORD(value)) & control) != 0 ? modifier : 0;
    }
    return hotkey;
}

}  // namespace

void GeneralPage::Load(const clsIndex& index, const DriveSource& drives) {
    SetText(Interval(), std::to_string(index.UpdateInterval));
    CheckButton(IDC_OPTIONS_SYSTEM, index.IncludeSystemFolders);
    CheckButton(IDC_OPTIONS_IGNORE, index.IgnoreTempFolders);
    CheckButton(IDC_OPTIONS_ALLFOLDERS, index.AllFolders);

    entries_ = OfferedDriveEntries(drives.entries(), drives.typeOf);
    const HWND lstDrives = Item(IDC_OPTIONS_DRIVES);
    for (const std::string& entry : entries_) {
        SendMessageW(lstDrives, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Widen(entry).c_str()));
    }
    const auto configured = index.Drives();
    const std::vector<bool> selected = ConfiguredDriveSelection(entries_, configured);
    for (size_t i = 0; i < selected.size(); ++i) {
        if (selected[i]) {
            SendMessageW(lstDrives, LB_SETSEL, TRUE, static_cast<LPARAM>(i));
        }
    }
}

void GeneralPage::LoadStart(const std::optional<Hotkey>& hotkey, bool signIn,
                            HotkeyTarget* hotkeys) {
    hotkeys_ = hotkeys;
    const HWND field = Item(IDC_OPTIONS_HOTKEY);
    // A key without Ctrl or Alt would be taken from everything the user types.
    SendMessageW(field, HKM_SETRULES, HKCOMB_NONE | HKCOMB_S, MAKELPARAM(HOTKEYF_ALT, 0));
    const Hotkey shown = hotkey.value_or(*ParseHotkey(kDefaultHotkeyText));
    SendMessageW(field, HKM_SETHOTKEY, ControlValue(shown), 0);
    CheckButton(IDC_OPTIONS_USEHOTKEY, hotkey.has_value());
    CheckButton(IDC_OPTIONS_SIGNIN, signIn);
    ShowHotkeyState();
}

std::optional<Hotkey> GeneralPage::ChosenHotkey() const {
    if (!IsButtonChecked(IDC_OPTIONS_USEHOTKEY)) {
        return std::nullopt;
    }
    // Through the text form, so that an empty field, or what the setting could not hold, is none.
    return ParseHotkey(FormatHotkey(
        FromControlValue(SendMessageW(Item(IDC_OPTIONS_HOTKEY), HKM_GETHOTKEY, 0, 0))));
}

bool GeneralPage::SignIn() const {
    return IsButtonChecked(IDC_OPTIONS_SIGNIN);
}

// The field is usable only while the box is ticked; the line below it says when another
// program holds the combination.
void GeneralPage::ShowHotkeyState() {
    EnableItem(IDC_OPTIONS_HOTKEY, IsButtonChecked(IDC_OPTIONS_USEHOTKEY));
    const std::optional<Hotkey> chosen = ChosenHotkey();
    const bool taken = chosen && hotkeys_ != nullptr && !hotkeys_->HotkeyFree(*chosen);
    SetText(Item(IDC_OPTIONS_HOTKEYINUSE),
            taken ? FormatHotkey(*chosen).append(" is in use by another program. Choose another.")
                  : "");
}

void GeneralPage::Collect(IndexOptions& options) const {
    options.interval = WindowText(Interval());
    options.includeSystemFolders = IsButtonChecked(IDC_OPTIONS_SYSTEM);
    options.ignoreTempFolders = IsButtonChecked(IDC_OPTIONS_IGNORE);
    options.allFolders = IsButtonChecked(IDC_OPTIONS_ALLFOLDERS);
    std::vector<bool> selected;
    for (size_t i = 0; i < entries_.size(); ++i) {
        selected.push_back(SendMessageW(Item(IDC_OPTIONS_DRIVES), LB_GETSEL, i, 0) > 0);
    }
    options.drives = SelectedDrives(entries_, selected);
}

HWND GeneralPage::AllFolders() const {
    return Item(IDC_OPTIONS_ALLFOLDERS);
}

HWND GeneralPage::Interval() const {
    return Item(IDC_OPTIONS_INTERVAL);
}

void GeneralPage::txtInterval_LostFocus() {
    UnhighlightControl(Interval());
    const std::string text = WindowText(Interval());
    if (const std::string corrected = CorrectedIntervalText(text); corrected != text) {
        SetText(Interval(), corrected);
    }
}

void GeneralPage::OnCommand(int id, int code, HWND control) {
    if ((id == IDC_OPTIONS_USEHOTKEY && code == BN_CLICKED) ||
        (id == IDC_OPTIONS_HOTKEY && code == EN_CHANGE)) {
        ShowHotkeyState();
        return;
    }
    if (id != IDC_OPTIONS_INTERVAL) {
        return;
    }
    if (code == EN_SETFOCUS) {
        HighlightControl(control);
    } else if (code == EN_KILLFOCUS) {
        txtInterval_LostFocus();
    }
}

}  // namespace quorin
