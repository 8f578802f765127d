#pragma once

namespace quorin {

// What the main window is doing when its hotkey is pressed.
struct HotkeyWindowState {
    bool visible = false;
    bool minimized = false;
    bool foreground = false;  // the window, or a control in it, has the user's input
    bool indexing = false;
};

enum class HotkeyAction {
    Hide,        // the window is in front: the key puts it away again
    ShowGo,      // brought in front with the word box ready
    ShowAsItIs,  // brought in front, its panels untouched, while a build shows its progress
};

HotkeyAction DecideHotkey(const HotkeyWindowState& state);

}  // namespace quorin
