// The pictures behind the levels. The tracks and balls of the 3D view are drawn in front of them, so they
// stay dark and soft: no bright spots or hard edges where a ball in one of the six colours could hide.
#include "Backdrop.h"
#include "Catalogue.h"
#include "Filters.h"
#include "Gradients.h"
#include "Scenery.h"

namespace art {

namespace {

void layer(Canvas &c, const std::function<float(float)> &ridge, Rgba colour)
{
    c.paint(belowRidge(kScreenWidth, kScreenHeight, ridge), solid(colour));
}

// Before sunrise: a rose horizon behind folded hills.
Canvas dawn()
{
    Canvas c(kScreenWidth, kScreenHeight);
    c.fill(vertical(0, 430, {{0.0f, hex(0x070a1f)}, {0.5f, hex(0x1b1a44)}, {0.85f, hex(0x43294f)}, {1.0f, hex(0x5e3448)}}));
    stars(c, 1101, 160, 0, 260, 0.55f);
    c.paint(fullMask(kScreenWidth, kScreenHeight), oval(560, 430, 360, 150, {{0.0f, hex(0xd08a5a, 0.35f)}, {1.0f, hex(0, 0)}}));
    haze(c, {1102, hex(0x8a5a7a), 180, 0.14f, 0.5f, 250, 440});
    layer(c, rollingRidge(1103, 380, 40, 260), hex(0x2a1f3f));
    haze(c, {1104, hex(0x6a4a6a), 120, 0.12f, 0.45f, 360, 520});
    layer(c, rollingRidge(1105, 440, 45, 200), hex(0x1a1530));
    layer(c, rollingRidge(1106, 510, 40, 150), hex(0x0e0b1c));
    vignette(c, 0.5f);
    return c;
}

// Deep space: veils of gas and dust over a field of stars.
Canvas nebula()
{
    Canvas c(kScreenWidth, kScreenHeight);
    c.fill(vertical(0, kScreenHeight, {{0.0f, hex(0x03040c)}, {1.0f, hex(0x070615)}}));
    stars(c, 2101, 700, 0, kScreenHeight, 0.7f);
    haze(c, {2102, hex(0x5a2a8a), 230, 0.4f, 0.45f, -200, 800});
    haze(c, {2103, hex(0x1f6a7a), 170, 0.3f, 0.5f, -200, 800});
    haze(c, {2104, hex(0x8a3a5a), 110, 0.16f, 0.58f, -200, 800});
    haze(c, {2105, hex(0x020208), 90, 0.5f, 0.55f, -200, 800}); // dust lanes
    stars(c, 2106, 120, 0, kScreenHeight, 0.9f);
    vignette(c, 0.6f);
    return c;
}

// A calm sea at night under the moon.
Canvas ocean()
{
    constexpr float kHorizon = 330;
    Canvas c(kScreenWidth, kScreenHeight);
    c.fill(vertical(0, kHorizon, {{0.0f, hex(0x030816)}, {0.7f, hex(0x0a1a36)}, {1.0f, hex(0x17304e)}}));
    stars(c, 3101, 260, 0, 280, 0.6f);
    haze(c, {3102, hex(0x3a5a8a), 200, 0.12f, 0.5f, 120, 340});
    moon(c, 610, 140, 24, hex(0xb4bccb), 0.14f);
    c.paint(belowRidge(kScreenWidth, kScreenHeight, [](float) { return kHorizon; }),
            vertical(kHorizon, kScreenHeight, {{0.0f, hex(0x0d2038)}, {1.0f, hex(0x02060e)}}));
    // A far headland on the horizon.
    layer(c, [](float x) { return x < 260 ? kHorizon - 18 * (1 - x / 260) * (1 - x / 260) - 2 : kHorizon + 1; },
          hex(0x06101e));
    waterGlints(c, 3103, 610, kHorizon, 60, hex(0xc8d6ea));
    waterGlints(c, 3104, 400, kHorizon, 380, hex(0x3a5a80));
    vignette(c, 0.55f);
    return c;
}

// Pine woods at dusk, with mist between the rows and a few fireflies.
Canvas forest()
{
    Canvas c(kScreenWidth, kScreenHeight);
    c.fill(vertical(0, 420, {{0.0f, hex(0x040d10)}, {0.6f, hex(0x0e2424)}, {1.0f, hex(0x244038)}}));
    stars(c, 4101, 90, 0, 200, 0.45f);
    moon(c, 180, 110, 14, hex(0xb8b29a), 0.1f);
    layer(c, rollingRidge(4102, 360, 30, 240), hex(0x16302c));
    pineWood(c, {4103, 380, 50, 90, 26, hex(0x132a26)});
    haze(c, {4104, hex(0x6a9a8a), 150, 0.16f, 0.45f, 330, 470});
    pineWood(c, {4105, 450, 90, 150, 40, hex(0x0b1c19)});
    haze(c, {4106, hex(0x4a7a6a), 110, 0.12f, 0.5f, 420, 560});
    pineWood(c, {4107, 640, 190, 300, 70, hex(0x040b0a)});
    fireflies(c, 4108, 22, 400, 580);
    vignette(c, 0.55f);
    return c;
}

} // namespace

Pictures levelBackgrounds()
{
    return {inHud("bg_dawn.png", dawn), inHud("bg_nebula.png", nebula), inHud("bg_ocean.png", ocean),
            inHud("bg_forest.png", forest)};
}

} // namespace art
