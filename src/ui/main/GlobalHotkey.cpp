#include "ui/main/GlobalHotkey.h"

namespace quorin {

namespace {

constexpr int kProbeId = 2;

// Holding the keys down does not repeat the toggle.
bool RegisterFor(HWND window, int id, const Hotkey& hotkey) {
    return RegisterHotKey(window, id, hotkey.modifiers | MOD_NOREPEAT, hotkey.key) != FALSE;
}

}  // namespace

bool GlobalHotkey::Register(HWND window, const std::optional<Hotkey>& hotkey) {
    Unregister();
    window_ = window;
    wanted_ = hotkey;
    registered_ = hotkey && RegisterFor(window, kId, *hotkey);
    return registered_ || !hotkey;
}

void GlobalHotkey::Unregister() {
    if (registered_) {
        UnregisterHotKey(window_, kId);
        registered_ = false;
    }
}

bool GlobalHotkey::Free(HWND window, const Hotkey& hotkey) const {
    if (registered_ && wanted_ == hotkey) {
        return true;
    }
    if (!RegisterFor(window, kProbeId, hotkey)) {
        return false;
    }
    UnregisterHotKey(window, kProbeId);
    return true;
}

}  // namespace quorin
