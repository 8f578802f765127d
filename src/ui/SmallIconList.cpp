#include "ui/SmallIconList.h"

#include <commctrl.h>

#include "ui/Dpi.h"

namespace quorin {

namespace {

constexpr int kSmallIconPixels = 16;  // at 96 DPI
constexpr int kGrowBy = 16;

}  // namespace

UniqueImageList SmallIconList(int dpi) {
    const int size = ScaleForDpi(kSmallIconPixels, dpi);
    return UniqueImageList(ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, 0, kGrowBy));
}

}  // namespace quorin
