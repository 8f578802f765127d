#include "ui/main/ProgressPanel.h"

#include "ui/BuildAnimation.h"
#include "ui/WindowText.h"
#include "ui/main/MainPanels.h"
#include "ui/main/frmMain.h"

namespace quorin {

void ProgressPanel::Attach(const MainPanels& panels) {
    panel_ = panels.Panel(kProgressPanel);
    Animation1 = panels.Control(kIdAnimation);
    lblCounter = panels.Control(kIdCounter);
}

void ProgressPanel::Show(std::string_view programFolder) const {
    SetWindowPos(panel_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
    PlayBuildAnimation(Animation1, programFolder);
}

void ProgressPanel::SetCounter(std::string_view text) const {
    SetLiveText(lblCounter, text);
}

void ProgressPanel::Hide() const {
    StopBuildAnimation(Animation1);
    ShowWindow(panel_, SW_HIDE);
}

}  // namespace quorin
