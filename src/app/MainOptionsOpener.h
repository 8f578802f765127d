#pragma once

#include <windows.h>

#include <functional>
#include <memory>

#include "index/LazyIndex.h"
#include "platform/Path.h"
#include "platform/Prompter.h"
#include "platform/SettingsStore.h"
#include "platform/registry/SignInStart.h"
#include "ui/dialogs/CommonFileChooser.h"
#include "ui/dialogs/frmOptions.h"
#include "ui/help/Help.h"
#include "ui/main/HotkeyTarget.h"
#include "ui/main/OptionsOpener.h"

namespace quorin {

// Opens the Options dialog: one at a time from the main window, modeless; modal for the wizard.
class MainOptionsOpener final : public OptionsOpener {
  public:
    MainOptionsOpener(LazyIndex& index, SettingsStore& settings, Prompter& prompter, Help& help)
        : index_(index), settings_(settings), prompter_(prompter), help_(help) {}

    // The main window, which owns the modeless dialog, and its word list and icon.
    void SetMainWindow(HWND window) { mainWindow_ = window; }
    void SetAddWords(std::function<void()> addWords) { addWords_ = std::move(addWords); }
    void SetIcon(HICON icon) { icon_ = icon; }
    void SetHotkeys(HotkeyTarget* hotkeys) { hotkeys_ = hotkeys; }

    void ShowOptions(int panel) override;
    void ShowAllFoldersOption() override;
    void ShowOptionsModal(HWND owner, int panel) override;

  private:
    OptionsServices Services();
    // The open dialog, or a new one shown modeless once `choose` has picked its page.
    void ShowModeless(const std::function<void(frmOptions&)>& choose);

    LazyIndex& index_;
    SettingsStore& settings_;
    Prompter& prompter_;
    Help& help_;
    CommonFileChooser files_;
    HWND mainWindow_ = nullptr;
    std::function<void()> addWords_;
    HICON icon_ = nullptr;
    HotkeyTarget* hotkeys_ = nullptr;
    SignInStart signIn_{SignInStart::Command(ExecutablePath())};
    std::unique_ptr<frmOptions> open_;
};

}  // namespace quorin
