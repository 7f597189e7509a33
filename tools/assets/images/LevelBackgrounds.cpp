// The pictures behind the levels. The tracks and balls of the 3D view are drawn in front of them, so they
// stay dark and soft: no bright spots or hard edges where a ball in one of the six colours could hide.
#include "Backdrop.h"
#include "Catalogue.h"
#include "Filters.h"
#include "Gradients.h"
#include "Scenery.h"
#include "Shapes.h"

#include <cmath>

namespace art
{
namespace
{
void Layer(CCanvas& Canvas, const std::function<float(float)>& fnRidge, CRgba Colour)
{
    Canvas.Paint(BelowRidge(SCREEN_WIDTH, SCREEN_HEIGHT, fnRidge), Solid(Colour));
}

// Before sunrise: a rose horizon behind folded hills.
CCanvas Dawn()
{
    CCanvas Canvas(SCREEN_WIDTH, SCREEN_HEIGHT);
    Canvas.Fill(Vertical(
        0, 430, {{0.0f, Hex(0x070a1f)}, {0.5f, Hex(0x1b1a44)}, {0.85f, Hex(0x43294f)}, {1.0f, Hex(0x5e3448)}}));
    Stars(Canvas, 1101, 160, 0, 260, 0.55f);
    Canvas.Paint(FullMask(SCREEN_WIDTH, SCREEN_HEIGHT),
                 Oval(560, 430, 360, 150, {{0.0f, Hex(0xd08a5a, 0.35f)}, {1.0f, Hex(0, 0)}}));
    Haze(Canvas, {1102, Hex(0x8a5a7a), 180, 0.14f, 0.5f, 250, 440});
    Layer(Canvas, RollingRidge(1103, 380, 40, 260), Hex(0x2a1f3f));
    Haze(Canvas, {1104, Hex(0x6a4a6a), 120, 0.12f, 0.45f, 360, 520});
    Layer(Canvas, RollingRidge(1105, 440, 45, 200), Hex(0x1a1530));
    Layer(Canvas, RollingRidge(1106, 510, 40, 150), Hex(0x0e0b1c));
    Vignette(Canvas, 0.5f);
    return Canvas;
}

// Deep space: veils of gas and dust over a field of stars.
CCanvas Nebula()
{
    CCanvas Canvas(SCREEN_WIDTH, SCREEN_HEIGHT);
    Canvas.Fill(Vertical(0, SCREEN_HEIGHT, {{0.0f, Hex(0x03040c)}, {1.0f, Hex(0x070615)}}));
    Stars(Canvas, 2101, 700, 0, SCREEN_HEIGHT, 0.7f);
    Haze(Canvas, {2102, Hex(0x5a2a8a), 230, 0.4f, 0.45f, -200, 800});
    Haze(Canvas, {2103, Hex(0x1f6a7a), 170, 0.3f, 0.5f, -200, 800});
    Haze(Canvas, {2104, Hex(0x8a3a5a), 110, 0.16f, 0.58f, -200, 800});
    Haze(Canvas, {2105, Hex(0x020208), 90, 0.5f, 0.55f, -200, 800}); // dust lanes
    Stars(Canvas, 2106, 120, 0, SCREEN_HEIGHT, 0.9f);
    Vignette(Canvas, 0.6f);
    return Canvas;
}

// A calm sea at night under the moon.
CCanvas Ocean()
{
    constexpr float HORIZON = 330;
    CCanvas Canvas(SCREEN_WIDTH, SCREEN_HEIGHT);
    Canvas.Fill(Vertical(0, HORIZON, {{0.0f, Hex(0x030816)}, {0.7f, Hex(0x0a1a36)}, {1.0f, Hex(0x17304e)}}));
    Stars(Canvas, 3101, 260, 0, 280, 0.6f);
    Haze(Canvas, {3102, Hex(0x3a5a8a), 200, 0.12f, 0.5f, 120, 340});
    Moon(Canvas, 610, 140, 24, Hex(0xb4bccb), 0.14f);
    Canvas.Paint(BelowRidge(SCREEN_WIDTH, SCREEN_HEIGHT, [](float) { return HORIZON; }),
                 Vertical(HORIZON, SCREEN_HEIGHT, {{0.0f, Hex(0x0d2038)}, {1.0f, Hex(0x02060e)}}));
    // A far headland on the horizon.
    Layer(
        Canvas, [](float fX) { return fX < 260 ? HORIZON - 18 * (1 - fX / 260) * (1 - fX / 260) - 2 : HORIZON + 1; },
        Hex(0x06101e));
    WaterGlints(Canvas, 3103, 610, HORIZON, 60, Hex(0xc8d6ea));
    WaterGlints(Canvas, 3104, 400, HORIZON, 380, Hex(0x3a5a80));
    Vignette(Canvas, 0.55f);
    return Canvas;
}

// Pine woods at dusk, with mist between the rows and a few fireflies.
CCanvas Forest()
{
    CCanvas Canvas(SCREEN_WIDTH, SCREEN_HEIGHT);
    Canvas.Fill(Vertical(0, 420, {{0.0f, Hex(0x040d10)}, {0.6f, Hex(0x0e2424)}, {1.0f, Hex(0x244038)}}));
    Stars(Canvas, 4101, 90, 0, 200, 0.45f);
    Moon(Canvas, 180, 110, 14, Hex(0xb8b29a), 0.1f);
    Layer(Canvas, RollingRidge(4102, 360, 30, 240), Hex(0x16302c));
    PineWood(Canvas, {4103, 380, 50, 90, 26, Hex(0x132a26)});
    Haze(Canvas, {4104, Hex(0x6a9a8a), 150, 0.16f, 0.45f, 330, 470});
    PineWood(Canvas, {4105, 450, 90, 150, 40, Hex(0x0b1c19)});
    Haze(Canvas, {4106, Hex(0x4a7a6a), 110, 0.12f, 0.5f, 420, 560});
    PineWood(Canvas, {4107, 640, 190, 300, 70, Hex(0x040b0a)});
    Fireflies(Canvas, 4108, 22, 400, 580);
    Vignette(Canvas, 0.55f);
    return Canvas;
}

// A red canyon at dusk: stepped walls either side of a deep cleft, a last glow above it.
CCanvas Canyon()
{
    CCanvas Canvas(SCREEN_WIDTH, SCREEN_HEIGHT);
    Canvas.Fill(Vertical(
        0, 420, {{0.0f, Hex(0x0b0a1a)}, {0.55f, Hex(0x2a1526)}, {0.85f, Hex(0x5a2a22)}, {1.0f, Hex(0x6e3a24)}}));
    Stars(Canvas, 5101, 80, 0, 180, 0.4f);
    Haze(Canvas, {5102, Hex(0x8a4a3a), 170, 0.14f, 0.5f, 200, 420});
    Layer(
        Canvas, [](float fX) { return 450 - 200 * std::pow(std::abs(fX - 400) / 400, 0.7f); }, Hex(0x3a1a18));
    Layer(Canvas, RollingRidge(5103, 470, 30, 90), Hex(0x24100f));
    Layer(Canvas, RollingRidge(5104, 540, 25, 70), Hex(0x140908));
    Vignette(Canvas, 0.55f);
    return Canvas;
}

// An aurora over a frozen lake: green and violet curtains, pale ice below a dark shore.
CCanvas Aurora()
{
    constexpr float SHORE = 400;
    CCanvas Canvas(SCREEN_WIDTH, SCREEN_HEIGHT);
    Canvas.Fill(Vertical(0, SHORE, {{0.0f, Hex(0x020812)}, {0.7f, Hex(0x06162a)}, {1.0f, Hex(0x0c2236)}}));
    Stars(Canvas, 6101, 320, 0, 320, 0.6f);
    Haze(Canvas, {6102, Hex(0x2fae7a), 90, 0.28f, 0.52f, 40, 300});
    Haze(Canvas, {6103, Hex(0x7a4ab0), 140, 0.18f, 0.55f, 20, 240});
    Layer(Canvas, RollingRidge(6104, SHORE - 20, 18, 160), Hex(0x050c14));
    Canvas.Paint(BelowRidge(SCREEN_WIDTH, SCREEN_HEIGHT, [](float) { return SHORE; }),
                 Vertical(SHORE, SCREEN_HEIGHT, {{0.0f, Hex(0x1a2c3c)}, {1.0f, Hex(0x070d16)}}));
    Haze(Canvas, {6105, Hex(0x2a8a6a), 200, 0.08f, 0.5f, SHORE, SCREEN_HEIGHT});
    Vignette(Canvas, 0.6f);
    return Canvas;
}

// A volcano under ash: a dull orange glow from the crater lights the clouds from below.
CCanvas Volcano()
{
    CCanvas Canvas(SCREEN_WIDTH, SCREEN_HEIGHT);
    Canvas.Fill(Vertical(0, SCREEN_HEIGHT, {{0.0f, Hex(0x0a0707)}, {0.6f, Hex(0x1c0f0c)}, {1.0f, Hex(0x0c0605)}}));
    Canvas.Paint(FullMask(SCREEN_WIDTH, SCREEN_HEIGHT),
                 Oval(420, 330, 300, 170, {{0.0f, Hex(0xb04a1a, 0.4f)}, {1.0f, Hex(0, 0)}}));
    Haze(Canvas, {7101, Hex(0x5a3a32), 150, 0.3f, 0.45f, 0, 360});
    Haze(Canvas, {7102, Hex(0x8a4020), 110, 0.16f, 0.55f, 150, 360});
    Layer(
        Canvas, [](float fX) { return 330 + std::abs(fX - 420) * 0.55f + 10 * std::sin(fX / 37); }, Hex(0x1a0c0a));
    Layer(Canvas, RollingRidge(7103, 520, 30, 110), Hex(0x0b0505));
    Vignette(Canvas, 0.6f);
    return Canvas;
}

// A city at night far below, seen from a tower: a grid of small warm lights under a hazy sky.
CCanvas City()
{
    constexpr float HORIZON = 250;
    CCanvas Canvas(SCREEN_WIDTH, SCREEN_HEIGHT);
    Canvas.Fill(Vertical(0, HORIZON, {{0.0f, Hex(0x05060f)}, {1.0f, Hex(0x1a1a30)}}));
    Stars(Canvas, 8101, 60, 0, 160, 0.35f);
    Canvas.Paint(BelowRidge(SCREEN_WIDTH, SCREEN_HEIGHT, [](float) { return HORIZON; }),
                 Vertical(HORIZON, SCREEN_HEIGHT, {{0.0f, Hex(0x15131f)}, {1.0f, Hex(0x07070c)}}));
    Stars(Canvas, 8102, 900, HORIZON + 4, SCREEN_HEIGHT, 0.28f); // the lights of the streets, dimmer near the eye
    Haze(Canvas, {8103, Hex(0x6a4a3a), 180, 0.18f, 0.45f, HORIZON - 40, HORIZON + 160});
    Vignette(Canvas, 0.65f);
    return Canvas;
}

// Deep under water: shafts of light from a surface far above, fading into blue dark.
CCanvas Deep()
{
    CCanvas Canvas(SCREEN_WIDTH, SCREEN_HEIGHT);
    Canvas.Fill(Vertical(0, SCREEN_HEIGHT, {{0.0f, Hex(0x0b2a3a)}, {0.45f, Hex(0x061a28)}, {1.0f, Hex(0x020910)}}));
    for(int i = 0; i < 5; ++i)
    {
        const float fX = 140.0f + 130.0f * i;
        FillShape(Canvas, Polygon({{fX, 0}, {fX + 34, 0}, {fX + 150, 430}, {fX + 90, 430}}),
                  Vertical(0, 430, {{0.0f, Hex(0x5a9ab0, 0.16f)}, {1.0f, Hex(0x5a9ab0, 0.0f)}}), 18.0f);
    }
    Haze(Canvas, {9101, Hex(0x2a6a7a), 120, 0.12f, 0.5f, 0, 500});
    Stars(Canvas, 9102, 140, 120, SCREEN_HEIGHT, 0.22f); // drifting motes
    Vignette(Canvas, 0.65f);
    return Canvas;
}

// A storm over the plains: heavy clouds, a far flash behind them, dark grass to the horizon.
CCanvas Storm()
{
    constexpr float HORIZON = 420;
    CCanvas Canvas(SCREEN_WIDTH, SCREEN_HEIGHT);
    Canvas.Fill(Vertical(0, HORIZON, {{0.0f, Hex(0x0a0c12)}, {0.8f, Hex(0x1c2230)}, {1.0f, Hex(0x2a3040)}}));
    Canvas.Paint(FullMask(SCREEN_WIDTH, SCREEN_HEIGHT),
                 Oval(230, 260, 200, 120, {{0.0f, Hex(0x8a90b0, 0.22f)}, {1.0f, Hex(0, 0)}}));
    Haze(Canvas, {10101, Hex(0x3a4050), 200, 0.45f, 0.4f, 0, 380});
    Haze(Canvas, {10102, Hex(0x12141c), 130, 0.4f, 0.5f, 0, 340});
    Layer(Canvas, RollingRidge(10103, HORIZON, 6, 200), Hex(0x0d1210));
    Haze(Canvas, {10104, Hex(0x2a3a2a), 160, 0.1f, 0.5f, HORIZON, SCREEN_HEIGHT});
    Vignette(Canvas, 0.6f);
    return Canvas;
}
} // namespace

CPictures LevelBackgrounds()
{
    return {InHud("bg_dawn.png", Dawn),       InHud("bg_nebula.png", Nebula), InHud("bg_ocean.png", Ocean),
            InHud("bg_forest.png", Forest),   InHud("bg_canyon.png", Canyon), InHud("bg_aurora.png", Aurora),
            InHud("bg_volcano.png", Volcano), InHud("bg_city.png", City),     InHud("bg_deep.png", Deep),
            InHud("bg_storm.png", Storm)};
}
} // namespace art
