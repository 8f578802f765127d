#pragma once

#include <string>

#include "Palette.h"

namespace quorin::assets {

// An AVI file that the common controls' animation control plays: exactly one video stream
// of uncompressed 8-bit frames with one palette, no sound, not interleaved, with an index.
std::string EncodeAvi(const IndexedFrames& video, int framesPerSecond);

}  // namespace quorin::assets
