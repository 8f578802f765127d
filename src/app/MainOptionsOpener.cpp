#include "app/MainOptionsOpener.h"

#include "platform/registry/clsRegistry.h"
#include "ui/dialogs/KnownExtensions.h"
#include "ui/dialogs/SystemDrives.h"

namespace quorin {

OptionsServices MainOptionsOpener::Services() {
    return {index_.Get(),
            settings_,
            prompter_,
            help_,
            files_,
            {&SystemDriveEntries, &SystemDriveType},
            [] { return KnownExtensions(clsRegistry{}); },
            addWords_,
            icon_,
            hotkeys_,
            &signIn_};
}

// A second click on a link brings the open dialog forward at the link's page.
void MainOptionsOpener::ShowOptions(int panel) {
    if (open_ && open_->hwnd() != nullptr) {
        open_->Panel(panel);
        SetForegroundWindow(open_->hwnd());
        return;
    }
    open_ = std::make_unique<frmOptions>(Services());
    open_->Panel(panel);
    open_->ShowModeless(mainWindow_);
}

void MainOptionsOpener::ShowOptionsModal(HWND owner, int panel) {
    frmOptions options(Services());
    options.Panel(panel);
    options.ShowModal(owner);
}

}  // namespace quorin
