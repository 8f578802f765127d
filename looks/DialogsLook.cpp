// A window to look at, not a test: the Options dialog at one of its pages, or the Add New Word
// dialog, on a scratch program folder with one assigned word, the system's drives and file
// types, and Alt+Space held by another program; or the first-run wizard. shots.sh takes the
// screenshots. QUORIN_HIGH_CONTRAST=1 draws as under high contrast.
// Usage: dialogs_look general|filetypes|words|newword|wizard
#include <windows.h>

#include <optional>
#include <string>

#include "LookHighContrast.h"
#include "platform/registry/clsRegistry.h"
#include "ui/controls/OleColor.h"
#include "ui/dialogs/CommonFileChooser.h"
#include "ui/dialogs/KnownExtensions.h"
#include "ui/dialogs/SystemDrives.h"
#include "ui/dialogs/frmNewWord.h"
#include "ui/dialogs/frmOptions.h"
#include "ui/dialogs/frmWelcome.h"
#include "ui/main/MainFakes.h"

namespace quorin::test {
namespace {

class AltSpaceHeldElsewhere final : public HotkeyTarget {
  public:
    bool ApplyHotkey(const std::optional<Hotkey>&) override { return true; }
    bool HotkeyFree(const Hotkey& hotkey) override { return hotkey != Hotkey{MOD_ALT, VK_SPACE}; }
};

class Look final : public ProgramFixture {
  public:
    int Run(const std::wstring& what) {
        settings.Save("Index", "Filter", ".DOC .TXT .EXE ");
        settings.Save("Index", "FilterIsInclude", "True");
        settings.Save("Index", "Drive0", "C:");
        settings.Save("Main", "Hotkey", "Alt+Space");
        index.Get().UpdateSettings();
        index.Get().AddWord({"budget", "budget 2026.xls", 0, "BUDGET"});
        if (what == L"wizard") {
            frmWelcome wizard({index.Get(), prompter, options, help});
            return static_cast<int>(wizard.ShowModal(nullptr));
        }
        if (what == L"newword") {
            frmNewWord dialog({index.Get(), prompter, files, nullptr});
            return static_cast<int>(dialog.ShowModal(nullptr));
        }
        frmOptions dialog({index.Get(), settings, prompter, help, files,
                           DriveSource{&SystemDriveEntries, &SystemDriveType},
                           [] { return KnownExtensions(clsRegistry{}); }, nullptr, nullptr,
                           &hotkeys});
        dialog.Panel(what == L"filetypes" ? 1 : what == L"words" ? 2 : 0);
        return static_cast<int>(dialog.ShowModal(nullptr));
    }

  private:
    void TestBody() override {}
    CommonFileChooser files;
    AltSpaceHeldElsewhere hotkeys;
};

}  // namespace
}  // namespace quorin::test

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR commandLine, int) {
    quorin::OverrideHighContrast(quorin::test::LookHighContrast());
    quorin::test::Look look;
    return look.Run(commandLine);
}
