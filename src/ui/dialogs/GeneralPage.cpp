#include "ui/dialogs/GeneralPage.h"

#include "OptionsDialog.h"
#include "index/clsIndex.h"
#include "platform/Text.h"
#include "ui/FocusColors.h"
#include "ui/WindowText.h"
#include "ui/dialogs/IntervalText.h"

namespace quorin {

namespace {

void SetChecked(HWND box, bool checked) {
    SendMessageW(box, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

bool Checked(HWND box) {
    return SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

}  // namespace

void GeneralPage::Load(const clsIndex& index, const DriveSource& drives) {
    SetText(Interval(), std::to_string(index.UpdateInterval));
    SetChecked(Item(IDC_OPTIONS_SYSTEM), index.IncludeSystemFolders);
    SetChecked(Item(IDC_OPTIONS_IGNORE), index.IgnoreTempFolders);

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

void GeneralPage::Collect(IndexOptions& options) const {
    options.interval = WindowText(Interval());
    options.includeSystemFolders = Checked(Item(IDC_OPTIONS_SYSTEM));
    options.ignoreTempFolders = Checked(Item(IDC_OPTIONS_IGNORE));
    std::vector<bool> selected;
    for (size_t i = 0; i < entries_.size(); ++i) {
        selected.push_back(SendMessageW(Item(IDC_OPTIONS_DRIVES), LB_GETSEL, i, 0) > 0);
    }
    options.drives = SelectedDrives(entries_, selected);
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
    if (id != IDC_OPTIONS_INTERVAL) {
        return;
    }
    if (code == EN_SETFOCUS) {
        HighlightControl(control);  // txtInterval_GotFocus
    } else if (code == EN_KILLFOCUS) {
        txtInterval_LostFocus();
    }
}

}  // namespace quorin
