#include "ui/main/frmMain.h"

#include "ui/main/HotkeyToggle.h"

// The main window's hotkey: taking it, the tray tip that tells when another program holds it,
// and the toggle when it is pressed.
namespace quorin {

namespace {

constexpr std::string_view kTip = "Quorin";

}  // namespace

bool frmMain::Indexing() const {
    return services_.index.Exists() && services_.index.Get().Indexing();
}

std::string frmMain::Tip() const {
    return hotkey_.InUse() ? HotkeyInUseTip(*hotkey_.Wanted()) : std::string(kTip);
}

bool frmMain::ApplyHotkey(const std::optional<Hotkey>& hotkey) {
    const bool registered = hotkey_.Register(hwnd(), hotkey);
    if (!Indexing()) {
        services_.tray.ChangeIcon(hwnd(), icon_.get(), Tip());
    }
    return registered;
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
            RestoreFromTray();
            SelectPanel(kGoPanel);
            SetFocus(cboWord.hwnd());
            SendMessageW(cboWord.hwnd(), CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
            break;
        case HotkeyAction::ShowAsItIs:
            RestoreFromTray();
            break;
    }
}

}  // namespace quorin
