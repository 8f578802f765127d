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

}  // namespace quorin::test
