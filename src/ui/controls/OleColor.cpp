#include "ui/controls/OleColor.h"

namespace quorin {

COLORREF ResolveColor(OleColor color) {
    if ((color & 0x80000000u) != 0) {
        return GetSysColor(static_cast<int>(color & 0xFFu));
    }
    return static_cast<COLORREF>(color);
}

}  // namespace quorin
