#pragma once

#include <vector>

namespace quorin {

// The main window's design, in twips: the window takes panel 0's width and a fixed height,
// and the panels fill the client area beneath the tab row, one on top of another.
inline constexpr int kMainWindowWidthTwips = 5400;  // panel 0's width
inline constexpr int kMainWindowHeightTwips = 1500;
inline constexpr int kPanelTopTwips = 240;
inline constexpr int kExitTabMarginTwips = 60;

// Pixel geometry of the main window at one DPI.
struct MainLayout {
    int windowWidth = 0;  // outer size
    int windowHeight = 0;
    int panelTop = 0;
    int panelWidth = 0;
    std::vector<int> tabLefts;
};

// The tabs touch from the left edge, and the last one moves to the right edge, its margin
// measured from the outer width.
MainLayout ComputeMainLayout(int dpi, const std::vector<int>& tabWidths);

}  // namespace quorin
