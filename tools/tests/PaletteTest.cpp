#include "Palette.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace quorin::assets {
namespace {

constexpr Rgb8 kBackground{240, 240, 240};

Image FromColors(const std::vector<uint32_t>& colors) {
    Image image(static_cast<int>(colors.size()), 1);
    for (size_t x = 0; x < colors.size(); ++x) {
        image.At(static_cast<int>(x), 0) = Rgb(colors[x]);
    }
    return image;
}

Rgb8 Shown(const IndexedFrames& video, size_t frame, size_t pixel) {
    return video.palette.at(video.frames.at(frame).at(pixel));
}

TEST(Quantize, KeepsFewColoursExactAndTheBackgroundFirst) {
    // The background is neither the first pixel nor the most frequent colour.
    const Image first = FromColors({0x102030, 0x102030, 0x102030, 0xF0F0F0});
    const Image second = FromColors({0xF0F0F0, 0xFF8800, 0x102030, 0x00FF00});
    const IndexedFrames video = Quantize({first, second}, kBackground);

    ASSERT_EQ(video.frames.size(), 2u);
    EXPECT_EQ(video.width, 4);
    EXPECT_EQ(video.height, 1);
    EXPECT_EQ(video.palette.size(), 4u);
    EXPECT_EQ(video.palette[0], kBackground);
    EXPECT_EQ(video.frames[0][3], 0);
    EXPECT_EQ(video.frames[1][0], 0);
    EXPECT_EQ(Shown(video, 0, 0), (Rgb8{0x10, 0x20, 0x30}));
    EXPECT_EQ(Shown(video, 1, 1), (Rgb8{0xFF, 0x88, 0x00}));
    EXPECT_EQ(Shown(video, 1, 3), (Rgb8{0x00, 0xFF, 0x00}));
    EXPECT_EQ(video.frames[0][0], video.frames[1][2]);  // one palette for all frames
}

TEST(Quantize, ReducesManyColoursToCloseOnes) {
    std::vector<uint32_t> colors;
    for (uint32_t r = 0; r < 64; ++r) {
        for (uint32_t g = 0; g < 64; ++g) {
            colors.push_back((r * 4) << 16 | (g * 4) << 8 | 0x80);
        }
    }
    const IndexedFrames video = Quantize({FromColors(colors)}, kBackground);

    EXPECT_LE(video.palette.size(), 256u);
    EXPECT_GT(video.palette.size(), 200u);  // the palette is used, not left mostly empty
    int worst = 0;
    for (size_t i = 0; i < colors.size(); ++i) {
        const Rgb8 shown = Shown(video, 0, i);
        worst = std::max({worst, std::abs(shown.r - static_cast<int>(colors[i] >> 16)),
                          std::abs(shown.g - static_cast<int>((colors[i] >> 8) & 0xFF)),
                          std::abs(shown.b - 0x80)});
    }
    EXPECT_LE(worst, 16);
}

}  // namespace
}  // namespace quorin::assets
