// A window to look at, not a test: the main window shown at one of its panels, with fake
// services; shots.sh takes the screenshots.
// Usage: main_look 0|1|2|3 (Go, Index, Options, Help)
#include <windows.h>

#include <string>

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
    quorin::test::Look look;
    return look.Run(std::stoi(commandLine));
}
