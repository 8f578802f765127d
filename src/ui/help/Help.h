#pragma once

#include <windows.h>

#include <cstdint>

namespace quorin {

// Context numbers of the help topics in "qn.HLP".
enum ContextIDs : int32_t {
    kHelpUsingQuorin = 10,  // the main window's help link
    kHelpSettingUp = 20,    // the first-run wizard's "more" link
    kHelpAboutQuorin = 30,  // the help panel's two other links
    kHelpAboutVeltaro = 40,
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

// Help as the windows reach it, handed in with their other services.
class Help {
  public:
    virtual ~Help() = default;

    // Remembers the window on whose behalf help is opened and fills the help window position.
    // Called when the main window and the wizard load.
    virtual void Setup(HWND owner) = 0;
    // Opens the help window at the topic, or brings the open one forward with that topic.
    virtual void ShowTopic(int32_t context) = 0;
    // Closes the help window if it is open. Called when the main window and the wizard unload.
    virtual void Close() = 0;
};

}  // namespace quorin
