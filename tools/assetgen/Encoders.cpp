#include "Encoders.h"

#include "ByteWriter.h"

namespace quorin::assets {

namespace {

constexpr uint32_t kInfoHeaderSize = 40;

uint32_t RowStride(int width, int bitsPerPixel) {
    return static_cast<uint32_t>((width * bitsPerPixel + 31) / 32 * 4);
}

void WriteInfoHeader(ByteWriter& out, int width, int height, int bitsPerPixel, uint32_t imageSize) {
    out.U32(kInfoHeaderSize);
    out.I32(width);
    out.I32(height);
    out.U16(1);  // planes
    out.U16(static_cast<uint16_t>(bitsPerPixel));
    out.U32(0);  // BI_RGB
    out.U32(imageSize);
    out.I32(0);  // resolution: unspecified
    out.I32(0);
    out.U32(0);  // colours used: all
    out.U32(0);
}

std::string IconImage(const Image& image) {
    const int size = image.Width();
    const uint32_t maskStride = RowStride(size, 1);
    const uint32_t colourBytes = RowStride(size, 32) * size;
    ByteWriter out;
    // An icon's DIB header counts the colour rows and the mask rows together.
    WriteInfoHeader(out, size, size * 2, 32, colourBytes + maskStride * size);
    for (int y = size - 1; y >= 0; --y) {
        for (int x = 0; x < size; ++x) {
            const Rgba8 p = image.Pixel8(x, y);
            out.U8(p.b);
            out.U8(p.g);
            out.U8(p.r);
            out.U8(p.a);
        }
    }
    for (int y = size - 1; y >= 0; --y) {
        std::string row(maskStride, '\0');
        for (int x = 0; x < size; ++x) {
            if (image.Pixel8(x, y).a == 0) {
                row[x / 8] = static_cast<char>(row[x / 8] | (0x80 >> (x % 8)));
            }
        }
        out.Bytes(row);
    }
    return out.Data();
}

}  // namespace

std::string EncodeIco(const std::vector<Image>& images) {
    std::vector<std::string> encoded;
    for (const Image& image : images) {
        encoded.push_back(IconImage(image));
    }
    ByteWriter out;
    out.U16(0);
    out.U16(1);  // icon, not cursor
    out.U16(static_cast<uint16_t>(images.size()));
    uint32_t offset = static_cast<uint32_t>(6 + 16 * images.size());
    for (size_t i = 0; i < images.size(); ++i) {
        const int size = images[i].Width();
        out.U8(static_cast<uint8_t>(size == 256 ? 0 : size));  // 0 stands for 256
        out.U8(static_cast<uint8_t>(size == 256 ? 0 : size));
        out.U8(0);  // not a palette image
        out.U8(0);
        out.U16(1);
        out.U16(32);
        out.U32(static_cast<uint32_t>(encoded[i].size()));
        out.U32(offset);
        offset += static_cast<uint32_t>(encoded[i].size());
    }
    for (const std::string& data : encoded) {
        out.Bytes(data);
    }
    return out.Data();
}

std::string EncodeBmp(const Image& image) {
    constexpr uint32_t kFileHeaderSize = 14;
    const uint32_t stride = RowStride(image.Width(), 24);
    const uint32_t pixelBytes = stride * image.Height();
    ByteWriter out;
    out.Bytes("BM");
    out.U32(kFileHeaderSize + kInfoHeaderSize + pixelBytes);
    out.U32(0);
    out.U32(kFileHeaderSize + kInfoHeaderSize);
    WriteInfoHeader(out, image.Width(), image.Height(), 24, pixelBytes);
    const size_t padding = stride - static_cast<size_t>(image.Width()) * 3;
    for (int y = image.Height() - 1; y >= 0; --y) {
        for (int x = 0; x < image.Width(); ++x) {
            const Rgba8 p = image.Pixel8(x, y);
            out.U8(p.b);
            out.U8(p.g);
            out.U8(p.r);
        }
        out.Zeros(padding);
    }
    return out.Data();
}

}  // namespace quorin::assets
