#pragma once

#include <string>
#include <string_view>

namespace quorin {

// The window a build reports to: the main window (progress panel, tabs, tray tip) or the
// first-run wizard (which tidies its own window, so its EndIndexing does nothing).
class ProgressWindow {
  public:
    virtual ~ProgressWindow() = default;
    // Show the progress, play the animation file, disable the tabs.
    virtual void BeginIndexing(const std::string& animationPath) = 0;
    virtual void SetCounter(std::string_view text) = 0;
    // Hide the progress and enable the tabs again.
    virtual void EndIndexing() = 0;
};

// The main window's search progress bar, shown while FindMatch scans the index.
class SearchProgress {
  public:
    virtual ~SearchProgress() = default;
    virtual void Show(int maximum) = 0;
    virtual void SetValue(int value) = 0;
    virtual void Hide() = 0;
};

}  // namespace quorin
