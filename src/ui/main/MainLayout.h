#pragma once

#include <vector>

namespace quorin {

// The main window's design, in twips: the client area is as wide as the panels were drawn and as
// tall as the tab row and the panels' contents need, whatever frame the system draws around it;
// the panels fill it beneath the tab row, one on top of another.
inline constexpr int kMainClientWidthTwips = 5310;
inline constexpr int kPanelTopTwips = 240;
inline constexpr int kPanelBottomMarginTwips = 90;
inline constexpr int kExitTabMarginTwips = 60;

// Pixel geometry of the main window's client area at one DPI.
struct MainLayout {
    int clientWidth = 0;
    int clientHeight = 0;
    int panelTop = 0;
    std::vector<int> tabLefts;
};

// `contentBottom` is the lowest bottom edge of the panels' controls, in pixels from the panels'
// top. The tabs touch from the left edge, and the last one moves to the right edge.
MainLayout ComputeMainLayout(int dpi, const std::vector<int>& tabWidths, int contentBottom);

}  // namespace quorin
