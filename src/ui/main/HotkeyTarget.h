#pragma once

#include <optional>

#include "ui/main/HotkeyText.h"

namespace quorin {

// The program's hotkey as the Options dialog changes it; the main window holds it.
class HotkeyTarget {
  public:
    virtual ~HotkeyTarget() = default;

    // Takes the combination (none: no hotkey) at once; false when another program holds it.
    virtual bool ApplyHotkey(const std::optional<Hotkey>& hotkey) = 0;
    // True when the program could take the combination now; its own counts as free.
    virtual bool HotkeyFree(const Hotkey& hotkey) = 0;
};

}  // namespace quorin
