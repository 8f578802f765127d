#include <gtest/gtest.h>

#include <cctype>
#include <string_view>

#include "ui/controls/LabelModel.h"

namespace quorin {
namespace {

TEST(LabelModel, InsideTestsOfTheTwoLabels) {
    struct Case {
        int x, y;
        bool tab, link;
    };
    // 10 x 5 pixels: the tab counts its whole area, the link leaves out its first row and column.
    for (const Case c : {Case{0, 0, true, false}, Case{0, 2, true, false}, Case{4, 0, true, false},
                         Case{1, 1, true, true}, Case{9, 4, true, true}, Case{10, 2, false, false},
                         Case{4, 5, false, false}, Case{-1, 2, false, false}}) {
        EXPECT_EQ(InsideTabLabel(c.x, c.y, 10, 5), c.tab) << c.x << "," << c.y;
        EXPECT_EQ(InsideLinkLabel(c.x, c.y, 10, 5), c.link) << c.x << "," << c.y;
    }
}

TEST(LabelModel, MouseSequences) {
    struct Case {
        std::string_view steps;
        bool underlined, captured;
        int clicks;
    };
    // m/M a move outside/inside, d/D a press, u/U a release, r a reset, s selecting the tab first.
    const Case cases[] = {
        {"M", true, true, 0},      // hover underlines and holds the capture
        {"Mm", false, false, 0},   // leaving lets both go
        {"sM", false, false, 0},   // a selected tab neither underlines nor captures
        {"U", true, true, 0},      // a release without a press is only a move
        {"u", false, false, 0},    // ... also outside
        {"DU", false, false, 1},   // a click ends the hover
        {"DUU", true, true, 1},    // ... and the next release is a move again
        {"Dm", false, true, 0},    // a press keeps the capture outside
        {"Dmu", false, false, 1},  // so a release anywhere still clicks
        {"dU", false, false, 1},   // ... and wherever the press began
        {"sDU", false, false, 1},  // the selected tab still clicks
        {"sDr", false, false, 0},  // a capture taken away drops the press, not the selection
        {"DrU", true, true, 0},    // ... so the release after it is only a move
    };
    for (const Case& c : cases) {
        LabelModel model;
        int clicks = 0;
        for (const char step : c.steps) {
            const bool inside = std::isupper(static_cast<unsigned char>(step)) != 0;
            const int kind = std::tolower(static_cast<unsigned char>(step));
            if (kind == 's') {
                model.SetSelected(true);
            } else if (kind == 'm') {
                model.MouseMove(inside);
            } else if (kind == 'd') {
                model.MouseDown(inside);
            } else if (kind == 'u') {
                clicks += model.MouseUp(inside) ? 1 : 0;
            } else {
                model.Reset();
            }
        }
        EXPECT_EQ(model.Underlined(), c.underlined) << c.steps;
        EXPECT_EQ(model.Captured(), c.captured) << c.steps;
        EXPECT_EQ(clicks, c.clicks) << c.steps;
        EXPECT_EQ(model.Selected(), c.steps[0] == 's') << c.steps;
    }
}

}  // namespace
}  // namespace quorin
