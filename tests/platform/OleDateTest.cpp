#include "platform/Clock.h"
#include "platform/OleDate.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorin {
namespace {

// Each day known, and every seventh second of it both ways.
TEST(OleDate, MatchesKnownDaysAndRoundTripsTheirSeconds) {
    const std::vector<std::pair<double, CivilTime>> cases = {
        {0.0, {1899, 12, 30, 0, 0, 0}},
        {1.5, {1899, 12, 31, 12, 0, 0}},
        {2.0, {1900, 1, 1, 0, 0, 0}},
        {60.0, {1900, 2, 28, 0, 0, 0}},  // no 29 February 1900
        {61.0, {1900, 3, 1, 0, 0, 0}},
        {-1.25, {1899, 12, 29, 6, 0, 0}},  // before the epoch the fraction still counts forward
        {25569.0, {1970, 1, 1, 0, 0, 0}},
        {36526.0, {2000, 1, 1, 0, 0, 0}},
        {50424.0, {2038, 1, 19, 0, 0, 0}},
        {-657434.0, {100, 1, 1, 0, 0, 0}},
        {45351.75, {2024, 2, 29, 18, 0, 0}},
        {2958465.0 + 86399.0 / 86400.0, {9999, 12, 31, 23, 59, 59}},
    };
    for (const auto& [oleDate, time] : cases) {
        EXPECT_EQ(FromOleDate(oleDate), time) << oleDate;
        EXPECT_NEAR(ToOleDate(time), oleDate, 1e-9) << oleDate;
        EXPECT_EQ(ParseIndexDate(FormatIndexDate(oleDate)), oleDate) << oleDate;
        // The seconds of the first day of year 100 lie below the least date the program takes.
        for (int second = 0; oleDate > -657434.0 && second < 86400; second += 7) {
            const CivilTime moment{time.year,     time.month,       time.day,
                                   second / 3600, second / 60 % 60, second % 60};
            ASSERT_EQ(FromOleDate(ToOleDate(moment)), moment) << FormatIndexDate(ToOleDate(moment));
        }
    }
}

TEST(IndexDate, ReadsBackWhatItWritesAndNothingElse) {
    const double date = ToOleDate({2024, 3, 5, 7, 8, 9});
    EXPECT_EQ(FormatIndexDate(date), "2024-03-05 07:08:09");
    EXPECT_EQ(ParseIndexDate(" \t2024-03-05 07:08:09 \t"), date);
    const double second = 1.0 / 86400.0;  // written to the nearest second
    EXPECT_EQ(FormatIndexDate(date + 0.4 * second), "2024-03-05 07:08:09");
    EXPECT_EQ(FormatIndexDate(date + 0.6 * second), "2024-03-05 07:08:10");
    EXPECT_EQ(FormatIndexDate(ToOleDate({2024, 12, 31, 23, 59, 59}) + 0.7 * second),
              "2025-01-01 00:00:00");
    const double now = SystemClock().Now();  // whole seconds, which survive the file
    EXPECT_GT(now, ToOleDate({2020, 1, 1}));
    EXPECT_EQ(ParseIndexDate(FormatIndexDate(now)), now);
    // clang-format off
    const char* const rejected[] = {
        "", "   ", "garbage", "2024-03-05", "2024-03-05 07:08", "2024-3-05 07:08:09",
        "2024-03-05  07:08:09", "2024-03-05T07:08:09", "2024/03/05 07:08:09",
        "2024-03-05 07:08:09.5", "x2024-03-05 07:08:09", "2024-03-05 07:08:09 x",
        "+024-03-05 07:08:09", "2024-00-05 07:08:09", "2024-13-05 07:08:09",
        "2024-03-00 07:08:09", "2024-04-31 07:08:09", "2023-02-29 07:08:09",
        "1900-02-29 07:08:09", "2024-03-05 24:00:00", "2024-03-05 07:60:09",
        "2024-03-05 07:08:60", "0099-12-31 23:59:59", "3/5/2024 7:08:09 AM", " 42"};
    // clang-format on
    for (const char* text : rejected) {
        EXPECT_FALSE(ParseIndexDate(text).has_value()) << '"' << text << '"';
    }
}

}  // namespace
}  // namespace quorin
