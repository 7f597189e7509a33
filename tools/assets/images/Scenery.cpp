#include "Scenery.h"

#include "Filters.h"
#include "Gradients.h"
#include "Random.h"
#include "Shapes.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace art {

namespace {

// One pine: a trunk and a stack of drooping tiers, narrowing to the tip.
Shape pine(float x, float ground, float height, Random &rng)
{
    std::vector<Point> left, right;
    int tiers = 5 + rng.below(3);
    float top = ground - height, halfBase = height * rng.range(0.2f, 0.26f);
    left.push_back({x, top});
    for (int i = 1; i <= tiers; ++i) {
        float t = static_cast<float>(i) / tiers;
        float y = top + height * 0.88f * t, half = halfBase * t;
        float notch = half * 0.45f;
        left.push_back({x - half, y});
        left.push_back({x - notch, y - height * 0.03f});
        right.push_back({x + notch, y - height * 0.03f});
        right.push_back({x + half, y});
    }
    float trunk = std::max(1.5f, height * 0.03f);
    left.push_back({x - trunk, ground + 2});
    right.push_back({x + trunk, ground + 2});
    std::vector<Point> outlinePoints = left;
    outlinePoints.insert(outlinePoints.end(), right.rbegin(), right.rend());
    return polygon(outlinePoints);
}

} // namespace

Mask belowRidge(int width, int height, const std::function<float(float)> &ridgeY)
{
    Mask m(0, 0, width, height);
    for (int x = 0; x < width; ++x) {
        float ridge = ridgeY(x + 0.5f);
        for (int y = 0; y < height; ++y)
            m.cell(x, y) = std::min(1.0f, std::max(0.0f, y + 1.0f - ridge));
    }
    return m;
}

std::function<float(float)> rollingRidge(std::uint32_t seed, float base, float amplitude, float featureWidth)
{
    Noise noise(seed);
    return [noise, base, amplitude, featureWidth](float x) {
        float n = noise.fractal(x, 0.5f, featureWidth, 4);
        return base - (n - 0.5f) * 2.0f * amplitude;
    };
}

void pineWood(Canvas &canvas, const WoodLook &look)
{
    Random rng(look.seed);
    // The wood's floor rolls a little, so that no straight line shows between the trunks.
    auto floor = rollingRidge(static_cast<std::uint32_t>(look.seed), look.ground, 10.0f, 160.0f);
    for (float x = rng.range(-look.spacing, 0); x < canvas.width() + look.spacing; x += look.spacing * rng.range(0.6f, 1.4f)) {
        float height = rng.range(look.minHeight, look.maxHeight);
        canvas.paint(rasterize(pine(x, floor(x) + 4.0f, height, rng)), solid(look.colour));
    }
    canvas.paint(belowRidge(canvas.width(), canvas.height(), floor), solid(look.colour));
}

void moon(Canvas &canvas, float cx, float cy, float radius, Rgba tint, float glow)
{
    canvas.paint(blurred(rasterize(circle(cx, cy, radius * 2.2f)), radius * 2.5f), solid(withAlpha(tint, glow)), Blend::Add);
    canvas.paint(rasterize(circle(cx, cy, radius)),
                 radial(cx - radius * 0.3f, cy - radius * 0.3f, radius * 1.5f, {{0.0f, tint}, {1.0f, scaled(tint, 0.75f)}}));
    Noise marks(7);
    canvas.paint(rasterize(circle(cx, cy, radius)), [&marks, tint](float x, float y) {
        float n = marks.fractal(x, y, 9.0f, 3);
        return withAlpha(scaled(tint, 0.6f), std::max(0.0f, n - 0.5f) * 0.9f);
    });
}

void waterGlints(Canvas &canvas, std::uint64_t seed, float x, float horizon, float width, Rgba tint)
{
    Random rng(seed);
    float depth = canvas.height() - horizon;
    for (int i = 0; i < 140; ++i) {
        float t = rng.unit();
        float y = horizon + 3 + t * t * depth;
        float spread = width * (0.4f + t * 1.4f);
        float gx = x + rng.range(-spread, spread) * rng.unit();
        float len = rng.range(6, 26) * (0.6f + t);
        float fade = 1.0f - std::fabs(gx - x) / (spread + 1);
        canvas.paint(rasterize(capsule({gx - len / 2, y}, {gx + len / 2, y}, 0.6f + t * 0.8f)),
                     solid(withAlpha(tint, 0.35f * fade * (1.0f - 0.5f * t))), Blend::Add);
    }
}

void fireflies(Canvas &canvas, std::uint64_t seed, int count, float top, float bottom)
{
    Random rng(seed);
    for (int i = 0; i < count; ++i) {
        float x = rng.range(0, static_cast<float>(canvas.width())), y = rng.range(top, bottom);
        float glow = rng.range(0.25f, 0.6f);
        canvas.paint(blurred(rasterize(circle(x, y, 2.5f)), 6.0f), solid(hex(0xc8e860, glow * 0.6f)), Blend::Add);
        canvas.paint(rasterize(circle(x, y, 1.0f)), solid(hex(0xeaff9a, glow)), Blend::Add);
    }
}

} // namespace art
