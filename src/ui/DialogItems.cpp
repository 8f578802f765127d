#include "ui/DialogItems.h"

namespace quorin {

void DialogItems::CheckButton(int id, bool checked) const {
    CheckDlgButton(ItemsParent(), id, checked ? BST_CHECKED : BST_UNCHECKED);
}

bool DialogItems::IsButtonChecked(int id) const {
    return IsDlgButtonChecked(ItemsParent(), id) == BST_CHECKED;
}

void DialogItems::ShowItem(int id, bool shown) const {
    ShowWindow(Item(id), shown ? SW_SHOW : SW_HIDE);
}

void DialogItems::EnableItem(int id, bool enabled) const {
    EnableWindow(Item(id), enabled ? TRUE : FALSE);
}

}  // namespace quorin
