#pragma once

#include <windows.h>

#include <functional>
#include <vector>

#include "ui/Window.h"

namespace quorin::test {

// A hidden top-level window (showing one costs Wine seconds) that records the WM_COMMAND
// notifications of its children and hands WM_APP to onApp.
class TestParent final : public Window {
  public:
    struct Command {
        int id;
        int code;
        HWND from;
    };

    TestParent();

    std::vector<Command> commands;
    std::function<void(WPARAM)> onApp;

  private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

// A plain child window that counts the messages it receives.
HWND CreateSpyChild(HWND parent, int& messageCount);

// A mouse message with client coordinates, as the system delivers it.
void SendMouse(HWND window, UINT message, int x, int y);

SIZE ClientSize(HWND window);

// A window's client area as it paints itself (through WM_PRINTCLIENT), row by row.
std::vector<COLORREF> Render(HWND window);
bool Shows(HWND window, COLORREF color);
// The number of pixels unlike the top left one: the ink of a caption.
int Ink(HWND window);

}  // namespace quorin::test
