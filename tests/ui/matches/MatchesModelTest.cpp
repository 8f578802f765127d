#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "platform/Text.h"
#include "ui/RememberedPlace.h"
#include "ui/matches/MatchRows.h"
#include "ui/matches/MatchesLayout.h"
#include "ui/matches/MatchesSort.h"
#include "ui/matches/TypedRow.h"

namespace quorin {
namespace {

TEST(MatchesLayoutTest, GrowsTheWidthFirstThenTheHeight) {
    EXPECT_FALSE(MatchesMinimumFix({3000, 3000}));
    EXPECT_FALSE(MatchesMinimumFix({9000, 7000}));

    // A narrow window's height is left to the resize the width change brings.
    for (const auto& [size, fixed] : {std::pair<TwipsSize, TwipsSize>{{2999, 100}, {3000, 100}},
                                      {{4500, 2999}, {4500, 3000}}}) {
        const std::optional<TwipsSize> fix = MatchesMinimumFix(size);
        ASSERT_TRUE(fix);
        EXPECT_EQ(std::pair(fix->width, fix->height), std::pair(fixed.width, fixed.height));
    }
}

TEST(MatchesLayoutTest, AtTheSmallestSizeNothingOverlapsAndALongCheckBoxCaptionGoesAboveOpen) {
    const MatchesLayout smallest = ArrangeMatches({3000, 3000});
    const TwipsRect& list = smallest.lvwItems;
    EXPECT_GT(list.height, 0);
    EXPECT_LT(list.top + list.height, smallest.cmdOpen.top);
    EXPECT_LT(smallest.chkAssociate.left + smallest.chkAssociate.width, smallest.cmdOpen.left);
    EXPECT_EQ(smallest.cmdOpen.left + smallest.cmdOpen.width, list.left + list.width);  // aligned
    EXPECT_LE(smallest.Label1.top + smallest.Label1.height, list.top);

    // A caption of 3255 x 210 twips, on one line, does not fit beside Open: the check box goes on
    // a row of its own, two lines tall at the smallest size, one line tall where the window's
    // width holds it; the designed size keeps it beside Open.
    const TwipsSize caption{3255, 210};
    const MatchesLayout wrapped = ArrangeMatches({3000, 3000}, caption);
    const TwipsRect& box = wrapped.chkAssociate;
    EXPECT_EQ(box.width, 3000 - 360);
    EXPECT_EQ(box.height, 420);
    EXPECT_EQ(box.top + box.height, wrapped.cmdOpen.top);
    EXPECT_LT(wrapped.lvwItems.top + wrapped.lvwItems.height, box.top);

    EXPECT_EQ(ArrangeMatches({3800, 3000}, caption).chkAssociate.height, 375);  // one line
    const MatchesLayout designed = ArrangeMatches(kMatchesDesignedSize, caption);
    EXPECT_EQ(designed.chkAssociate.top, designed.cmdOpen.top);
    EXPECT_EQ(designed.lvwItems.height, ArrangeMatches(kMatchesDesignedSize).lvwItems.height);
}

TEST(MatchesPlaceTest, AWindowIsKeptInsideTheWorkAreaAndShrunkOnlyWhenLarger) {
    const RECT work{0, 0, 1280, 760};
    const auto expectRect = [](const RECT& rect, RECT expected) {
        EXPECT_EQ(std::tie(rect.left, rect.top, rect.right, rect.bottom),
                  std::tie(expected.left, expected.top, expected.right, expected.bottom));
    };
    expectRect(KeptInside({100, 80, 580, 400}, work), {100, 80, 580, 400});  // inside: as it was
    expectRect(KeptInside({1000, 600, 1480, 920}, work), {800, 440, 1280, 760});
    expectRect(KeptInside({-300, -50, 180, 270}, work), {0, 0, 480, 320});
    expectRect(KeptInside({200, 100, 1700, 1000}, work), {0, 0, 1280, 760});
    // A second monitor left of the first.
    expectRect(KeptInside({-100, 10, 300, 210}, {-1920, 0, 0, 1040}), {-400, 10, 0, 210});

    expectRect(CentredIn({480, 320}, work), {400, 220, 880, 540});
    expectRect(CentredIn({480, 320}, {1280, 0, 3200, 1040}), {2000, 360, 2480, 680});
    expectRect(CentredIn({2000, 320}, work), {0, 220, 1280, 540});
}

TEST(TypedRowTest, FindsTheNextNameBeginningWithTheTextInTheOrderShown) {
    auto items = std::make_shared<IndexItems>();
    std::vector<int32_t> positions;
    for (const char* name : {"alpha report", "Beta", "gamma report", "Gold", "beta two", "émile"}) {
        items->Add(name, 0);
        positions.push_back(items->Count());
    }
    const MatchList matches(items, positions);
    MatchRows rows;
    rows.Fill(matches, [](int32_t) { return std::string("C:\\Work"); });

    struct Case {
        const wchar_t* typed;
        int start;
        int current;
        int row;
    };
    // The list starts a search after the current row for a first letter, and at it for more.
    const Case unsorted[] = {
        {L"g", 1, 0, 2},      {L"G", 1, 0, 2},   {L"ga", 2, 2, 2}, {L"go", 2, 2, 3},
        {L"gg", 2, 2, 3},     {L"ggg", 3, 3, 2}, {L"b", 5, 4, 1},  {L"\u00C9", 0, 0, 5},
        {L"betax", 0, 0, -1}, {L"x", 3, 2, -1},  {L"", 0, 0, -1},  {L"a", 6, 5, 0},
    };
    for (const Case& c : unsorted) {
        EXPECT_EQ(FindTypedRow(rows, c.typed, c.start, c.current), c.row) << Narrow(c.typed);
    }

    // Gold, gamma report, émile, beta two, Beta, alpha report.
    rows.Sort(MatchesSort::kName, MatchesSortOrder::Descending);
    EXPECT_EQ(FindTypedRow(rows, L"b", 0, -1), 3);
    EXPECT_EQ(FindTypedRow(rows, L"bb", 3, 3), 4);
    EXPECT_EQ(FindTypedRow(rows, L"g", 2, 1), 0);
}

}  // namespace
}  // namespace quorin
