// A window to look at, not a test: the main window after a click on its Exit tab, held on the
// shutdown panel so that a screenshot can be taken (the real unload is over in a moment);
// shots.sh takes it.
// Usage: exit_panel_look FOLDER (the whole command line, unquoted). Once the panel is painted it
// creates FOLDER\shown, then waits for FOLDER\taken (at most 30 seconds) before the unload goes on.
#include <windows.h>

#include <chrono>
#include <string>
#include <thread>
#include <utility>

#include "platform/Text.h"
#include "platform/TextFile.h"
#include "ui/main/MainFakes.h"
#include "ui/main/clsSysTray.h"
#include "ui/main/frmMain.h"

namespace quorin::test {
namespace {

// The settings, paused at the unload's first save: the window is painted on its shutdown panel
// by then and nothing repaints it until the unload goes on.
class HoldingSettings final : public SettingsStore {
  public:
    explicit HoldingSettings(std::string folder) : folder_(std::move(folder)) {}

    std::string Get(std::string_view section, std::string_view key,
                    std::string_view defaultValue) const override {
        return values_.Get(section, key, defaultValue);
    }

    void Save(std::string_view section, std::string_view key, std::string_view value) override {
        if (section == "Main" && key == "StartX") {
            Hold();
        }
        values_.Save(section, key, value);
    }

  private:
    void Hold() const {
        ReplaceFileWhole(folder_ + "\\shown", "");
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        while (!FileExists(folder_ + "\\taken") && std::chrono::steady_clock::now() < end) {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
    }

    std::string folder_;
    MemorySettingsStore values_;
};

void PumpFor(MessagePump& pump, std::chrono::milliseconds duration) {
    const auto end = std::chrono::steady_clock::now() + duration;
    while (std::chrono::steady_clock::now() < end) {
        pump.DoEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

int Run(const std::string& folder) {
    TempFolder program;
    TempFolder tree;
    HoldingSettings settings(folder);
    settings.Save("Index", "DriveCount", "1");
    settings.Save("Index", "Drive0", tree.Path());
    TestClock clock;
    ScriptedPrompter prompter;
    RecordingShell shell;
    MessagePump pump;
    LazyIndex index{IndexServices{settings, clock, prompter, pump, program.Path()}};
    clsSysTray tray;
    FakeMatchesOpener matches;
    FakeOptionsOpener options;
    RecordingHelp help;
    frmMain form(MainServices{settings, clock, prompter, shell, index, tray, matches, options, help,
                              nullptr});
    form.Show();
    PumpFor(pump, std::chrono::seconds(2));
    // What a click on the tab does: it selects itself, then tells the window.
    const HWND exitTab = form.Control(kIdTab + int{kExitPanel});
    ctlTabLabel::From(exitTab)->SetSelected(true);
    SendMessageW(form.hwnd(), WM_COMMAND, MAKEWPARAM(kIdTab + int{kExitPanel}, kLabelClick),
                 reinterpret_cast<LPARAM>(exitTab));
    return 0;
}

}  // namespace
}  // namespace quorin::test

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR commandLine, int) {
    return quorin::test::Run(quorin::Narrow(commandLine));
}
