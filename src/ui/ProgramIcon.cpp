#include "ui/ProgramIcon.h"

namespace quorin {

UniqueIcon SmallProgramIcon(int resourceId) {
    const int size = GetSystemMetrics(SM_CXSMICON);
    return UniqueIcon(static_cast<HICON>(LoadImageW(
        GetModuleHandleW(nullptr), MAKEINTRESOURCEW(resourceId), IMAGE_ICON, size, size, 0)));
}

}  // namespace quorin
