// A window for people to look at, not a test: the Matches window for the word "note" over a
// small hand-written index of files of several kinds (programs, registered types, an unknown
// type). The file types are registered for the occasion and removed again at exit.
// Usage: matches_demo [seconds]   closes itself after that many seconds when given.
//        matches_demo min         shows the window at its minimum size.

#include <windows.h>

#include <cwchar>
#include <memory>
#include <string_view>

#include "index/clsIndex.h"
#include "platform/Clock.h"
#include "platform/MemorySettingsStore.h"
#include "platform/MessageBoxPrompter.h"
#include "platform/ShellExecuteShell.h"
#include "platform/registry/ScratchClasses.h"
#include "resource.h"
#include "support/TempFolder.h"
#include "ui/MessagePump.h"
#include "ui/matches/frmMatches.h"

namespace quorin {
namespace {

constexpr char kIndexFile[] =
    "2023-03-15 12:00:00\r\n 4\r\nC:\\windows\r\nC:\\windows\\system32\r\n"
    "C:\\users\\Public\\Documents\r\nC:\\users\\Public\\Documents\\Projects\r\n"
    " 0\r\nnotepad.exe\r\n 1\r\nnotepad.exe\r\n 2\r\nMeeting notes.qzt\r\n"
    " 3\r\nRelease notes.qzh\r\n 2\r\nNotebook.qzr\r\n 3\r\nnotes backup.zzz\r\n"
    " 2\r\nbudget.qzt\r\n";

void RegisterTypes(ScratchClasses& classes) {
    classes.RegisterType(".qzt", "QuorinDemo.Text", "Text document",
                         "%SystemRoot%\\system32\\shell32.dll,-152");
    classes.RegisterType(".qzh", "QuorinDemo.Help", "Help topic",
                         "%SystemRoot%\\system32\\winhlp32.exe,0");
    classes.RegisterType(".qzr", "QuorinDemo.Registry", "Registry script",
                         "%SystemRoot%\\regedit.exe,0");
}

class NoEvents final : public EventPump {
  public:
    void DoEvents() override {}
};

}  // namespace
}  // namespace quorin

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR commandLine, int) {
    using namespace quorin;
    ScratchClasses classes;
    RegisterTypes(classes);
    TempFolder program;
    program.WriteFile("index.txt", kIndexFile);
    MemorySettingsStore settings;
    SystemClock clock;
    MessageBoxPrompter prompter;
    NoEvents events;
    ShellExecuteShell shell;
    clsIndex index(IndexServices{settings, clock, prompter, events, program.Path()});
    const HICON icon = LoadIconW(instance, MAKEINTRESOURCEW(IDI_QUORIN));

    const HWND window =
        ShowMatches("note", *index.FindMatch("note"), {index, shell, settings, prompter, {}, icon});
    if (std::wstring_view(commandLine) == L"min") {
        SetWindowPos(window, nullptr, 0, 0, 1, 1, SWP_NOMOVE | SWP_NOZORDER);
    }
    if (const auto seconds = std::wcstoul(commandLine, nullptr, 10); seconds > 0) {
        SetTimer(window, 1, static_cast<UINT>(seconds * 1000),
                 [](HWND timed, UINT, UINT_PTR, DWORD) { DestroyWindow(timed); });
    }
    MessagePump pump;
    while (IsWindow(window)) {
        WaitMessage();
        pump.DoEvents();
    }
    return 0;
}
