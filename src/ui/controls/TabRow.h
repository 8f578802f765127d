#pragma once

#include <windows.h>

#include <span>
#include <string_view>
#include <vector>

#include "ui/controls/ctlTabLabel.h"

namespace quorin {

// A row of tab labels, tab i with the id firstId + i, as the main window and the wizard have
// along their tops. Both disable the whole row while a build runs.
class TabRow {
  public:
    void Create(HWND parent, int firstId, std::span<const std::string_view> captions);

    ctlTabLabel& operator[](int tab) { return *tabs_.at(static_cast<size_t>(tab)); }
    int Count() const { return static_cast<int>(tabs_.size()); }

    void SetEnabled(bool enabled);
    std::vector<int> Widths() const;
    // Tab i at (lefts[i], top) in pixels.
    void Place(const std::vector<int>& lefts, int top);
    // Each tab starting where the previous one ends.
    void PlaceInRow(int left, int top);

    // Answers the window's WM_PAINT: the band behind the row, from the top of its client area
    // down to `bottom` pixels, in the colour of the unselected tabs.
    static void PaintBand(HWND window, int bottom);

  private:
    std::vector<ctlTabLabel*> tabs_;  // owned by their windows
};

}  // namespace quorin
