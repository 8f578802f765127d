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

void MainOptionsOpener::ShowOptions(int panel) {
    ShowModeless([panel](frmOptions& options) { options.Panel(panel); });
}

void MainOptionsOpener::ShowAllFoldersOption() {
    ShowModeless([](frmOptions& options) { options.ShowAllFoldersOption(); });
}

// A second click on a link brings the open dialog forward at the link's page.
void MainOptionsOpener::ShowModeless(const std::function<void(frmOptions&)>& choose) {
    if (open_ && open_->hwnd() != nullptr) {
        choose(*open_);
        SetForegroundWindow(open_->hwnd());
        return;
    }
    open_ = std::make_unique<frmOptions>(Services());
    choose(*open_);
    open_->ShowModeless(mainWindow_);
}

void MainOptionsOpener::ShowOptionsModal(HWND owner, int panel) {
    frmOptions options(Services());
    options.Panel(panel);
    options.ShowModal(owner);
}

}  // namespace quorin
