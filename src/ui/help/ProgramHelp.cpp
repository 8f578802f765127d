#include "ui/help/ProgramHelp.h"

#include <algorithm>

#include "ui/Dpi.h"
#include "ui/help/HelpFile.h"

namespace quorin {

namespace {

constexpr int kPositionUnits = 1024;
constexpr SIZE kDesignedScreen{1280, 800};  // at 96 dpi

LONG Part(LONG length, int32_t units) {
    return MulDiv(length, units, kPositionUnits);
}

// Moves [start, start + length) back inside [low, high) where it sticks out past `high`.
LONG Within(LONG start, LONG length, LONG low, LONG high) {
    return std::max(low, std::min(start, high - length));
}

}  // namespace

RECT HelpViewerPlace(const HelpWindowPosition& position, const RECT& monitor, const RECT& workArea,
                     int dpi) {
    const LONG width = std::max(Part(monitor.right - monitor.left, position.width),
                                Part(ScaleForDpi(kDesignedScreen.cx, dpi), position.width));
    const LONG height = std::max(Part(monitor.bottom - monitor.top, position.height),
                                 Part(ScaleForDpi(kDesignedScreen.cy, dpi), position.height));
    const LONG left = Within(monitor.left + Part(monitor.right - monitor.left, position.left),
                             width, workArea.left, workArea.right);
    const LONG top = Within(monitor.top + Part(monitor.bottom - monitor.top, position.top), height,
                            workArea.top, workArea.bottom);
    return {left, top, left + width, top + height};
}

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
    // On the owner's monitor (the main one when there is no owner).
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromWindow(owner_, MONITOR_DEFAULTTOPRIMARY), &monitor);
    viewer_->ShowTopic(LoadHelpTopic(file_, context),
                       HelpViewerPlace(position_, monitor.rcMonitor, monitor.rcWork,
                                       owner_ != nullptr ? WindowDpi(owner_) : ScreenDpi()));
}

void ProgramHelp::Close() {
    viewer_.reset();
}

}  // namespace quorin
