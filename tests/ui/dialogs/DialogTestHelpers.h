#pragma once

#include <windows.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "ui/dialogs/FileChooser.h"

namespace quorin::test {

// Answers the file-open dialog with what the test set, and records what it was shown.
class FakeFileChooser final : public FileChooser {
  public:
    std::string Choose(HWND, std::string_view filter, const std::string& fileName) override {
        filters.emplace_back(filter);
        starts.push_back(fileName);
        return answer.empty() ? fileName : answer;
    }
    std::string answer;  // empty: the user cancels
    std::vector<std::string> filters;
    std::vector<std::string> starts;
};

// A key pressed in the focused control, as the message pump delivers it, with `held` keys
// (VK_CONTROL, VK_SHIFT) down meanwhile.
void PressKey(WPARAM key, std::initializer_list<BYTE> held = {});
// A click on the dialog's button or link label `id`, as the control reports it.
void ClickItem(HWND dialog, int id);
// A user's press and release of the left button on `control`.
void PressAndRelease(HWND control);
// Runs `action` once the thread's message loop is running (a modal dialog's, say).
void WhenLoopRuns(std::function<void()> action);

}  // namespace quorin::test
