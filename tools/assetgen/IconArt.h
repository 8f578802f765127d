#pragma once

#include <array>

#include "Image.h"

namespace quorin::assets {

// Every size is drawn for itself, so that strokes stay at least about 1.5 px wide at 16 px.
// The sizes are those Windows asks for at 100 % to 200 % (taskbar, Start menu, Explorer views).
inline constexpr std::array<int, 10> kIconSizes = {16, 20, 24, 32, 40, 48, 64, 96, 128, 256};

// A blue rounded tile with the white magnifier mark.
Image DrawProgramIcon(int size);
// The same tile with an amber badge in its upper right corner, shown while indexing.
Image DrawIndexingIcon(int size);

}  // namespace quorin::assets
