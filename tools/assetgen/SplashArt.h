#pragma once

#include "Image.h"

namespace quorin::assets {

inline constexpr int kSplashWidth = 400;
inline constexpr int kSplashHeight = 170;

// The splash window's picture: a blue field with the white mark on the left and a large faint
// mark on the right. The window writes the program's name beside the left mark (from x = 108)
// at run time, where the system's fonts draw it best.
Image DrawSplashPicture();

}  // namespace quorin::assets
