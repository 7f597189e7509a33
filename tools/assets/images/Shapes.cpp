#include "Shapes.h"

#include <algorithm>
#include <cmath>

namespace art {

namespace {

float length(float x, float y) { return std::sqrt(x * x + y * y); }

float segmentDistance(Point p, Point a, Point b)
{
    float dx = b.x - a.x, dy = b.y - a.y;
    float len2 = dx * dx + dy * dy;
    float t = len2 > 0.0f ? ((p.x - a.x) * dx + (p.y - a.y) * dy) / len2 : 0.0f;
    t = std::min(1.0f, std::max(0.0f, t));
    return length(p.x - (a.x + dx * t), p.y - (a.y + dy * t));
}

Shape grown(Shape s, float by)
{
    s.left -= by;
    s.top -= by;
    s.right += by;
    s.bottom += by;
    return s;
}

Shape boundsOf(const std::vector<Point> &points, float margin)
{
    Shape s{1e9f, 1e9f, -1e9f, -1e9f, nullptr};
    for (const Point &p : points) {
        s.left = std::min(s.left, p.x);
        s.top = std::min(s.top, p.y);
        s.right = std::max(s.right, p.x);
        s.bottom = std::max(s.bottom, p.y);
    }
    return grown(s, margin);
}

} // namespace

Shape circle(float cx, float cy, float radius)
{
    return {cx - radius, cy - radius, cx + radius, cy + radius,
            [=](float x, float y) { return length(x - cx, y - cy) - radius; }};
}

Shape ellipse(float cx, float cy, float rx, float ry)
{
    // Scaled circle distance: exact on the axes, close enough elsewhere for the small eccentricities used.
    float k = std::min(rx, ry);
    return {cx - rx, cy - ry, cx + rx, cy + ry,
            [=](float x, float y) { return (length((x - cx) / rx, (y - cy) / ry) - 1.0f) * k; }};
}

Shape roundRect(float left, float top, float width, float height, float radius)
{
    float hx = width / 2, hy = height / 2, cx = left + hx, cy = top + hy;
    float r = std::min(radius, std::min(hx, hy));
    return {left, top, left + width, top + height, [=](float x, float y) {
                float qx = std::fabs(x - cx) - (hx - r), qy = std::fabs(y - cy) - (hy - r);
                float outside = length(std::max(qx, 0.0f), std::max(qy, 0.0f));
                return outside + std::min(std::max(qx, qy), 0.0f) - r;
            }};
}

Shape capsule(Point a, Point b, float radius)
{
    Shape s = boundsOf({a, b}, radius);
    s.distance = [=](float x, float y) { return segmentDistance({x, y}, a, b) - radius; };
    return s;
}

Shape polygon(std::vector<Point> v)
{
    Shape s = boundsOf(v, 0.0f);
    s.distance = [v](float x, float y) {
        float best = 1e9f;
        bool inside = false;
        for (std::size_t i = 0, j = v.size() - 1; i < v.size(); j = i++) {
            best = std::min(best, segmentDistance({x, y}, v[j], v[i]));
            bool crosses = (v[i].y > y) != (v[j].y > y);
            if (crosses && x < (v[j].x - v[i].x) * (y - v[i].y) / (v[j].y - v[i].y) + v[i].x)
                inside = !inside;
        }
        return inside ? -best : best;
    };
    return s;
}

Shape polyline(std::vector<Point> pts, float width)
{
    Shape s = boundsOf(pts, width / 2);
    s.distance = [pts, width](float x, float y) {
        float best = 1e9f;
        for (std::size_t i = 1; i < pts.size(); ++i)
            best = std::min(best, segmentDistance({x, y}, pts[i - 1], pts[i]));
        if (pts.size() == 1)
            best = length(x - pts[0].x, y - pts[0].y);
        return best - width / 2;
    };
    return s;
}

Shape arc(float cx, float cy, float radius, float a0, float a1, float width)
{
    std::vector<Point> pts;
    int steps = std::max(4, static_cast<int>(std::fabs(a1 - a0) * radius / 2.0f));
    for (int i = 0; i <= steps; ++i) {
        float a = a0 + (a1 - a0) * i / steps;
        pts.push_back({cx + std::cos(a) * radius, cy + std::sin(a) * radius});
    }
    return polyline(std::move(pts), width);
}

Shape outline(const Shape &shape, float width)
{
    Shape s = grown(shape, width / 2);
    auto d = shape.distance;
    s.distance = [d, width](float x, float y) { return std::fabs(d(x, y)) - width / 2; };
    return s;
}

Shape inset(const Shape &shape, float amount)
{
    Shape s = amount < 0 ? grown(shape, -amount) : shape;
    auto d = shape.distance;
    s.distance = [d, amount](float x, float y) { return d(x, y) + amount; };
    return s;
}

Shape unite(const Shape &a, const Shape &b)
{
    auto da = a.distance, db = b.distance;
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom), [da, db](float x, float y) { return std::min(da(x, y), db(x, y)); }};
}

Shape subtract(const Shape &from, const Shape &cut)
{
    Shape s = from;
    auto da = from.distance, db = cut.distance;
    s.distance = [da, db](float x, float y) { return std::max(da(x, y), -db(x, y)); };
    return s;
}

Shape intersect(const Shape &a, const Shape &b)
{
    auto da = a.distance, db = b.distance;
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom), [da, db](float x, float y) { return std::max(da(x, y), db(x, y)); }};
}

Mask rasterize(const Shape &shape, float softness)
{
    int l = static_cast<int>(std::floor(shape.left - softness - 1));
    int t = static_cast<int>(std::floor(shape.top - softness - 1));
    int r = static_cast<int>(std::ceil(shape.right + softness + 1));
    int b = static_cast<int>(std::ceil(shape.bottom + softness + 1));
    Mask m(l, t, r - l, b - t);
    for (int y = t; y < b; ++y)
        for (int x = l; x < r; ++x) {
            float d = shape.distance(x + 0.5f, y + 0.5f);
            m.cell(x, y) = std::min(1.0f, std::max(0.0f, 0.5f - d / softness));
        }
    return m;
}

std::vector<Point> smoothCurve(const std::vector<Point> &p, int steps)
{
    std::vector<Point> out;
    auto at = [&p](int i) { return p[static_cast<std::size_t>(std::min(std::max(i, 0), static_cast<int>(p.size()) - 1))]; };
    for (int i = 0; i + 1 < static_cast<int>(p.size()); ++i)
        for (int s = 0; s < steps; ++s) {
            float t = static_cast<float>(s) / steps, t2 = t * t, t3 = t2 * t;
            Point a = at(i - 1), b = at(i), c = at(i + 1), d = at(i + 2);
            auto blend = [&](float pa, float pb, float pc, float pd) {
                return 0.5f * (2 * pb + (pc - pa) * t + (2 * pa - 5 * pb + 4 * pc - pd) * t2 +
                               (3 * pb - pa - 3 * pc + pd) * t3);
            };
            out.push_back({blend(a.x, b.x, c.x, d.x), blend(a.y, b.y, c.y, d.y)});
        }
    out.push_back(p.back());
    return out;
}

std::vector<Point> spaced(const std::vector<Point> &path, float spacing)
{
    std::vector<Point> out;
    if (path.empty())
        return out;
    out.push_back(path.front());
    float carried = 0.0f;
    for (std::size_t i = 1; i < path.size(); ++i) {
        Point a = path[i - 1], b = path[i];
        float seg = length(b.x - a.x, b.y - a.y);
        float pos = spacing - carried;
        while (pos <= seg) {
            float t = pos / seg;
            out.push_back({a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t});
            pos += spacing;
        }
        carried = seg - (pos - spacing);
    }
    return out;
}

void fillShape(Canvas &canvas, const Shape &shape, const Paint &paint, float softness)
{
    canvas.paint(rasterize(shape, softness), paint);
}

} // namespace art
