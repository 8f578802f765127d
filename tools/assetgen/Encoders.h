#pragma once

#include <string>
#include <vector>

#include "Image.h"

namespace quorin::assets {

// A Windows icon file holding each image (square, 1 to 256 px) as a 32-bit DIB with straight
// alpha and the matching AND mask, in the order given.
std::string EncodeIco(const std::vector<Image>& images);

// A 24-bit bottom-up BMP file; the image is expected to be opaque.
std::string EncodeBmp(const Image& image);

}  // namespace quorin::assets
