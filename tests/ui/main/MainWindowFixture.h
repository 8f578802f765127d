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
    ~MainWindowTest() override;

    frmMain& Load();
    HWND Window() const { return form->hwnd(); }
    HWND Control(int id) const { return form->Control(id); }
    void Command(int id);
    void ClickTab(int tab);
    void Build() { Command(kIdUpdate); }
    std::string Text(int id) const;
    void SetWord(std::string_view word);
    // A tray callback as the shell sends it.
    void Tray(UINT mouseMessage);
    // Whether the panel is shown within the window, whether or not the window is.
    bool PanelShown(int panel) const;
    std::vector<bool> PanelsShown() const;

    // What the shell was told of the tray icon: the message and the window named.
    std::vector<std::pair<DWORD, HWND>> trayCalls;
    clsSysTray tray{[this](DWORD message, NOTIFYICONDATAW& data) {
        trayCalls.emplace_back(message, data.hWnd);
    }};
    std::unique_ptr<frmMain> form;
};

}  // namespace quorin::test
