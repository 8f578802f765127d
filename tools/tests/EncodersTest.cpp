#include "Encoders.h"

#include <gtest/gtest.h>

#include "LittleEndian.h"

namespace quorin::assets {
namespace {

constexpr Color kRed = Rgb(0xFF0000);
constexpr Color kBlue = Rgb(0x0000FF);

Image Filled(int width, int height, Color color) {
    Image image(width, height);
    image.Render(1, [color](double, double) { return color; });
    return image;
}

TEST(IcoEncoder, DirectoryPointsAtEachImageInOrder) {
    const std::vector<int> sizes = {16, 256, 3};
    std::vector<Image> images;
    for (int size : sizes) {
        images.push_back(Filled(size, size, kBlue));
    }
    const std::string ico = EncodeIco(images);

    EXPECT_EQ(Le16(ico, 0), 0u);
    EXPECT_EQ(Le16(ico, 2), 1u);
    ASSERT_EQ(Le16(ico, 4), sizes.size());
    uint32_t expectedOffset = 6 + 16 * static_cast<uint32_t>(sizes.size());
    for (size_t i = 0; i < sizes.size(); ++i) {
        const size_t entry = 6 + 16 * i;
        const uint32_t size = static_cast<uint32_t>(sizes[i]);
        const uint32_t maskStride = (size + 31) / 32 * 4;
        SCOPED_TRACE(size);
        EXPECT_EQ(static_cast<uint8_t>(ico[entry]), size == 256 ? 0 : size);
        EXPECT_EQ(static_cast<uint8_t>(ico[entry + 1]), size == 256 ? 0 : size);
        EXPECT_EQ(Le16(ico, entry + 4), 1u);
        EXPECT_EQ(Le16(ico, entry + 6), 32u);
        const uint32_t bytes = Le32(ico, entry + 8);
        EXPECT_EQ(bytes, 40 + 4 * size * size + maskStride * size);
        EXPECT_EQ(Le32(ico, entry + 12), expectedOffset);
        // The image's own header: twice the height, colour and mask together.
        EXPECT_EQ(Le32(ico, expectedOffset), 40u);
        EXPECT_EQ(Le32(ico, expectedOffset + 4), size);
        EXPECT_EQ(Le32(ico, expectedOffset + 8), 2 * size);
        EXPECT_EQ(Le16(ico, expectedOffset + 14), 32u);
        expectedOffset += bytes;
    }
    EXPECT_EQ(expectedOffset, ico.size());
}

TEST(IcoEncoder, StoresBottomUpBgraWithStraightAlphaAndMasksTransparentPixels) {
    Image image = Filled(3, 3, kBlue);
    image.At(0, 0) = Fade(kRed, 0.5);
    image.At(2, 2) = Color{};
    const std::string ico = EncodeIco({image});
    const size_t pixels = 6 + 16 + 40;
    const size_t topRow = pixels + 2 * 3 * 4;
    EXPECT_EQ(static_cast<uint8_t>(ico[topRow + 0]), 0);    // blue
    EXPECT_EQ(static_cast<uint8_t>(ico[topRow + 2]), 255);  // red, not darkened by alpha
    EXPECT_EQ(static_cast<uint8_t>(ico[topRow + 3]), 128);
    EXPECT_EQ(static_cast<uint8_t>(ico[pixels + 4]), 255);  // bottom row, opaque blue
    EXPECT_EQ(static_cast<uint8_t>(ico[pixels + 2 * 4 + 3]), 0);

    // One 32-bit mask row per image row; only the fully transparent pixel is masked.
    const size_t mask = pixels + 3 * 3 * 4;
    ASSERT_EQ(ico.size(), mask + 3 * 4);
    EXPECT_EQ(static_cast<uint8_t>(ico[mask]), 0x20);  // bottom row, x = 2
    for (size_t i = mask + 1; i < ico.size(); ++i) {
        EXPECT_EQ(ico[i], '\0') << "mask byte " << i - mask;
    }
}

TEST(BmpEncoder, WritesPaddedBottomUpBgrRows) {
    Image image = Filled(3, 2, kBlue);
    image.At(0, 0) = kRed;
    const std::string bmp = EncodeBmp(image);
    const size_t stride = 12;  // 9 bytes of pixels padded to a multiple of 4
    ASSERT_EQ(bmp.size(), 54 + 2 * stride);
    EXPECT_EQ(bmp.substr(0, 2), "BM");
    EXPECT_EQ(Le32(bmp, 2), bmp.size());
    EXPECT_EQ(Le32(bmp, 10), 54u);
    EXPECT_EQ(Le32(bmp, 18), 3u);
    EXPECT_EQ(Le32(bmp, 22), 2u);
    EXPECT_EQ(Le16(bmp, 28), 24u);
    const std::string bottom = bmp.substr(54, stride);
    const std::string top = bmp.substr(54 + stride, stride);
    EXPECT_EQ(bottom, std::string("\xFF\0\0\xFF\0\0\xFF\0\0\0\0\0", stride));
    EXPECT_EQ(top, std::string("\0\0\xFF\xFF\0\0\xFF\0\0\0\0\0", stride));
}

}  // namespace
}  // namespace quorin::assets
