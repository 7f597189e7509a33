// The pictures behind the levels. The tracks and balls of the 3D view are drawn in front of them, so they
// stay dark and soft: no bright spots or hard edges where a ball in one of the six colours could hide.
#include "Backdrop.h"
#include "Catalogue.h"
#include "Filters.h"
#include "Gradients.h"
#include "Scenery.h"
#include "Shapes.h"

#include <cmath>

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

// A red canyon at dusk: stepped walls either side of a deep cleft, a last glow above it.
Canvas canyon()
{
    Canvas c(kScreenWidth, kScreenHeight);
    c.fill(vertical(0, 420, {{0.0f, hex(0x0b0a1a)}, {0.55f, hex(0x2a1526)}, {0.85f, hex(0x5a2a22)}, {1.0f, hex(0x6e3a24)}}));
    stars(c, 5101, 80, 0, 180, 0.4f);
    haze(c, {5102, hex(0x8a4a3a), 170, 0.14f, 0.5f, 200, 420});
    layer(c, [](float x) { return 450 - 200 * std::pow(std::abs(x - 400) / 400, 0.7f); }, hex(0x3a1a18));
    layer(c, rollingRidge(5103, 470, 30, 90), hex(0x24100f));
    layer(c, rollingRidge(5104, 540, 25, 70), hex(0x140908));
    vignette(c, 0.55f);
    return c;
}

// An aurora over a frozen lake: green and violet curtains, pale ice below a dark shore.
Canvas aurora()
{
    constexpr float kShore = 400;
    Canvas c(kScreenWidth, kScreenHeight);
    c.fill(vertical(0, kShore, {{0.0f, hex(0x020812)}, {0.7f, hex(0x06162a)}, {1.0f, hex(0x0c2236)}}));
    stars(c, 6101, 320, 0, 320, 0.6f);
    haze(c, {6102, hex(0x2fae7a), 90, 0.28f, 0.52f, 40, 300});
    haze(c, {6103, hex(0x7a4ab0), 140, 0.18f, 0.55f, 20, 240});
    layer(c, rollingRidge(6104, kShore - 20, 18, 160), hex(0x050c14));
    c.paint(belowRidge(kScreenWidth, kScreenHeight, [](float) { return kShore; }),
            vertical(kShore, kScreenHeight, {{0.0f, hex(0x1a2c3c)}, {1.0f, hex(0x070d16)}}));
    haze(c, {6105, hex(0x2a8a6a), 200, 0.08f, 0.5f, kShore, kScreenHeight});
    vignette(c, 0.6f);
    return c;
}

// A volcano under ash: a dull orange glow from the crater lights the clouds from below.
Canvas volcano()
{
    Canvas c(kScreenWidth, kScreenHeight);
    c.fill(vertical(0, kScreenHeight, {{0.0f, hex(0x0a0707)}, {0.6f, hex(0x1c0f0c)}, {1.0f, hex(0x0c0605)}}));
    c.paint(fullMask(kScreenWidth, kScreenHeight), oval(420, 330, 300, 170, {{0.0f, hex(0xb04a1a, 0.4f)}, {1.0f, hex(0, 0)}}));
    haze(c, {7101, hex(0x5a3a32), 150, 0.3f, 0.45f, 0, 360});
    haze(c, {7102, hex(0x8a4020), 110, 0.16f, 0.55f, 150, 360});
    layer(c, [](float x) { return 330 + std::abs(x - 420) * 0.55f + 10 * std::sin(x / 37); }, hex(0x1a0c0a));
    layer(c, rollingRidge(7103, 520, 30, 110), hex(0x0b0505));
    vignette(c, 0.6f);
    return c;
}

// A city at night far below, seen from a tower: a grid of small warm lights under a hazy sky.
Canvas city()
{
    constexpr float kHorizon = 250;
    Canvas c(kScreenWidth, kScreenHeight);
    c.fill(vertical(0, kHorizon, {{0.0f, hex(0x05060f)}, {1.0f, hex(0x1a1a30)}}));
    stars(c, 8101, 60, 0, 160, 0.35f);
    c.paint(belowRidge(kScreenWidth, kScreenHeight, [](float) { return kHorizon; }),
            vertical(kHorizon, kScreenHeight, {{0.0f, hex(0x15131f)}, {1.0f, hex(0x07070c)}}));
    stars(c, 8102, 900, kHorizon + 4, kScreenHeight, 0.28f); // the lights of the streets, dimmer near the eye
    haze(c, {8103, hex(0x6a4a3a), 180, 0.18f, 0.45f, kHorizon - 40, kHorizon + 160});
    vignette(c, 0.65f);
    return c;
}

// Deep under water: shafts of light from a surface far above, fading into blue dark.
Canvas deep()
{
    Canvas c(kScreenWidth, kScreenHeight);
    c.fill(vertical(0, kScreenHeight, {{0.0f, hex(0x0b2a3a)}, {0.45f, hex(0x061a28)}, {1.0f, hex(0x020910)}}));
    for (int i = 0; i < 5; ++i) {
        const float x = 140.0f + 130.0f * i;
        fillShape(c, polygon({{x, 0}, {x + 34, 0}, {x + 150, 430}, {x + 90, 430}}),
                  vertical(0, 430, {{0.0f, hex(0x5a9ab0, 0.16f)}, {1.0f, hex(0x5a9ab0, 0.0f)}}), 18.0f);
    }
    haze(c, {9101, hex(0x2a6a7a), 120, 0.12f, 0.5f, 0, 500});
    stars(c, 9102, 140, 120, kScreenHeight, 0.22f); // drifting motes
    vignette(c, 0.65f);
    return c;
}

// A storm over the plains: heavy clouds, a far flash behind them, dark grass to the horizon.
Canvas storm()
{
    constexpr float kHorizon = 420;
    Canvas c(kScreenWidth, kScreenHeight);
    c.fill(vertical(0, kHorizon, {{0.0f, hex(0x0a0c12)}, {0.8f, hex(0x1c2230)}, {1.0f, hex(0x2a3040)}}));
    c.paint(fullMask(kScreenWidth, kScreenHeight), oval(230, 260, 200, 120, {{0.0f, hex(0x8a90b0, 0.22f)}, {1.0f, hex(0, 0)}}));
    haze(c, {10101, hex(0x3a4050), 200, 0.45f, 0.4f, 0, 380});
    haze(c, {10102, hex(0x12141c), 130, 0.4f, 0.5f, 0, 340});
    layer(c, rollingRidge(10103, kHorizon, 6, 200), hex(0x0d1210));
    haze(c, {10104, hex(0x2a3a2a), 160, 0.1f, 0.5f, kHorizon, kScreenHeight});
    vignette(c, 0.6f);
    return c;
}

} // namespace

Pictures levelBackgrounds()
{
    return {inHud("bg_dawn.png", dawn),     inHud("bg_nebula.png", nebula),   inHud("bg_ocean.png", ocean),
            inHud("bg_forest.png", forest), inHud("bg_canyon.png", canyon),   inHud("bg_aurora.png", aurora),
            inHud("bg_volcano.png", volcano), inHud("bg_city.png", city),     inHud("bg_deep.png", deep),
            inHud("bg_storm.png", storm)};
}

} // namespace art
