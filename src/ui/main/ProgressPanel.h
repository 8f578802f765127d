#pragma once

#include <windows.h>

#include <string_view>

namespace quorin {

class MainPanels;

// The main window's progress panel, over the other panels while a build runs: the animation,
// the count of folders walked and the Cancel link, whose click the window hears by its id.
class ProgressPanel {
  public:
    // The panel and its controls, once the window has made them.
    void Attach(const MainPanels& panels);
    // On top of the other panels, playing the animation from the program folder.
    void Show(std::string_view programFolder) const;
    void SetCounter(std::string_view text) const;
    void Hide() const;

  private:
    HWND panel_ = nullptr;
    HWND Animation1 = nullptr;
    HWND lblCounter = nullptr;
};

}  // namespace quorin
