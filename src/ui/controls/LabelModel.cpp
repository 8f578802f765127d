#include "ui/controls/LabelModel.h"

namespace quorin {

bool InsideTabLabel(int x, int y, int width, int height) {
    return x >= 0 && x < width && y >= 0 && y < height;
}

bool InsideLinkLabel(int x, int y, int width, int height) {
    return x > 0 && x < width && y > 0 && y < height;
}

void LabelModel::MouseMove(bool inside) {
    const bool hover = inside && !selected_;
    underlined_ = hover;
    bCaptured = hover || bPressed;
}

void LabelModel::MouseDown(bool inside) {
    bPressed = true;
    MouseMove(inside);
}

bool LabelModel::MouseUp(bool inside) {
    if (!bPressed) {
        MouseMove(inside);
        return false;
    }
    Reset();
    return true;
}

void LabelModel::Reset() {
    underlined_ = false;
    bPressed = false;
    bCaptured = false;
}

}  // namespace quorin
