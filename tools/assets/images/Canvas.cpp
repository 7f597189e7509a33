#include "Canvas.h"

#include <algorithm>
#include <cmath>

namespace art {

namespace {

float clamp01(float v) { return std::min(1.0f, std::max(0.0f, v)); }

std::uint32_t toByte(float v) { return static_cast<std::uint32_t>(std::lround(clamp01(v) * 255.0f)); }

} // namespace

Rgba hex(std::uint32_t rgb, float alpha)
{
    return {((rgb >> 16) & 0xff) / 255.0f, ((rgb >> 8) & 0xff) / 255.0f, (rgb & 0xff) / 255.0f, alpha};
}

Rgba mix(Rgba from, Rgba to, float t)
{
    return {from.r + (to.r - from.r) * t, from.g + (to.g - from.g) * t, from.b + (to.b - from.b) * t,
            from.a + (to.a - from.a) * t};
}

Rgba withAlpha(Rgba colour, float alpha)
{
    colour.a = alpha;
    return colour;
}

Rgba scaled(Rgba colour, float factor)
{
    return {clamp01(colour.r * factor), clamp01(colour.g * factor), clamp01(colour.b * factor), colour.a};
}

Paint solid(Rgba colour)
{
    return [colour](float, float) { return colour; };
}

Mask::Mask(int l, int t, int w, int h)
    : left(l), top(t), width(std::max(0, w)), height(std::max(0, h)),
      cover(static_cast<std::size_t>(width) * height, 0.0f)
{
}

float Mask::at(int x, int y) const
{
    if (x < left || y < top || x >= left + width || y >= top + height)
        return 0.0f;
    return cover[static_cast<std::size_t>(y - top) * width + (x - left)];
}

Canvas::Canvas(int width, int height) : w_(width), h_(height), px_(static_cast<std::size_t>(width) * height) {}

void Canvas::fill(const Paint &paint)
{
    for (int y = 0; y < h_; ++y)
        for (int x = 0; x < w_; ++x) {
            Rgba c = paint(x + 0.5f, y + 0.5f);
            pixel(x, y) = {c.r * c.a, c.g * c.a, c.b * c.a, c.a};
        }
}

void Canvas::blendPixel(int x, int y, Rgba s, float coverage, Blend blend)
{
    float a = clamp01(s.a * coverage);
    if (a <= 0.0f)
        return;
    Rgba &d = pixel(x, y);
    if (blend == Blend::Add) {
        d.r = std::min(1.0f, d.r + s.r * a);
        d.g = std::min(1.0f, d.g + s.g * a);
        d.b = std::min(1.0f, d.b + s.b * a);
        d.a = std::max(d.a, a);
        return;
    }
    float keep = 1.0f - a;
    d.r = s.r * a + d.r * keep;
    d.g = s.g * a + d.g * keep;
    d.b = s.b * a + d.b * keep;
    d.a = a + d.a * keep;
}

void Canvas::paint(const Mask &mask, const Paint &paint, Blend blend, float opacity)
{
    int x0 = std::max(0, mask.left), y0 = std::max(0, mask.top);
    int x1 = std::min(w_, mask.left + mask.width), y1 = std::min(h_, mask.top + mask.height);
    for (int y = y0; y < y1; ++y)
        for (int x = x0; x < x1; ++x) {
            float c = mask.cover[static_cast<std::size_t>(y - mask.top) * mask.width + (x - mask.left)];
            if (c > 0.0f)
                blendPixel(x, y, paint(x + 0.5f, y + 0.5f), c * opacity, blend);
        }
}

void Canvas::draw(const Canvas &picture, int left, int top, float opacity)
{
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            int tx = left + x, ty = top + y;
            if (tx < 0 || ty < 0 || tx >= w_ || ty >= h_)
                continue;
            const Rgba &s = picture.pixel(x, y);
            float keep = 1.0f - s.a * opacity;
            Rgba &d = pixel(tx, ty);
            d = {s.r * opacity + d.r * keep, s.g * opacity + d.g * keep, s.b * opacity + d.b * keep,
                 s.a * opacity + d.a * keep};
        }
}

std::vector<std::uint32_t> Canvas::toArgb() const
{
    std::vector<std::uint32_t> out(px_.size());
    for (std::size_t i = 0; i < px_.size(); ++i) {
        const Rgba &p = px_[i];
        std::uint32_t a = toByte(p.a);
        if (a == 0) {
            out[i] = 0;
            continue;
        }
        float inv = 1.0f / p.a;
        out[i] = (a << 24) | (toByte(p.r * inv) << 16) | (toByte(p.g * inv) << 8) | toByte(p.b * inv);
    }
    return out;
}

Canvas resized(const Canvas &src, int width, int height)
{
    Canvas out(width, height);
    float sx = static_cast<float>(src.width()) / width, sy = static_cast<float>(src.height()) / height;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            int ax = static_cast<int>(x * sx), ay = static_cast<int>(y * sy);
            int bx = std::max(ax + 1, static_cast<int>((x + 1) * sx));
            int by = std::max(ay + 1, static_cast<int>((y + 1) * sy));
            Rgba sum;
            for (int v = ay; v < by; ++v)
                for (int u = ax; u < bx; ++u) {
                    const Rgba &p = src.pixel(u, v);
                    sum = {sum.r + p.r, sum.g + p.g, sum.b + p.b, sum.a + p.a};
                }
            float n = static_cast<float>((bx - ax) * (by - ay));
            out.pixel(x, y) = {sum.r / n, sum.g / n, sum.b / n, sum.a / n};
        }
    return out;
}

} // namespace art
