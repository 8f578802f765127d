#include <gtest/gtest.h>

#include "ui/matches/MatchesLayout.h"
#include "ui/matches/MatchesSort.h"

namespace quorin {
namespace {

TEST(MatchesSortTest, TheSortedColumnFlipsAndAnotherColumnStartsAscending) {
    struct Step {
        int column;
        int key;
        MatchesSortOrder order;
    };
    constexpr auto kUp = MatchesSortOrder::Ascending;
    constexpr auto kDown = MatchesSortOrder::Descending;
    const Step steps[] = {
        {MatchesSort::kName, MatchesSort::kName, kDown},  // the very first click on "Name"
        {MatchesSort::kName, MatchesSort::kName, kUp},
        {MatchesSort::kLocation, MatchesSort::kLocation, kUp},
        {MatchesSort::kLocation, MatchesSort::kLocation, kDown},
        {MatchesSort::kName, MatchesSort::kName, kUp},
    };
    MatchesSort sort;
    EXPECT_FALSE(sort.Sorted);
    for (const Step& step : steps) {
        sort.ColumnClick(step.column);
        EXPECT_TRUE(sort.Sorted);
        EXPECT_EQ(sort.SortKey, step.key);
        EXPECT_EQ(sort.SortOrder, step.order);
    }

    MatchesSort fresh;
    fresh.ColumnClick(MatchesSort::kLocation);
    EXPECT_EQ(fresh.SortOrder, kUp);
}

TEST(MatchesLayoutTest, GrowsTheWidthFirstThenTheHeight) {
    EXPECT_FALSE(MatchesMinimumFix({3000, 3000}));
    EXPECT_FALSE(MatchesMinimumFix({9000, 7000}));

    const std::optional<TwipsSize> narrow = MatchesMinimumFix({2999, 100});
    ASSERT_TRUE(narrow);
    EXPECT_EQ(narrow->width, 3000);
    EXPECT_EQ(narrow->height, 100);  // left to the resize the width change brings

    const std::optional<TwipsSize> low = MatchesMinimumFix({4500, 2999});
    ASSERT_TRUE(low);
    EXPECT_EQ(low->width, 4500);
    EXPECT_EQ(low->height, 3000);
}

TEST(MatchesLayoutTest, AtTheSmallestSizeNothingOverlaps) {
    const MatchesLayout smallest = ArrangeMatches({3000, 3000});
    const TwipsRect& list = smallest.lvwItems;
    EXPECT_GT(list.height, 0);
    EXPECT_LT(list.top + list.height, smallest.cmdOpen.top);
    EXPECT_LT(smallest.chkAssociate.left + smallest.chkAssociate.width, smallest.cmdOpen.left);
    EXPECT_EQ(smallest.cmdOpen.left + smallest.cmdOpen.width, list.left + list.width);  // aligned
    EXPECT_LE(smallest.Label1.top + smallest.Label1.height, list.top);
}

}  // namespace
}  // namespace quorin
