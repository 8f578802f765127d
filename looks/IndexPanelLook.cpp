// A window to look at, not a test: the main window at its Index panel after a build whose
// folders the 5,001-slot table partly left out ("limit") or that indexed every folder ("all").
// shots.sh takes the screenshots.
// Usage: index_panel_look limit|all MARKS_FOLDER (the window's place goes to MARKS_FOLDER\place)
#include <windows.h>

#include <fstream>
#include <string>

#include "index/IndexProgress.h"
#include "platform/Text.h"
#include "ui/controls/ctlTabLabel.h"
#include "ui/main/MainFakes.h"
#include "ui/main/clsSysTray.h"
#include "ui/main/frmMain.h"

namespace quorin::test {
namespace {

class NoProgress final : public BuildProgress {
  public:
    void BuildStarted() override {}
    void SetCounter(std::string_view) override {}
    void BuildEnded() override {}
};

class Look final : public ProgramFixture {
  public:
    int Run(bool allFolders, const std::string& marks) {
        // 21 roots naming one folder of 300 subfolders: 6,321 folders, 1,320 over the limit.
        for (int i = 0; i < 300; ++i) {
            tree.WriteFile(std::to_string(i) + "/report.txt", "");
        }
        settings.Save("Index", "DriveCount", "21");
        for (int i = 0; i < 21; ++i) {
            settings.Save("Index", "Drive" + std::to_string(i), tree.Path());
        }
        settings.Save("Index", "AllFolders", allFolders ? "True" : "False");
        index.Get().UpdateSettings();
        NoProgress progress;
        index.Get().CreateIndex(true, progress);

        clsSysTray tray;
        frmMain form(MainServices{settings, clock, prompter, shell, index, tray, matches, options,
                                  help, [] { PostQuitMessage(0); }});
        form.Show();
        const HWND tab = form.Control(kIdTab + int{kIndexPanel});
        ctlTabLabel::From(tab)->SetSelected(true);
        SendMessageW(form.hwnd(), WM_COMMAND, MAKEWPARAM(kIdTab + int{kIndexPanel}, kLabelClick),
                     reinterpret_cast<LPARAM>(tab));
        RECT place{};
        GetWindowRect(form.hwnd(), &place);
        std::ofstream(marks + "\\place")
            << place.right - place.left << "x" << place.bottom - place.top << "+" << place.left
            << "+" << place.top << "\n";
        return MessagePump::Run();
    }

  private:
    void TestBody() override {}
};

}  // namespace
}  // namespace quorin::test

int wmain(int argc, wchar_t** argv) {
    if (argc != 3) {
        return 2;
    }
    quorin::test::Look look;
    return look.Run(std::wstring(argv[1]) == L"all", quorin::Narrow(argv[2]));
}
