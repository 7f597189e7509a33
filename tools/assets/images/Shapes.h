// Shapes as signed distance fields: negative inside, positive outside, in pixels. A field gives clean
// antialiased edges at any size, and strokes, insets and unions come from simple arithmetic on it.
#pragma once

#include "Canvas.h"

#include <functional>
#include <vector>

namespace art {

struct Point {
    float x = 0, y = 0;
};

struct Shape {
    float left = 0, top = 0, right = 0, bottom = 0; // nothing of the shape lies outside
    std::function<float(float x, float y)> distance;
};

Shape circle(float cx, float cy, float radius);
Shape ellipse(float cx, float cy, float rx, float ry);
Shape roundRect(float left, float top, float width, float height, float radius);
Shape capsule(Point a, Point b, float radius);
Shape polygon(std::vector<Point> corners);
Shape polyline(std::vector<Point> points, float width); // a stroke with round joins and caps
// An arc of the circle, from angle a0 to a1 in radians (clockwise on screen, 0 pointing right).
Shape arc(float cx, float cy, float radius, float a0, float a1, float width);

Shape outline(const Shape &shape, float width); // a band of that width centred on the edge
Shape inset(const Shape &shape, float amount);  // grows inwards for positive amounts
Shape unite(const Shape &a, const Shape &b);
Shape subtract(const Shape &from, const Shape &cut);
Shape intersect(const Shape &a, const Shape &b);

// Coverage of the shape; softness widens the edge ramp (1 is a crisp antialiased edge).
Mask rasterize(const Shape &shape, float softness = 1.0f);

// Points of a curve through the given points (Catmull-Rom), steps points per span.
std::vector<Point> smoothCurve(const std::vector<Point> &through, int steps);
// Points spaced evenly by arc length along a polyline.
std::vector<Point> spaced(const std::vector<Point> &path, float spacing);

// Rasterise and paint in one step.
void fillShape(Canvas &canvas, const Shape &shape, const Paint &paint, float softness = 1.0f);

} // namespace art
