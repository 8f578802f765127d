#include <windows.h>

#include <commctrl.h>

#include "app/MainInstance.h"
#include "app/MainMatchesOpener.h"
#include "app/MainOptionsOpener.h"
#include "app/Startup.h"
#include "platform/MessageBoxPrompter.h"
#include "platform/Path.h"
#include "platform/RegistrySettingsStore.h"
#include "platform/ShellExecuteShell.h"
#include "platform/Text.h"
#include "platform/registry/SignInStart.h"
#include "ui/ComApartment.h"
#include "ui/MessagePump.h"
#include "ui/help/ProgramHelp.h"

namespace {

int RunQuorin(bool atSignIn) {
    using namespace quorin;
    const MainInstance instance;
    if (!instance.IsFirst()) {
        return 0;
    }
    const INITCOMMONCONTROLSEX controls{
        sizeof(INITCOMMONCONTROLSEX),
        ICC_STANDARD_CLASSES | ICC_ANIMATE_CLASS | ICC_PROGRESS_CLASS | ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&controls);
    const ComApartment apartment;

    RegistrySettingsStore settings;
    SystemClock clock;
    MessageBoxPrompter prompter;
    ShellExecuteShell shell;
    MessagePump events;
    const std::string programFolder = ExecutableFolder();
    ProgramHelp help(programFolder);
    LazyIndex index({settings, clock, prompter, events, programFolder});
    MainMatchesOpener matches(index, shell, settings, prompter);
    MainOptionsOpener options(index, settings, prompter, help);
    // The main window's services, connected before the first build lets the user in.
    const auto connect = [&prompter, &matches, &options](frmMain& mainForm) {
        const auto icon =
            reinterpret_cast<HICON>(SendMessageW(mainForm.hwnd(), WM_GETICON, ICON_SMALL, 0));
        prompter.SetOwner(mainForm.hwnd());
        matches.SetAddWords([&mainForm] { mainForm.AddWords(); });
        matches.SetIcon(icon);
        options.SetMainWindow(mainForm.hwnd());
        options.SetAddWords([&mainForm] { mainForm.AddWords(); });
        options.SetIcon(icon);
        options.SetHotkeys(&mainForm);
    };
    Startup startup({settings, clock, prompter, shell, index, matches, options, help, programFolder,
                     !atSignIn, [] { PostQuitMessage(0); }, connect});

    const bool running = startup.Main();
    if (!running) {
        return 0;
    }
    return MessagePump::Run();
}

}  // namespace

// A start at sign-in (the Run value's switch) goes to the tray without the splash window.
int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR arguments, int) {
    try {
        return RunQuorin(quorin::IsSignInStart(quorin::Narrow(arguments)));
    } catch (const std::exception& error) {
        MessageBoxW(nullptr, quorin::Widen(error.what()).c_str(), L"Quorin", MB_OK | MB_ICONERROR);
        return 1;
    }
}
