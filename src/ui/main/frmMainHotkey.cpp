#include "ui/main/frmMain.h"

#include "ui/main/HotkeyToggle.h"

// The main window's hotkey: taking it, and the toggle when it is pressed.
namespace quorin {

bool frmMain::Indexing() const {
    return services_.index.Exists() && services_.index.Get().Indexing();
}

bool frmMain::ApplyHotkey(const std::optional<Hotkey>& hotkey) {
    return hotkey_.Register(hwnd(), hotkey);
}

bool frmMain::HotkeyFree(const Hotkey& hotkey) {
    return hotkey_.Free(hwnd(), hotkey);
}

void frmMain::Hotkey_Pressed(WPARAM id) {
    if (id != GlobalHotkey::kId) {
        return;
    }
    const HWND self = hwnd();
    switch (DecideHotkey({IsWindowVisible(self) != FALSE, IsIconic(self) != FALSE,
                          GetForegroundWindow() == self, Indexing()})) {
        case HotkeyAction::Hide:
            StorePosition();
            ShowWindow(self, SW_HIDE);
            break;
        case HotkeyAction::ShowGo:
            SelectPanel(kGoPanel);
            BringUp(true);
            SendMessageW(cboWord.hwnd(), CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
            break;
        case HotkeyAction::ShowAsItIs:
            BringUp(true);
            break;
    }
}

}  // namespace quorin
