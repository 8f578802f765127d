#include "ui/main/HotkeyToggle.h"

namespace quorin {

HotkeyAction DecideHotkey(const HotkeyWindowState& state) {
    if (state.visible && !state.minimized && state.foreground) {
        return HotkeyAction::Hide;
    }
    return state.indexing ? HotkeyAction::ShowAsItIs : HotkeyAction::ShowGo;
}

}  // namespace quorin
