// A window to look at, not a test: the main window shown at one of its panels, with fake
// services, or its progress panel as a build shows it; shots.sh takes the screenshots.
// QUORIN_HIGH_CONTRAST=1 draws as under high contrast.
// Usage: main_look 0|1|2|3|5 (Go, Index, Options, Help, progress)
#include <windows.h>

#include <string>

#include "LookHighContrast.h"
#include "platform/Path.h"
#include "platform/Text.h"
#include "ui/controls/OleColor.h"
#include "ui/controls/ctlTabLabel.h"
#include "ui/main/MainFakes.h"
#include "ui/main/clsSysTray.h"
#include "ui/main/frmMain.h"

namespace quorin::test {
namespace {

class Look final : public ProgramFixture {
  public:
    int Run(int panel) {
        clsSysTray tray;
        frmMain form(MainServices{settings, clock, prompter, shell, index, tray, matches, options,
                                  help, [] { PostQuitMessage(0); }});
        form.Show();
        if (panel == kProgressPanel) {
            // The animation plays from the program folder, as in the installed program.
            CopyFileW(Widen(JoinPath(ExecutableFolder(), "findfile.avi")).c_str(),
                      Widen(JoinPath(program.Path(), "findfile.avi")).c_str(), FALSE);
            form.BuildStarted();
            form.SetCounter("895");
            return MessagePump::Run();
        }
        // What a click on the tab does: it selects itself, then tells the window.
        const HWND tab = form.Control(kIdTab + panel);
        ctlTabLabel::From(tab)->SetSelected(true);
        SendMessageW(form.hwnd(), WM_COMMAND, MAKEWPARAM(kIdTab + panel, kLabelClick),
                     reinterpret_cast<LPARAM>(tab));
        return MessagePump::Run();
    }

  private:
    void TestBody() override {}
};

}  // namespace
}  // namespace quorin::test

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR commandLine, int) {
    quorin::OverrideHighContrast(quorin::test::LookHighContrast());
    quorin::test::Look look;
    return look.Run(std::stoi(commandLine));
}
