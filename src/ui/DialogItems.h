#pragma once

#include <windows.h>

namespace quorin {

// The chores a window made from a dialog template does on its controls, by control id, so that
// the dialogs and the Options pages speak of their items rather than of the messages to them.
class DialogItems {
  public:
    virtual ~DialogItems() = default;

  protected:
    // The window holding the items.
    virtual HWND ItemsParent() const = 0;

    HWND Item(int id) const { return GetDlgItem(ItemsParent(), id); }
    void CheckButton(int id, bool checked) const;
    bool IsButtonChecked(int id) const;
    void ShowItem(int id, bool shown) const;
    void EnableItem(int id, bool enabled) const;
};

}  // namespace quorin
