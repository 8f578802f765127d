#pragma once

#include <cstdint>
#include <vector>

#include "Image.h"

namespace quorin::assets {

struct Rgb8 {
    uint8_t r = 0;
    uint8_t g = 0;
    uint8_t b = 0;
    friend bool operator==(const Rgb8&, const Rgb8&) = default;
};

constexpr Rgb8 Rgb8FromHex(uint32_t hex) {
    return {static_cast<uint8_t>(hex >> 16), static_cast<uint8_t>(hex >> 8),
            static_cast<uint8_t>(hex)};
}

// Frames of one size sharing one palette: the animation control allows no palette changes.
struct IndexedFrames {
    int width = 0;
    int height = 0;
    std::vector<Rgb8> palette;                 // at most 256 entries
    std::vector<std::vector<uint8_t>> frames;  // one index per pixel, top row first
};

// Reduces opaque frames to one palette of at most 256 colours by median cut. The background
// gets index 0 and is kept exact, so that a transparent-background player finds it.
IndexedFrames Quantize(const std::vector<Image>& frames, Rgb8 background);

}  // namespace quorin::assets
