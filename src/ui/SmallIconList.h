#pragma once

#include <windows.h>

#include "platform/WinHandles.h"

namespace quorin {

// An empty image list of small icons (16 pixels at 96 DPI) at a DPI, in full colour with a mask,
// as the lists of files and file types show them.
UniqueImageList SmallIconList(int dpi);

}  // namespace quorin
