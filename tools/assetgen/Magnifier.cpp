#include "Magnifier.h"

#include <cmath>
#include <numbers>

namespace quorin::assets {

namespace {

constexpr double kDiagonal = std::numbers::sqrt2 / 2;

}  // namespace

bool Magnifier::InRim(Point p) const {
    const double d = CircleDistance(p, centre, radius);
    return d <= 0 && d >= -rimWidth;
}

bool Magnifier::InGlass(Point p) const {
    return CircleDistance(p, centre, radius - rimWidth) < 0;
}

bool Magnifier::InHandle(Point p) const {
    // The handle starts inside the rim, so that no seam shows where they meet, but never
    // reaches into the glass.
    if (InGlass(p)) {
        return false;
    }
    const double from = radius - rimWidth / 2;
    const double to = radius + handleLength;
    const Point a{centre.x + from * kDiagonal, centre.y + from * kDiagonal};
    const Point b{centre.x + to * kDiagonal, centre.y + to * kDiagonal};
    return SegmentDistance(p, a, b) <= handleWidth / 2;
}

bool Magnifier::InGlint(Point p) const {
    const double glass = radius - rimWidth;
    const double d = std::abs(CircleDistance(p, centre, glass * 0.68));
    const double angle = AngleAround(p, centre);
    return d <= glass * 0.09 && angle >= 195 && angle <= 250;
}

}  // namespace quorin::assets
