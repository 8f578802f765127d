#pragma once

#include <windows.h>

#include <string_view>

#include "ui/controls/LabelWindow.h"

namespace quorin {

// The hyperlink-style label: the caption in blue, RGB(0, 0, 192), on BackColor, underlined
// while the pointer is over it; pressing and releasing raises Click (see kLabelClick) wherever
// the release happens. The control always has exactly the size of its caption, also after a
// caption change. The inside test is strict (InsideLinkLabel).
class ctlLinkLabel final : public LabelWindow {
  public:
    // Made by its window; use Create, or CreateWindowExW with the registered class.
    ctlLinkLabel() = default;

    static ATOM Register();
    // A visible child at (x, y) in pixels, owned by its window.
    static ctlLinkLabel& Create(HWND parent, int id, std::string_view caption, int x, int y);
    static ctlLinkLabel* From(HWND window);

    OleColor BackColor() const { return backColor_; }
    void SetBackColor(OleColor color);

  private:
    LabelLook Look() const override;
    LabelRole Role() const override;
    bool Inside(int x, int y, int width, int height) const override;
    void UserControl_Resize() override;
    void CaptionChanged() override;

    OleColor backColor_ = SystemColor(COLOR_BTNFACE);
};

}  // namespace quorin
