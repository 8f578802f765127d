#pragma once

namespace quorin::assets {

struct Point {
    double x = 0;
    double y = 0;
};

// Signed distances: negative inside the shape, positive outside, zero on its edge.
double CircleDistance(Point p, Point centre, double radius);
double RoundedRectDistance(Point p, Point topLeft, Point bottomRight, double cornerRadius);
// Unsigned distance to the segment a-b; a stroke of width w with round caps is the set
// where it is at most w / 2.
double SegmentDistance(Point p, Point a, Point b);

// Angle of p around centre in degrees, 0 pointing right and growing clockwise (y points down).
double AngleAround(Point p, Point centre);

// 0 below edge0, 1 above edge1, a smooth S-curve between: soft shadows and glows.
double Smoothstep(double edge0, double edge1, double x);

}  // namespace quorin::assets
