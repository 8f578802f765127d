#pragma once

#include <windows.h>

#include "platform/EventPump.h"

namespace quorin {

// The UI thread's message loop. Keys go through IsDialogMessage for the active window first,
// so that Tab and the arrow keys move between controls in plain windows as in dialogs.
class MessagePump final : public EventPump {
  public:
    // Dispatches every message waiting (and those the handlers post meanwhile), then returns.
    // A WM_QUIT met on the way is posted again and ends the call, so the main loop still sees it.
    void DoEvents() override;

    // The main loop: runs until WM_QUIT and returns its exit code.
    static int Run();

  private:
    static void Dispatch(MSG& message);
};

}  // namespace quorin
