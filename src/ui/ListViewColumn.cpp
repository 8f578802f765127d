#include "ui/ListViewColumn.h"

#include <commctrl.h>

namespace quorin {

void AddListColumn(HWND list, int column, const wchar_t* title, int width) {
    LVCOLUMNW header{};
    header.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    header.pszText = const_cast<wchar_t*>(title);
    header.cx = width;
    header.iSubItem = column;
    ListView_InsertColumn(list, column, &header);
}

}  // namespace quorin
