#include "ui/dialogs/FileTypesPage.h"

#include "OptionsDialog.h"
#include "platform/Text.h"
#include "ui/Hourglass.h"

namespace quorin {

namespace {

constexpr int kColumnWidthDialogUnits = 48;

FileTypeList Other(FileTypeList list) {
    return list == FileTypeList::Include ? FileTypeList::Exclude : FileTypeList::Include;
}

int ListId(FileTypeList list) {
    return list == FileTypeList::Include ? IDC_OPTIONS_INCLUDE : IDC_OPTIONS_EXCLUDE;
}

}  // namespace

void FileTypesPage::Load(std::string filter, bool filterIsInclude, ExtensionSource extensions) {
    workingFilter_ = std::move(filter);
    savedInclude_ = filterIsInclude;
    extensions_ = std::move(extensions);
    suppressEvents_ = true;
    CheckRadioButton(hwnd(), IDC_OPTIONS_INCLUDEMODE, IDC_OPTIONS_EXCLUDEMODE,
                     filterIsInclude ? IDC_OPTIONS_INCLUDEMODE : IDC_OPTIONS_EXCLUDEMODE);
    optFileTypes_Click(filterIsInclude ? FileTypeList::Include : FileTypeList::Exclude);
    suppressEvents_ = false;
}

bool FileTypesPage::IncludeOnly() const {
    return IsButtonChecked(IDC_OPTIONS_INCLUDEMODE);
}

HWND FileTypesPage::List(FileTypeList list) const {
    return Item(ListId(list));
}

void FileTypesPage::FirstShown() {
    const Hourglass busy;
    suppressEvents_ = true;
    lists_.emplace(extensions_(), workingFilter_, savedInclude_);
    RECT column{0, 0, kColumnWidthDialogUnits, 0};
    MapDialogRect(hwnd(), &column);
    for (FileTypeList list : {FileTypeList::Include, FileTypeList::Exclude}) {
        const HWND box = List(list);
        SendMessageW(box, WM_SETREDRAW, FALSE, 0);
        SendMessageW(box, LB_SETCOLUMNWIDTH, static_cast<WPARAM>(column.right), 0);
        for (const std::string& extension : lists_->Extensions()) {
            SendMessageW(box, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Widen(extension).c_str()));
        }
        ShowSelection(list);
        SendMessageW(box, WM_SETREDRAW, TRUE, 0);
        InvalidateRect(box, nullptr, TRUE);
    }
    suppressEvents_ = false;
}

void FileTypesPage::FocusList() const {
    SendMessageW(GetParent(hwnd()), WM_NEXTDLGCTL,
                 reinterpret_cast<WPARAM>(
                     List(IncludeOnly() ? FileTypeList::Include : FileTypeList::Exclude)),
                 TRUE);
}

void FileTypesPage::OnCommand(int id, int code, HWND) {
    switch (id) {
        case IDC_OPTIONS_INCLUDEMODE:
        case IDC_OPTIONS_EXCLUDEMODE:
            if (code == BN_CLICKED) {
                optFileTypes_Click(id == IDC_OPTIONS_INCLUDEMODE ? FileTypeList::Include
                                                                 : FileTypeList::Exclude);
            }
            break;
        case IDC_OPTIONS_INCLUDE:
        case IDC_OPTIONS_EXCLUDE:
            if (code == LBN_SELCHANGE) {
                lstFileTypes_Click(id == IDC_OPTIONS_INCLUDE ? FileTypeList::Include
                                                             : FileTypeList::Exclude);
            }
            break;
        default:
            break;
    }
}

// The chosen mode's list takes the complement of the other's selection, so that the types
// indexed stay the same. A click on the option already chosen, which Windows reports as well,
// is no change of mode.
void FileTypesPage::optFileTypes_Click(FileTypeList chosen) {
    EnableItem(ListId(chosen), true);
    EnableItem(ListId(Other(chosen)), false);
    const bool changed = chosen != mode_;
    mode_ = chosen;
    if (suppressEvents_ || !lists_ || !changed) {
        return;
    }
    suppressEvents_ = true;
    lists_->SelectComplement(chosen);
    ShowSelection(chosen);
    suppressEvents_ = false;
    workingFilter_ = lists_->Filter(chosen);
}

void FileTypesPage::lstFileTypes_Click(FileTypeList list) {
    if (suppressEvents_ || !lists_) {
        return;
    }
    const std::vector<bool> shown = ListSelection(list);
    for (size_t i = 0; i < shown.size(); ++i) {
        lists_->Select(list, i, shown[i]);
    }
    workingFilter_ = lists_->Filter(list);
}

void FileTypesPage::CatchUp() {
    const FileTypeList list = IncludeOnly() ? FileTypeList::Include : FileTypeList::Exclude;
    if (lists_ && ListSelection(list) != lists_->Selection(list)) {
        lstFileTypes_Click(list);
    }
}

std::vector<bool> FileTypesPage::ListSelection(FileTypeList list) const {
    std::vector<bool> selected;
    const HWND box = List(list);
    for (size_t i = 0; i < lists_->Extensions().size(); ++i) {
        selected.push_back(SendMessageW(box, LB_GETSEL, i, 0) > 0);
    }
    return selected;
}

void FileTypesPage::ShowSelection(FileTypeList list) const {
    const HWND box = List(list);
    const std::vector<bool>& selection = lists_->Selection(list);
    for (size_t i = 0; i < selection.size(); ++i) {
        SendMessageW(box, LB_SETSEL, selection[i] ? TRUE : FALSE, static_cast<LPARAM>(i));
    }
}

}  // namespace quorin
