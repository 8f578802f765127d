#pragma once

#include <windows.h>

#include <functional>

#include "platform/EventPump.h"

namespace quorin {

// The UI thread's message loop. Keys go through the active dialog's own keys and then
// IsDialogMessage for the active window, so that Tab and the arrow keys move between controls in
// plain windows as in dialogs.
class MessagePump final : public EventPump {
  public:
    // Dispatches every message waiting (and those the handlers post meanwhile), then returns.
    // A WM_QUIT met on the way is posted again and ends the call, so the main loop still sees it.
    void DoEvents() override;

    // The main loop: runs until WM_QUIT and returns its exit code.
    static int Run();
    // A modal loop: runs until `done` says so. A WM_QUIT met on the way is posted again and ends
    // the loop, so that the main loop still sees it.
    static void RunUntil(const std::function<bool()>& done);

  private:
    static void Dispatch(MSG& message);
};

}  // namespace quorin
