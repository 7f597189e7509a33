#include "Marbles.h"

#include "Filters.h"
#include "Gradients.h"
#include "Random.h"
#include "Theme.h"

#include <algorithm>
#include <cmath>

namespace art {

namespace {

// Light from the upper left and a little towards the viewer.
constexpr float kLightX = -0.48f, kLightY = -0.62f, kLightZ = 0.62f;

Paint sphereShade(float cx, float cy, float radius, Rgba base)
{
    return [=](float x, float y) {
        float nx = (x - cx) / radius, ny = (y - cy) / radius;
        float nz = std::sqrt(std::max(0.0f, 1.0f - nx * nx - ny * ny));
        float diffuse = std::max(0.0f, nx * kLightX + ny * kLightY + nz * kLightZ);
        // Reflected light towards the viewer (0, 0, 1): the highlight.
        float rz = 2.0f * diffuse * nz - kLightZ;
        float shine = std::pow(std::max(0.0f, rz), 24.0f);
        // Light that comes through the glass, brightest on the side away from the lamp.
        float glow = std::max(0.0f, -(nx * kLightX + ny * kLightY)) * (1.0f - nz) * 0.55f;
        float shade = 0.22f + 0.85f * diffuse + glow;
        Rgba c = scaled(base, shade);
        c = mix(c, Rgba{1, 1, 1, 1}, std::min(1.0f, shine * 0.9f));
        return withAlpha(c, 1.0f);
    };
}

// Runs of one to three balls of one colour, as chains come in play.
std::vector<int> chainColours(std::size_t count, std::uint64_t seed)
{
    Random rng(seed);
    std::vector<int> colours;
    int colour = rng.below(6);
    while (colours.size() < count) {
        int run = 1 + rng.below(3);
        for (int i = 0; i < run && colours.size() < count; ++i)
            colours.push_back(colour);
        colour = (colour + 1 + rng.below(5)) % 6;
    }
    return colours;
}

} // namespace

void drawMarble(Canvas &canvas, float cx, float cy, float radius, Rgba colour, float opacity)
{
    // Contact shadow first, so the ball sits on whatever lies under it.
    Mask shadow = blurred(rasterize(ellipse(cx + radius * 0.12f, cy + radius * 0.22f, radius * 0.95f, radius * 0.9f)),
                          std::max(2.0f, radius * 0.35f));
    canvas.paint(shadow, solid({0, 0, 0, 0.45f}), Blend::Over, opacity);
    canvas.paint(rasterize(circle(cx, cy, radius)), sphereShade(cx, cy, radius, colour), Blend::Over, opacity);
    // A thin dark rim keeps small balls crisp against any ground.
    canvas.paint(rasterize(outline(circle(cx, cy, radius - 0.4f), std::max(0.8f, radius * 0.06f))),
                 solid(withAlpha(scaled(colour, 0.3f), 0.6f)), Blend::Over, opacity);
}

void drawPit(Canvas &canvas, float cx, float cy, float radius, float opacity)
{
    canvas.paint(blurred(rasterize(circle(cx, cy, radius * 1.2f)), radius * 0.6f), solid(withAlpha(theme::gold(), 0.35f)),
                 Blend::Add, opacity);
    canvas.paint(rasterize(circle(cx, cy, radius)),
                 radial(cx - radius * 0.2f, cy - radius * 0.2f, radius * 1.2f,
                        {{0.0f, hex(0x000000)}, {0.7f, hex(0x0c0a18)}, {1.0f, hex(0x3a2a1a)}}),
                 Blend::Over, opacity);
    canvas.paint(rasterize(outline(circle(cx, cy, radius), 2.0f)), solid(withAlpha(theme::goldDeep(), 0.9f)),
                 Blend::Over, opacity);
}

void drawGroove(Canvas &canvas, const std::vector<Point> &path, float ballRadius, float opacity)
{
    canvas.paint(rasterize(polyline(path, ballRadius * 1.5f), 1.5f), solid(hex(0x02030a, 0.55f)), Blend::Over, opacity);
    canvas.paint(rasterize(polyline(path, 2.0f)), solid(withAlpha(theme::gold(), 0.35f)), Blend::Over, opacity);
}

void drawChain(Canvas &canvas, const std::vector<Point> &path, const ChainLook &look)
{
    if (look.grooveOpacity > 0.0f)
        drawGroove(canvas, path, look.radius, look.grooveOpacity);
    std::vector<Point> centres = spaced(path, look.radius * 2.0f);
    std::vector<int> colours = chainColours(centres.size(), look.seed);
    auto palette = theme::balls();
    for (std::size_t i = 0; i < centres.size(); ++i)
        drawMarble(canvas, centres[i].x, centres[i].y, look.radius, palette[static_cast<std::size_t>(colours[i])],
                   look.opacity);
}

} // namespace art
