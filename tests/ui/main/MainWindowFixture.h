#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ui/WindowText.h"
#include "ui/main/MainFakes.h"
#include "ui/main/clsSysTray.h"
#include "ui/main/frmMain.h"

namespace quorin::test {

// The real main window on a program folder and a small tree, with recording services.
class MainWindowTest : public ProgramFixture {
  protected:
    ~MainWindowTest() override {
        form.reset();
        events.pump.DoEvents();
    }

    frmMain& Load() {
        form =
            std::make_unique<frmMain>(MainServices{settings, clock, prompter, shell, index, tray,
                                                   matches, options, help, [this] { ++unloads; }});
        return *form;
    }
    HWND Window() const { return form->hwnd(); }
    HWND Control(int id) const { return form->Control(id); }
    void Command(int id) {
        SendMessageW(Window(), WM_COMMAND, MAKEWPARAM(id, 0),
                     reinterpret_cast<LPARAM>(Control(id)));
    }
    void ClickTab(int tab) { Command(kIdTab + tab); }
    void Build() { Command(kIdUpdate); }
    std::string Text(int id) const { return WindowText(Control(id)); }
    void SetWord(std::string_view word) { SetText(Control(kIdWord), word); }
    // A tray callback as the shell sends it: posted, so that it carries the pointer's place.
    void Tray(UINT mouseMessage) {
        PostMessageW(Window(), WM_MOUSEMOVE, kTrayIconId, mouseMessage);
        events.pump.DoEvents();
    }
    // Whether the panel is shown within the window, whether or not the window is.
    bool PanelShown(int panel) const {
        return (GetWindowLongW(GetDlgItem(Window(), kIdPanel + panel), GWL_STYLE) & WS_VISIBLE) !=
               0;
    }
    std::vector<bool> PanelsShown() const {
        std::vector<bool> shown;
        for (int i = 0; i < kPanelCount; ++i) {
            shown.push_back(PanelShown(i));
        }
        return shown;
    }

    // What the shell was told of the tray icon: the message and the window named.
    std::vector<std::pair<DWORD, HWND>> trayCalls;
    clsSysTray tray{[this](DWORD message, NOTIFYICONDATAW& data) {
        trayCalls.emplace_back(message, data.hWnd);
    }};
    std::unique_ptr<frmMain> form;
};

}  // namespace quorin::test
