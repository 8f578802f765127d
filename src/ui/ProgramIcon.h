#pragma once

#include "platform/WinHandles.h"

namespace quorin {

// One of the program's own icons (resource.h) at the system's small icon size, as windows show
// it in their caption and the tray shows it.
UniqueIcon SmallProgramIcon(int resourceId);

}  // namespace quorin
