#pragma once

#include <windows.h>

#include <functional>
#include <vector>

#include "ui/Window.h"
#include "ui/WindowClass.h"

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

    TestParent() {
        static const ATOM atom = RegisterWindowClass({.name = L"QuorinTestParent"});
        Create(MAKEINTATOM(atom), {.title = "Test parent", .style = WS_OVERLAPPEDWINDOW});
    }

    std::vector<Command> commands;
    std::function<void(WPARAM)> onApp;

  private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMMAND) {
            commands.push_back({LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam)});
        } else if (message == WM_APP && onApp) {
            onApp(wParam);
        } else {
            return Window::HandleMessage(message, wParam, lParam);
        }
        return 0;
    }
};

}  // namespace quorin::test
