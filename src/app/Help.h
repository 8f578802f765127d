#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace quorin {

// Context numbers of the help topics in "qn.HLP".
enum ContextIDs : int32_t {
    kHelpUsingQuorin = 10,     // the main window's help link
    kHelpSettingUp = 20,       // the first-run wizard's "more" link
    kHelpGeneralOptions = 80,  // the Options dialog, by page
    kHelpFileTypeOptions = 90,
    kHelpWordOptions = 100,
};

// Where the help window first opens, in units of 1/1024 of the screen.
#pragma pack(push, 1)
struct HelpWindowPosition {
    int32_t size = 26;
    int32_t left = 256;
    int32_t top = 256;
    int32_t width = 512;
    int32_t height = 512;
    int32_t maximize = 0;
    char name[2] = {};
};
#pragma pack(pop)
static_assert(sizeof(HelpWindowPosition) == 26);

// Remembers the owner and the help file of the program folder (the running program's own
// folder in the first form), and fills the help window position. Called when the main window
// and the wizard load.
void HelpSetup(HWND owner);
void HelpSetup(HWND owner, std::string_view programFolder);

// The help file HelpSetup chose.
const std::string& HelpFile();

// Opens the help window at the topic, or brings the open one forward with that topic.
void ShowHelpTopic(int32_t context);

// Closes the help window if it is open. Called when the main window and the wizard unload.
void CloseHelp();

}  // namespace quorin
