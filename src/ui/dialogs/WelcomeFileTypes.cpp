#include "ui/dialogs/WelcomeFileTypes.h"

#include <commctrl.h>

#include "platform/Text.h"
#include "ui/Dpi.h"
#include "ui/ListViewColumn.h"
#include "ui/SmallIconList.h"
#include "ui/dialogs/FileTypeLists.h"
#include "ui/dialogs/KnownExtensions.h"

namespace quorin {

namespace {

constexpr int kTypeColumnPixels = 80;
constexpr int kDescriptionColumnPixels = 330;

}  // namespace

void WelcomeFileTypes::Attach(HWND list) {
    lvwFileTypes = list;
    const int dpi = WindowDpi(GetParent(list));
    imlSmall = SmallIconList(dpi);
    ListView_SetImageList(lvwFileTypes, imlSmall.get(), LVSIL_SMALL);
    ListView_SetExtendedListViewStyle(lvwFileTypes, LVS_EX_FULLROWSELECT);
    AddListColumn(lvwFileTypes, 0, L"Type", ScaleForDpi(kTypeColumnPixels, dpi));
    AddListColumn(lvwFileTypes, 1, L"Description", ScaleForDpi(kDescriptionColumnPixels, dpi));
}

// As the classes root names them.
void WelcomeFileTypes::Fill(const std::string& filter) {
    ListView_DeleteAllItems(lvwFileTypes);
    ImageList_RemoveAll(imlSmall.get());
    rows_.clear();
    ctlIconExtractor1.ImageListSmall(imlSmall.get());
    for (const std::string& ext : KnownExtensions(registry_)) {
        if (FilterLists(filter, ext)) {
            AddFileType(ext);
        }
    }
    if (sort_.sorted) {
        SortRows();
    }
}

void WelcomeFileTypes::ColumnClick(int column) {
    sort_.ColumnClick(column);
    SortRows();
}

void WelcomeFileTypes::AddFileType(const std::string& ext) {
    const std::optional<int> image = ctlIconExtractor1.RetrieveExtIcon(ext);
    Row& added = rows_.emplace_back(Row{Widen(ext), Widen(Description(ext))});
    LVITEMW row{};
    row.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM;
    row.iItem = ListView_GetItemCount(lvwFileTypes);
    row.pszText = added.type.data();
    row.iImage = image.value_or(I_IMAGENONE);
    row.lParam = static_cast<LPARAM>(rows_.size() - 1);
    const int inserted = ListView_InsertItem(lvwFileTypes, &row);
    ListView_SetItemText(lvwFileTypes, inserted, 1, added.description.data());
}

// The extension's key names its class; the class's default value describes it.
std::string WelcomeFileTypes::Description(const std::string& ext) const {
    const std::string fileType = registry_.QueryValue(HKEY_CLASSES_ROOT, ext, "").AsText();
    if (fileType.empty()) {
        return {};
    }
    return registry_.QueryValue(HKEY_CLASSES_ROOT, fileType, "").AsText();
}

const std::wstring& WelcomeFileTypes::Row::Text(int column) const {
    return column == 0 ? type : description;
}

int CALLBACK WelcomeFileTypes::CompareRows(LPARAM first, LPARAM second, LPARAM self) {
    const auto& list = *reinterpret_cast<const WelcomeFileTypes*>(self);
    const int column = list.sort_.sortKey;
    const int order = lstrcmpiW(list.rows_.at(static_cast<size_t>(first)).Text(column).c_str(),
                                list.rows_.at(static_cast<size_t>(second)).Text(column).c_str());
    return list.sort_.sortOrder == MatchesSortOrder::Descending ? -order : order;
}

void WelcomeFileTypes::SortRows() {
    ListView_SortItems(lvwFileTypes, &CompareRows, reinterpret_cast<LPARAM>(this));
}

}  // namespace quorin
