#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "index/IndexSettings.h"
#include "ui/dialogs/DriveChoice.h"
#include "ui/dialogs/OptionsPage.h"
#include "ui/main/HotkeyTarget.h"

namespace quorin {

class clsIndex;

// Where the General page finds the system's drives ("c: [DATA]") and their types.
struct DriveSource {
    std::function<std::vector<std::string>()> entries;
    DriveTypeOf typeOf;
};

// "General": the folder options, the drives to index and the update interval; how Quorin is
// started: its hotkey and the start at sign-in.
class GeneralPage final : public OptionsPage {
  public:
    // Fills the page from the engine's settings.
    void Load(const clsIndex& index, const DriveSource& drives);
    // The hotkey (none: turned off) and the sign-in box; `hotkeys` (may be null) tells whether
    // a combination is free.
    void LoadStart(const std::optional<Hotkey>& hotkey, bool signIn, HotkeyTarget* hotkeys);
    // What the page says, for OK to store.
    void Collect(IndexOptions& options) const;
    std::optional<Hotkey> ChosenHotkey() const;
    bool SignIn() const;

    HWND Interval() const;
    HWND AllFolders() const;  // "Index every folder"
    // The interval box's text put right, as it is when the box loses the focus.
    void txtInterval_LostFocus();

    void OnCommand(int id, int code, HWND control) override;

  private:
    void ShowHotkeyState();

    HotkeyTarget* hotkeys_ = nullptr;
    std::vector<std::string> entries_;  // lstDrives, in list order
};

}  // namespace quorin
