#pragma once

#include <windows.h>

namespace quorin {

// BeginPaint for one WM_PAINT, with its EndPaint.
class PaintDc {
  public:
    explicit PaintDc(HWND window) : window_(window) { dc_ = BeginPaint(window, &paint_); }
    PaintDc(const PaintDc&) = delete;
    PaintDc& operator=(const PaintDc&) = delete;
    ~PaintDc() { EndPaint(window_, &paint_); }

    HDC get() const { return dc_; }

  private:
    HWND window_;
    PAINTSTRUCT paint_{};
    HDC dc_ = nullptr;
};

}  // namespace quorin
