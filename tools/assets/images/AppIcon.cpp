#include "AppIcon.h"

#include "Gradients.h"
#include "Marbles.h"
#include "Theme.h"

#include <cmath>

namespace art {

namespace {

constexpr int kIconMarbles = 7;

// The marbles run inwards from the rim, growing smaller, so the chain reads as rolling into the pit.
void iconChain(Canvas &c, float scale)
{
    auto colours = theme::balls();
    for (int i = 0; i < kIconMarbles; ++i) {
        float t = static_cast<float>(i) / (kIconMarbles - 1);
        float angle = (-150.0f + 300.0f * t) * 3.14159265f / 180.0f;
        float reach = (88.0f - 36.0f * t) * scale;
        float radius = (25.0f - 10.0f * t) * scale;
        drawMarble(c, 128.0f * scale + reach * std::cos(angle), 128.0f * scale + reach * std::sin(angle), radius,
                   colours[static_cast<std::size_t>(i) % colours.size()]);
    }
}

} // namespace

Canvas appIcon(int size)
{
    Canvas c(size, size);
    float scale = static_cast<float>(size) / 256.0f;
    float centre = 128.0f * scale;
    c.paint(rasterize(circle(centre, centre, 122.0f * scale)),
            radial(centre, centre * 0.8f, 130.0f * scale, {{0.0f, theme::nightLow()}, {1.0f, theme::nightTop()}}));
    c.paint(rasterize(outline(circle(centre, centre, 119.0f * scale), 6.0f * scale)), solid(theme::gold()));
    drawPit(c, centre, centre, 24.0f * scale);
    iconChain(c, scale);
    return c;
}

} // namespace art
