#include <gtest/gtest.h>

#include "ui/Dpi.h"

namespace quorin {
namespace {

TEST(Dpi, TwipsAndPixelsAt96And144RoundingHalfAwayFromZero) {
    EXPECT_EQ(TwipsToPixels(1500, 96), 100);
    EXPECT_EQ(TwipsToPixels(240, 96), 16);
    EXPECT_EQ(TwipsToPixels(7, 96), 0);
    EXPECT_EQ(TwipsToPixels(8, 96), 1);
    EXPECT_EQ(TwipsToPixels(-8, 96), -1);
    EXPECT_EQ(PixelsToTwips(100, 96), 1500);

    EXPECT_EQ(TwipsToPixels(1500, 144), 150);
    EXPECT_EQ(TwipsToPixels(15, 144), 2);
    EXPECT_EQ(TwipsToPixels(-15, 144), -2);
    EXPECT_EQ(PixelsToTwips(1, 144), 10);
}

TEST(Dpi, PixelsSurviveTheTripThroughTwips) {
    for (const int dpi : {96, 120, 144, 168, 192, 288}) {
        for (int pixels = -3000; pixels <= 3000; ++pixels) {
            ASSERT_EQ(TwipsToPixels(PixelsToTwips(pixels, dpi), dpi), pixels) << dpi;
        }
    }
}

}  // namespace
}  // namespace quorin
