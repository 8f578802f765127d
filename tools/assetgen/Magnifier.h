#pragma once

#include "Geometry.h"

namespace quorin::assets {

// The program's mark, drawn in the icons, the splash picture and the animation: a round
// lens in a rim, with a handle pointing down and to the right.
struct Magnifier {
    Point centre;
    double radius = 0;  // outer edge of the rim
    double rimWidth = 0;
    double handleLength = 0;  // beyond the rim
    double handleWidth = 0;

    bool InRim(Point p) const;
    bool InGlass(Point p) const;  // inside the rim
    bool InHandle(Point p) const;
    // Where the glass's glint lies, as a short arc inside the rim's upper left.
    bool InGlint(Point p) const;
};

}  // namespace quorin::assets
