#include <gtest/gtest.h>

#include "AnimationArt.h"
#include "IconArt.h"
#include "SplashArt.h"

namespace quorin::assets {
namespace {

int DifferingPixels(const Image& a, const Image& b, int left, int top, int right, int bottom) {
    int count = 0;
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            count += a.Pixel8(x, y) == b.Pixel8(x, y) ? 0 : 1;
        }
    }
    return count;
}

TEST(IconArt, EverySizeIsATileWithClearCornersAndTheBadgeOnlyUpperRight) {
    for (int size : kIconSizes) {
        SCOPED_TRACE(size);
        const Image program = DrawProgramIcon(size);
        const Image indexing = DrawIndexingIcon(size);
        ASSERT_EQ(program.Width(), size);
        ASSERT_EQ(program.Height(), size);
        EXPECT_EQ(program.Pixel8(0, 0).a, 0);
        EXPECT_EQ(program.Pixel8(size - 1, 0).a, 0);
        EXPECT_EQ(program.Pixel8(size / 2, size / 2).a, 255);
        EXPECT_EQ(program.Pixel8(size / 4, size * 3 / 4).a, 255);

        const int half = size / 2;
        EXPECT_EQ(DifferingPixels(program, indexing, 0, half, size, size), 0);
        EXPECT_EQ(DifferingPixels(program, indexing, 0, 0, half, half), 0);
        // The badge must stay visible in the tray at 16 px: a good part of the quarter.
        EXPECT_GT(DifferingPixels(program, indexing, half, 0, size, half), half * half / 4);
    }
}

TEST(AnimationArt, FramesLoopOnTheBackgroundWithTheLensMoving) {
    const std::vector<Image> frames = DrawSearchAnimation();
    ASSERT_EQ(frames.size(), static_cast<size_t>(kAnimationFrames));
    const Rgba8 background{0xF0, 0xF0, 0xF0, 0xFF};
    for (size_t f = 0; f < frames.size(); ++f) {
        SCOPED_TRACE(f);
        const Image& frame = frames[f];
        ASSERT_EQ(frame.Width(), kAnimationWidth);
        ASSERT_EQ(frame.Height(), kAnimationHeight);
        // A transparent player takes its key colour from the first pixel.
        EXPECT_EQ(frame.Pixel8(0, 0), background);
        EXPECT_EQ(frame.Pixel8(0, kAnimationHeight - 1), background);
        const Image& next = frames[(f + 1) % frames.size()];
        EXPECT_GT(DifferingPixels(frame, next, 0, 0, kAnimationWidth, kAnimationHeight), 100);
    }
}

TEST(SplashArt, PictureIsOpaqueEverywhere) {
    const Image picture = DrawSplashPicture();
    ASSERT_EQ(picture.Width(), kSplashWidth);
    ASSERT_EQ(picture.Height(), kSplashHeight);
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            ASSERT_EQ(picture.Pixel8(x, y).a, 255) << x << "," << y;
        }
    }
}

}  // namespace
}  // namespace quorin::assets
