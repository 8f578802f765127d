#include <gtest/gtest.h>

#include <cctype>
#include <string>

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

// Each step is one letter: m/M a move outside/inside, d/D a press, u/U a release, r a reset.
TEST(LabelModel, MouseSequences) {
    struct Case {
        const char* steps;
        bool selected;
        bool underlined, captured;
        int clicks;
    };
    const Case cases[] = {
        {"M", false, true, true, 0},     // hover underlines and holds the capture
        {"Mm", false, false, false, 0},  // leaving lets both go
        {"M", true, false, false, 0},    // a selected tab neither underlines nor captures
        {"U", false, true, true, 0},     // a release without a press is only a move
        {"u", false, false, false, 0},
        {"DU", false, false, false, 1},   // a click ends the hover
        {"Dm", false, false, true, 0},    // a press keeps the capture outside
        {"Dmu", false, false, false, 1},  // so a release anywhere still clicks
        {"dU", false, false, false, 1},
        {"DU", true, false, false, 1},  // the selected tab still clicks
        {"Dr", false, false, false, 0},
        {"DrU", false, true, true, 0},  // a capture taken away drops the press
        {"DUU", false, true, true, 1},
    };
    for (const Case& c : cases) {
        LabelModel model;
        model.SetSelected(c.selected);
        int clicks = 0;
        for (const char* step = c.steps; *step != '\0'; ++step) {
            const bool inside = std::isupper(static_cast<unsigned char>(*step)) != 0;
            switch (std::tolower(static_cast<unsigned char>(*step))) {
                case 'm':
                    model.MouseMove(inside);
                    break;
                case 'd':
                    model.MouseDown(inside);
                    break;
                case 'u':
                    clicks += model.MouseUp(inside) ? 1 : 0;
                    break;
                default:
                    model.Reset();
                    break;
            }
        }
        const std::string at = std::string(c.steps) + (c.selected ? " selected" : "");
        EXPECT_EQ(model.Underlined(), c.underlined) << at;
        EXPECT_EQ(model.Captured(), c.captured) << at;
        EXPECT_EQ(clicks, c.clicks) << at;
        EXPECT_EQ(model.Selected(), c.selected) << at;
    }
}

}  // namespace
}  // namespace quorin
