#include "ui/main/MainLayout.h"

#include "ui/Dpi.h"

namespace quorin {

MainLayout ComputeMainLayout(int dpi, const std::vector<int>& tabWidths) {
    MainLayout layout;
    layout.windowWidth = TwipsToPixels(kMainWindowWidthTwips, dpi);
    layout.windowHeight = TwipsToPixels(kMainWindowHeightTwips, dpi);
    layout.panelTop = TwipsToPixels(kPanelTopTwips, dpi);
    layout.panelWidth = layout.windowWidth;
    int left = 0;
    for (const int width : tabWidths) {
        layout.tabLefts.push_back(left);
        left += width;
    }
    if (!tabWidths.empty()) {
        layout.tabLefts.back() =
            layout.windowWidth - tabWidths.back() - TwipsToPixels(kExitTabMarginTwips, dpi);
    }
    return layout;
}

}  // namespace quorin
