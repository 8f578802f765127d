#include "Image.h"

#include <algorithm>
#include <cmath>

namespace quorin::assets {

namespace {

uint8_t ToByte(double value) {
    return static_cast<uint8_t>(std::lround(std::clamp(value, 0.0, 1.0) * 255.0));
}

}  // namespace

Image::Image(int width, int height)
    : width_(width), height_(height), pixels_(static_cast<size_t>(width) * height) {}

Rgba8 Image::Pixel8(int x, int y) const {
    const Color& c = At(x, y);
    if (c.a <= 0.0) {
        return {};
    }
    return {ToByte(c.r / c.a), ToByte(c.g / c.a), ToByte(c.b / c.a), ToByte(c.a)};
}

void Image::Render(int samples, const Shader& shader) {
    const double step = 1.0 / samples;
    const double weight = 1.0 / (samples * samples);
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            Color sum;
            for (int sy = 0; sy < samples; ++sy) {
                for (int sx = 0; sx < samples; ++sx) {
                    const Color c = shader(x + (sx + 0.5) * step, y + (sy + 0.5) * step);
                    sum = {sum.r + c.r, sum.g + c.g, sum.b + c.b, sum.a + c.a};
                }
            }
            At(x, y) = Fade(sum, weight);
        }
    }
}

}  // namespace quorin::assets
