#include "ui/main/MainLayout.h"

#include "ui/Dpi.h"

namespace quorin {

MainLayout ComputeMainLayout(int dpi, const std::vector<int>& tabWidths, int contentBottom) {
    MainLayout layout;
    layout.clientWidth = TwipsToPixels(kMainClientWidthTwips, dpi);
    layout.panelTop = TwipsToPixels(kPanelTopTwips, dpi);
    layout.clientHeight =
        layout.panelTop + contentBottom + TwipsToPixels(kPanelBottomMarginTwips, dpi);
    int left = 0;
    for (const int width : tabWidths) {
        layout.tabLefts.push_back(left);
        left += width;
    }
    if (!tabWidths.empty()) {
        layout.tabLefts.back() =
            layout.clientWidth - tabWidths.back() - TwipsToPixels(kExitTabMarginTwips, dpi);
    }
    return layout;
}

}  // namespace quorin
