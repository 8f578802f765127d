#pragma once

namespace quorin {

// The inside tests, in the control's client pixels. The tab counts its whole area. The link's
// comparisons are strict: its first row and column count as outside, as its users expect.
bool InsideTabLabel(int x, int y, int width, int height);
bool InsideLinkLabel(int x, int y, int width, int height);

// Hover, press and capture of a tab or link label, without the window. Hovering underlines the
// caption and holds the mouse capture, which is what lets the control see the pointer leave; a
// press keeps the capture outside too, so that the release is seen wherever it happens. A
// selected tab neither underlines nor holds the capture for hovering.
class LabelModel {
  public:
    void MouseMove(bool inside);
    void MouseDown(bool inside);
    // True when the release completes a press, wherever the pointer is now: the control raises
    // Click. Afterwards nothing is pressed, underlined or captured.
    bool MouseUp(bool inside);
    // Back to idle (another window took the capture, or the control was disabled); Selected
    // stays as it is.
    void Reset();

    bool Selected() const { return selected_; }
    void SetSelected(bool selected) { selected_ = selected; }
    bool Underlined() const { return underlined_; }
    bool Captured() const { return bCaptured; }

  private:
    bool selected_ = false;
    bool underlined_ = false;
    bool bPressed = false;
    bool bCaptured = false;
};

}  // namespace quorin
