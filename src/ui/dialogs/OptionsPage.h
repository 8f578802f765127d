#pragma once

#include <windows.h>

#include "ui/DialogItems.h"

namespace quorin {

// One page of the Options dialog: a child dialog laid into the tab control's display area.
// What its controls tell it goes on to the Options dialog, which hands it to the page object.
class OptionsPage : protected DialogItems {
  public:
    void Create(HWND dialog, int templateId);
    HWND hwnd() const { return page_; }
    // Shown or hidden, and filled the first time it is shown.
    void Show(bool shown);

    virtual void OnCommand(int /*id*/, int /*code*/, HWND /*control*/) {}
    virtual void OnNotify(const NMHDR& /*header*/) {}

  protected:
    HWND ItemsParent() const override { return page_; }
    virtual void FirstShown() {}

  private:
    HWND page_ = nullptr;  // the dialog's child; it goes with the dialog
    bool filled_ = false;
};

}  // namespace quorin
