// app_demo splash|help|animation: shows one of the windows for a screenshot.
#include <windows.h>

#include <commctrl.h>

#include <string>

#include "platform/Path.h"
#include "platform/Text.h"
#include "platform/WinHandles.h"
#include "ui/MessagePump.h"
#include "ui/help/ProgramHelp.h"
#include "ui/splash/frmSplash.h"

namespace {

using namespace quorin;

int ShowAnimation() {
    INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_ANIMATE_CLASS};
    InitCommonControlsEx(&controls);
    const UniqueWindow frame(
        CreateWindowExW(0, L"#32770", L"Indexing", WS_CAPTION | WS_SYSMENU | WS_VISIBLE, 200, 200,
                        340, 140, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr));
    const HWND player = CreateWindowExW(
        0, ANIMATE_CLASSW, L"", WS_CHILD | WS_VISIBLE | ACS_TRANSPARENT | ACS_CENTER, 16, 16, 292,
        70, frame.get(), nullptr, GetModuleHandleW(nullptr), nullptr);
    const std::wstring file = Widen(JoinPath(ExecutableFolder(), "findfile.avi"));
    Animate_Open(player, file.c_str());
    Animate_Play(player, 0, -1, -1);
    return MessagePump::Run();
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR commandLine, int) {
    const std::wstring what = commandLine;
    if (what == L"splash") {
        frmSplash splash;
        splash.Show();
        return MessagePump::Run();
    }
    if (what == L"help") {
        ProgramHelp help(ExecutableFolder());
        help.Setup(nullptr);
        help.ShowTopic(kHelpUsingQuorin);
        return MessagePump::Run();
    }
    if (what == L"animation") {
        return ShowAnimation();
    }
    return 2;
}
