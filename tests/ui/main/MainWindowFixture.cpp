#include "ui/main/MainWindowFixture.h"

namespace quorin::test {

MainWindowTest::~MainWindowTest() {
    form.reset();
    events.pump.DoEvents();
}

frmMain& MainWindowTest::Load() {
    form = std::make_unique<frmMain>(MainServices{settings, clock, prompter, shell, index, tray,
                                                  matches, options, help, [this] { ++unloads; }});
    return *form;
}

void MainWindowTest::Command(int id) {
    SendMessageW(Window(), WM_COMMAND, MAKEWPARAM(id, 0), reinterpret_cast<LPARAM>(Control(id)));
}

void MainWindowTest::ClickTab(int tab) {
    Command(kIdTab + tab);
}

std::string MainWindowTest::Text(int id) const {
    return WindowText(Control(id));
}

void MainWindowTest::SetWord(std::string_view word) {
    SetText(Control(kIdWord), word);
}

// Posted, as the shell does, so that the message carries the pointer's place at the time.
void MainWindowTest::Tray(UINT mouseMessage) {
    PostMessageW(Window(), WM_MOUSEMOVE, kTrayIconId, mouseMessage);
    events.pump.DoEvents();
}

bool MainWindowTest::PanelShown(int panel) const {
    return (GetWindowLongW(GetDlgItem(Window(), kIdPanel + panel), GWL_STYLE) & WS_VISIBLE) != 0;
}

std::vector<bool> MainWindowTest::PanelsShown() const {
    std::vector<bool> shown;
    for (int i = 0; i < kPanelCount; ++i) {
        shown.push_back(PanelShown(i));
    }
    return shown;
}

}  // namespace quorin::test
