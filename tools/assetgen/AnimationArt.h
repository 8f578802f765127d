#pragma once

#include <vector>

#include "Image.h"

namespace quorin::assets {

// The size the main window's progress panel designs for the player at 96 DPI (1440 x 900
// twips), so that the whole frame shows there at every DPI.
inline constexpr int kAnimationWidth = 96;
inline constexpr int kAnimationHeight = 60;
inline constexpr int kAnimationFrames = 20;
inline constexpr int kAnimationFramesPerSecond = 10;
// The light grey of a Windows 10 dialog, so that the clip also looks right where the player
// does not make its background transparent.
inline constexpr uint32_t kAnimationBackground = 0xF0F0F0;

// One loop of a magnifier sweeping back and forth over a folder, enlarging what it passes over;
// the last frame leads smoothly into the first.
std::vector<Image> DrawSearchAnimation();

}  // namespace quorin::assets
