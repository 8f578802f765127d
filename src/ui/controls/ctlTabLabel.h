#pragma once

#include <windows.h>

#include <string_view>

#include "ui/controls/LabelWindow.h"

namespace quorin {

// One flat tab of a tab row. Unselected: the caption in the highlight text colour on the
// button shadow colour, underlined while the pointer is over it. Selected: bold button text on
// the button face, never underlined, so that it looks raised into the panel beneath. Disabled:
// the unselected caption in the 3D light colour, the selected one in grey text. Pressing
// and releasing the mouse selects the tab and raises Click (see kLabelClick), wherever the
// release happens. Selecting a tab deselects every other tab label of the same top-level
// window, those inside panels too, and touches no other control.
//
// The size is that of the caption in bold with a blank on each side, so that selecting never
// changes it. A caption change waits for the next resize (any sizing of the window, or
// WM_SETFONT). After a resize the caption is drawn not bold whatever Selected is, until Selected
// is next set: a window sends WM_SETFONT first and then selects its tab.
class ctlTabLabel final : public LabelWindow {
  public:
    // Made by its window; use Create, or CreateWindowExW with the registered class.
    ctlTabLabel() = default;

    static ATOM Register();
    // A visible child at (x, y) in pixels, owned by its window.
    static ctlTabLabel& Create(HWND parent, int id, std::string_view caption, int x, int y);
    static ctlTabLabel* From(HWND window);

    void SetSelected(bool selected);

  private:
    LabelLook Look() const override;
    LabelRole Role() const override;
    bool Inside(int x, int y, int width, int height) const override;
    void UserControl_Resize() override;
    void Clicked() override;
    void DeselectOtherTabs();

    bool bold_ = false;
    bool bInResize = false;
};

}  // namespace quorin
