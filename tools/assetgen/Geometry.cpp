#include "Geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quorin::assets {

double CircleDistance(Point p, Point centre, double radius) {
    return std::hypot(p.x - centre.x, p.y - centre.y) - radius;
}

double RoundedRectDistance(Point p, Point topLeft, Point bottomRight, double cornerRadius) {
    const double halfW = (bottomRight.x - topLeft.x) / 2;
    const double halfH = (bottomRight.y - topLeft.y) / 2;
    const double qx = std::abs(p.x - (topLeft.x + halfW)) - (halfW - cornerRadius);
    const double qy = std::abs(p.y - (topLeft.y + halfH)) - (halfH - cornerRadius);
    const double outside = std::hypot(std::max(qx, 0.0), std::max(qy, 0.0));
    return outside + std::min(std::max(qx, qy), 0.0) - cornerRadius;
}

double SegmentDistance(Point p, Point a, Point b) {
    const double abx = b.x - a.x;
    const double aby = b.y - a.y;
    const double lengthSquared = abx * abx + aby * aby;
    double t = 0;
    if (lengthSquared > 0) {
        t = std::clamp(((p.x - a.x) * abx + (p.y - a.y) * aby) / lengthSquared, 0.0, 1.0);
    }
    return std::hypot(p.x - (a.x + t * abx), p.y - (a.y + t * aby));
}

double AngleAround(Point p, Point centre) {
    const double degrees = std::atan2(p.y - centre.y, p.x - centre.x) * 180.0 / std::numbers::pi;
    return degrees < 0 ? degrees + 360.0 : degrees;
}

double Smoothstep(double edge0, double edge1, double x) {
    const double t = std::clamp((x - edge0) / (edge1 - edge0), 0.0, 1.0);
    return t * t * (3.0 - 2.0 * t);
}

}  // namespace quorin::assets
