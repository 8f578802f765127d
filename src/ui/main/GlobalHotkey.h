#pragma once

#include <windows.h>

#include <optional>

#include "ui/main/HotkeyText.h"

namespace quorin {

// One system-wide hotkey registered for a window, which receives WM_HOTKEY with kId. It
// remembers the combination it was asked for even when another program holds it.
class GlobalHotkey {
  public:
    static constexpr int kId = 1;

    GlobalHotkey() = default;
    GlobalHotkey(const GlobalHotkey&) = delete;
    GlobalHotkey& operator=(const GlobalHotkey&) = delete;
    ~GlobalHotkey() { Unregister(); }

    // Replaces the registration; false when the combination is held elsewhere.
    bool Register(HWND window, const std::optional<Hotkey>& hotkey);
    void Unregister();
    // True when the window could register the combination now.
    bool Free(HWND window, const Hotkey& hotkey) const;

  private:
    HWND window_ = nullptr;
    std::optional<Hotkey> wanted_;
    bool registered_ = false;
};

}  // namespace quorin
