#pragma once

#include <windows.h>

namespace quorin {

// Drives a progress bar that is told its value far more often than anyone could see it, as the
// search's bar is, every 100 records. Setting a bar's position repaints it at once, so a value
// reaches the bar only when its fill grows by at least a pixel and a display frame has passed
// since it last drew; the rest cost a comparison.
class PacedProgress {
  public:
    // The bar empty, on a scale up to `maximum`.
    void Start(HWND bar, int maximum);
    void Set(HWND bar, int value);

  private:
    static constexpr ULONGLONG kFrameMilliseconds = 16;

    int step_ = 1;  // the values one pixel of the bar's width stands for
    int next_ = 0;  // the first value worth showing
    ULONGLONG nextTick_ = 0;
};

}  // namespace quorin
