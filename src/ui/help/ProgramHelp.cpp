#include "ui/help/ProgramHelp.h"

#include "ui/help/HelpFile.h"

namespace quorin {

namespace {

constexpr int kPositionUnits = 1024;

// The position record's place on the owner's monitor (the main one when there is no owner).
RECT ViewerPlace(const HelpWindowPosition& position, HWND owner) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromWindow(owner, MONITOR_DEFAULTTOPRIMARY), &monitor);
    const RECT& screen = monitor.rcMonitor;
    const LONG width = screen.right - screen.left;
    const LONG height = screen.bottom - screen.top;
    const LONG left = screen.left + MulDiv(width, position.left, kPositionUnits);
    const LONG top = screen.top + MulDiv(height, position.top, kPositionUnits);
    return {left, top, left + MulDiv(width, position.width, kPositionUnits),
            top + MulDiv(height, position.height, kPositionUnits)};
}

}  // namespace

ProgramHelp::ProgramHelp(std::string programFolder) : programFolder_(std::move(programFolder)) {}

void ProgramHelp::Setup(HWND owner) {
    owner_ = owner;
    file_ = HelpFilePath(programFolder_);
    position_ = HelpWindowPosition{};
}

void ProgramHelp::ShowTopic(int32_t context) {
    if (!viewer_) {
        viewer_ = std::make_unique<HelpViewer>();
    }
    viewer_->ShowTopic(LoadHelpTopic(file_, context), ViewerPlace(position_, owner_));
}

void ProgramHelp::Close() {
    viewer_.reset();
}

}  // namespace quorin
