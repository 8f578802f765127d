#include "ui/controls/TabRow.h"

#include "ui/PaintDc.h"

namespace quorin {

void TabRow::Create(HWND parent, int firstId, std::span<const std::string_view> captions) {
    for (size_t i = 0; i < captions.size(); ++i) {
        tabs_.push_back(
            &ctlTabLabel::Create(parent, firstId + static_cast<int>(i), captions[i], 0, 0));
    }
}

void TabRow::SetEnabled(bool enabled) {
    for (ctlTabLabel* tab : tabs_) {
        tab->SetEnabled(enabled);
    }
}

std::vector<int> TabRow::Widths() const {
    std::vector<int> widths;
    for (const ctlTabLabel* tab : tabs_) {
        RECT box{};
        GetWindowRect(tab->hwnd(), &box);
        widths.push_back(box.right - box.left);
    }
    return widths;
}

void TabRow::Place(const std::vector<int>& lefts, int top) {
    for (size_t i = 0; i < tabs_.size() && i < lefts.size(); ++i) {
        SetWindowPos(tabs_[i]->hwnd(), nullptr, lefts[i], top, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void TabRow::PlaceInRow(int left, int top) {
    std::vector<int> lefts;
    for (int width : Widths()) {
        lefts.push_back(left);
        left += width;
    }
    Place(lefts, top);
}

void TabRow::PaintBand(HWND window, int bottom) {
    PaintDc paint(window);
    RECT band{};
    GetClientRect(window, &band);
    band.bottom = bottom;
    FillRect(paint.get(), &band, GetSysColorBrush(COLOR_BTNSHADOW));
}

}  // namespace quorin
