#pragma once

#include <vector>

#include "Image.h"

namespace quorin::assets {

inline constexpr int kAnimationWidth = 272;
inline constexpr int kAnimationHeight = 60;
inline constexpr int kAnimationFrames = 20;
inline constexpr int kAnimationFramesPerSecond = 10;
// The light grey of a Windows 10 dialog, so that the clip also looks right where the player
// does not make its background transparent.
inline constexpr uint32_t kAnimationBackground = 0xF0F0F0;

// One loop of a magnifier sweeping back and forth over three folders, enlarging what it
// passes over; the last frame leads smoothly into the first.
std::vector<Image> DrawSearchAnimation();

}  // namespace quorin::assets
