#include "app/Help.h"

#include <memory>

#include "app/HelpFile.h"
#include "app/HelpViewer.h"
#include "platform/Path.h"

namespace quorin {

namespace {

constexpr int kPositionUnits = 1024;

struct HelpState {
    HWND owner = nullptr;
    std::string file;
    HelpWindowPosition position;
    std::unique_ptr<HelpViewer> viewer;
};

HelpState& State() {
    static HelpState state;
    return state;
}

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

void HelpSetup(HWND owner) {
    HelpSetup(owner, ExecutableFolder());
}

void HelpSetup(HWND owner, std::string_view programFolder) {
    HelpState& state = State();
    state.owner = owner;
    state.file = HelpFilePath(programFolder);
    state.position = HelpWindowPosition{};
}

const std::string& HelpFile() {
    return State().file;
}

void ShowHelpTopic(int32_t context) {
    HelpState& state = State();
    if (!state.viewer) {
        state.viewer = std::make_unique<HelpViewer>();
    }
    state.viewer->ShowTopic(LoadHelpTopic(state.file, context),
                            ViewerPlace(state.position, state.owner));
}

void CloseHelp() {
    State().viewer.reset();
}

}  // namespace quorin
