#pragma once

#include <string_view>

namespace quorin {

// What a build reports as it goes: to the main window, to the first-run wizard, or to nobody on
// the console. How it is shown is the receiver's business.
class BuildProgress {
  public:
    virtual ~BuildProgress() = default;
    virtual void BuildStarted() = 0;
    // The folders walked so far, or what the build is doing now.
    virtual void SetCounter(std::string_view text) = 0;
    // Called however the build ends: completed, cancelled or failed.
    virtual void BuildEnded() = 0;
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
