#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace quorin::assets {

// A colour with its components already multiplied by alpha, all in 0..1, so that averaging
// samples and layering paint are plain arithmetic.
struct Color {
    double r = 0;
    double g = 0;
    double b = 0;
    double a = 0;
};

constexpr Color Rgb(uint32_t hex, double alpha = 1.0) {
    return {((hex >> 16) & 0xFF) / 255.0 * alpha, ((hex >> 8) & 0xFF) / 255.0 * alpha,
            (hex & 0xFF) / 255.0 * alpha, alpha};
}

constexpr Color Over(Color top, Color bottom) {
    const double keep = 1.0 - top.a;
    return {top.r + bottom.r * keep, top.g + bottom.g * keep, top.b + bottom.b * keep,
            top.a + bottom.a * keep};
}

constexpr Color Mix(Color from, Color to, double t) {
    return {from.r + (to.r - from.r) * t, from.g + (to.g - from.g) * t,
            from.b + (to.b - from.b) * t, from.a + (to.a - from.a) * t};
}

constexpr Color Fade(Color color, double opacity) {
    return {color.r * opacity, color.g * opacity, color.b * opacity, color.a * opacity};
}

// 8-bit colour with straight (not multiplied) alpha, as the file formats store it.
struct Rgba8 {
    uint8_t r = 0;
    uint8_t g = 0;
    uint8_t b = 0;
    uint8_t a = 0;
    friend bool operator==(const Rgba8&, const Rgba8&) = default;
};

// Pixel coordinates of the sample point; the pixel (x, y) covers [x, x+1) x [y, y+1).
using Shader = std::function<Color(double x, double y)>;

class Image {
  public:
    Image(int width, int height);

    int Width() const { return width_; }
    int Height() const { return height_; }

    Color& At(int x, int y) { return pixels_[Offset(x, y)]; }
    const Color& At(int x, int y) const { return pixels_[Offset(x, y)]; }
    Rgba8 Pixel8(int x, int y) const;

    // Fills every pixel with the average of samples x samples evenly spread shader values:
    // supersampling is the anti-aliasing of every shape drawn here.
    void Render(int samples, const Shader& shader);

  private:
    size_t Offset(int x, int y) const { return static_cast<size_t>(y) * width_ + x; }

    int width_;
    int height_;
    std::vector<Color> pixels_;
};

}  // namespace quorin::assets
