#include "ui/matches/MatchesLayout.h"

#include <algorithm>

namespace quorin {
namespace {

constexpr int kMargin = 120;
constexpr int kLabelHeight = 420;  // two lines, for a narrow window
constexpr int kListTop = 600;
constexpr int kButtonWidth = 1140;
constexpr int kButtonHeight = 375;

}  // namespace

std::optional<TwipsSize> MatchesMinimumFix(TwipsSize window) {
    if (window.width < kMatchesMinimumTwips) {
        return TwipsSize{kMatchesMinimumTwips, window.height};
    }
    if (window.height < kMatchesMinimumTwips) {
        return TwipsSize{window.width, kMatchesMinimumTwips};
    }
    return std::nullopt;
}

MatchesLayout ArrangeMatches(TwipsSize window, TwipsSize associate) {
    const int w = window.width;
    const int h = window.height;
    MatchesLayout layout;
    layout.Label1 = {kMargin, kMargin, w - 360, kLabelHeight};
    layout.lvwItems = {kMargin, kListTop, w - 360, h - 1500};
    layout.cmdOpen = {w - 1380, h - 870, kButtonWidth, kButtonHeight};
    layout.chkAssociate = {kMargin, h - 870, w - 1560, kButtonHeight};
    if (associate.width > layout.chkAssociate.width) {
        const int lines = associate.width > w - 360 ? 2 : 1;
        const int height = std::max(kButtonHeight, lines * associate.height);
        layout.chkAssociate = {kMargin, h - 870 - height, w - 360, height};
        layout.lvwItems.height -= height;
    }
    return layout;
}

}  // namespace quorin
