#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/main/WordCompletion.h"

namespace quorin {

// A key pressed in the word box, passed on to the main window (wParam: the key code).
inline constexpr UINT kWordKeyDown = WM_APP;

// The Go panel's word box: a drop-down combo box that completes the typed text from its list of
// words. Its edit field tells the main window of every key pressed (kWordKeyDown), and Enter
// presses the window's default button (IDOK).
class WordBox {
  public:
    void Attach(HWND combo, HWND form);
    HWND hwnd() const { return combo_; }

    // Empties the list and fills it with the words; the typed text and its selection stay.
    void SetWords(const std::vector<std::string>& words);
    void KeyDown(int keyCode) { completion_.KeyDown(keyCode); }
    // Completes the text just typed from the list.
    void Change();

  private:
    std::optional<std::string> FindEntry(std::string_view text) const;

    HWND combo_ = nullptr;
    WordCompletion completion_;
};

}  // namespace quorin
