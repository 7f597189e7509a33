#include "Backdrop.h"

#include "Filters.h"
#include "Random.h"
#include "Shapes.h"
#include "Theme.h"

#include <algorithm>
#include <cmath>

namespace art {

namespace {

float bandFade(float y, float top, float bottom)
{
    float span = std::max(1.0f, (bottom - top) * 0.25f);
    return std::min(1.0f, std::max(0.0f, std::min(y - top, bottom - y) / span));
}

Rgba starTint(Random &rng)
{
    float pick = rng.unit();
    if (pick < 0.15f)
        return hex(0xffe2b0);
    if (pick < 0.4f)
        return hex(0xbcd2ff);
    return hex(0xffffff);
}

} // namespace

void haze(Canvas &canvas, const HazeLook &look)
{
    Noise noise(look.seed);
    Mask all = fullMask(canvas.width(), canvas.height());
    canvas.paint(all, [&](float x, float y) {
        float n = noise.fractal(x, y, look.scale, 5);
        float wisp = std::max(0.0f, (n - look.threshold) / (1.0f - look.threshold));
        return withAlpha(look.colour, std::min(1.0f, wisp * 1.6f) * look.strength * bandFade(y, look.top, look.bottom));
    });
}

void stars(Canvas &canvas, std::uint64_t seed, int count, float top, float bottom, float brightness)
{
    Random rng(seed);
    for (int i = 0; i < count; ++i) {
        float x = rng.range(0, static_cast<float>(canvas.width()));
        float y = rng.range(top, bottom);
        float size = rng.unit();
        size = size * size * size; // many faint stars, few bright ones
        Rgba tint = starTint(rng);
        float alpha = brightness * (0.25f + 0.75f * size) * bandFade(y, top - (bottom - top), bottom);
        float radius = 0.45f + size * 1.1f;
        canvas.paint(rasterize(circle(x, y, radius)), solid(withAlpha(tint, alpha)), Blend::Add);
        if (size > 0.55f)
            canvas.paint(blurred(rasterize(circle(x, y, radius * 1.5f)), 5.0f), solid(withAlpha(tint, alpha * 0.45f)),
                         Blend::Add);
    }
}

void vignette(Canvas &canvas, float strength)
{
    float cx = canvas.width() / 2.0f, cy = canvas.height() / 2.0f;
    canvas.paint(fullMask(canvas.width(), canvas.height()),
                 oval(cx, cy, cx * 1.25f, cy * 1.35f,
                      {{0.0f, {0, 0, 0, 0}}, {0.55f, {0, 0, 0, 0}}, {1.0f, {0, 0, 0, strength}}}));
}

Canvas menuBackdrop(std::uint64_t seed)
{
    Canvas c(kScreenWidth, kScreenHeight);
    c.fill(vertical(0, kScreenHeight, {{0.0f, theme::nightTop()}, {0.55f, theme::nightMid()}, {1.0f, theme::nightLow()}}));
    // A low glow on the horizon, as if the menus stood over a lit valley.
    c.paint(fullMask(kScreenWidth, kScreenHeight),
            oval(400, 640, 620, 300, {{0.0f, hex(0x5a3a7a, 0.45f)}, {1.0f, hex(0x5a3a7a, 0.0f)}}));
    auto s = static_cast<std::uint32_t>(seed);
    haze(c, {s * 7 + 1, hex(0x4d5fb0), 170.0f, 0.22f, 0.5f, 0.0f, 600.0f});
    haze(c, {s * 7 + 2, hex(0x7a3f8f), 110.0f, 0.16f, 0.55f, 200.0f, 650.0f});
    stars(c, seed * 31 + 5, 260, 0.0f, 420.0f, 0.85f);
    vignette(c, 0.55f);
    return c;
}

} // namespace art
