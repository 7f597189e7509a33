#include "AppIcon.h"

#include "Gradients.h"
#include "Marbles.h"
#include "Shapes.h"
#include "Theme.h"

#include <cmath>

namespace art
{
namespace
{
constexpr int ICON_MARBLES = 7;

// The marbles run inwards from the rim, growing smaller, so the chain reads as rolling into the pit.
void IconChain(CCanvas& Canvas, float fScale)
{
    auto aColours = theme::Balls();
    for(int i = 0; i < ICON_MARBLES; ++i)
    {
        float fT = static_cast<float>(i) / (ICON_MARBLES - 1);
        float fAngle = (-150.0f + 300.0f * fT) * PI / 180.0f;
        float fReach = (88.0f - 36.0f * fT) * fScale;
        float fRadius = (25.0f - 10.0f * fT) * fScale;
        DrawMarble(Canvas, 128.0f * fScale + fReach * std::cos(fAngle), 128.0f * fScale + fReach * std::sin(fAngle),
                   fRadius, aColours[static_cast<std::size_t>(i) % aColours.size()]);
    }
}
} // namespace

CCanvas AppIcon(int iSize)
{
    CCanvas Canvas(iSize, iSize);
    float fScale = static_cast<float>(iSize) / 256.0f;
    float fCentre = 128.0f * fScale;
    Canvas.Paint(
        Rasterize(Circle(fCentre, fCentre, 122.0f * fScale)),
        Radial(fCentre, fCentre * 0.8f, 130.0f * fScale, {{0.0f, theme::NightLow()}, {1.0f, theme::NightTop()}}));
    Canvas.Paint(Rasterize(Outline(Circle(fCentre, fCentre, 119.0f * fScale), 6.0f * fScale)), Solid(theme::Gold()));
    DrawPit(Canvas, fCentre, fCentre, 24.0f * fScale);
    IconChain(Canvas, fScale);
    return Canvas;
}
} // namespace art
