#include "Marbles.h"

#include "Filters.h"
#include "Gradients.h"
#include "Random.h"
#include "Theme.h"

#include <algorithm>
#include <cmath>

namespace art
{
namespace
{
// Light from the upper left and a little towards the viewer.
constexpr float LIGHT_X = -0.48f, LIGHT_Y = -0.62f, LIGHT_Z = 0.62f;

CPaint SphereShade(float fCx, float fCy, float fRadius, CRgba Base)
{
    return [=](float fX, float fY) {
        float fNx = (fX - fCx) / fRadius, fNy = (fY - fCy) / fRadius;
        float fNz = std::sqrt(std::max(0.0f, 1.0f - fNx * fNx - fNy * fNy));
        float fDiffuse = std::max(0.0f, fNx * LIGHT_X + fNy * LIGHT_Y + fNz * LIGHT_Z);
        // Reflected light towards the viewer (0, 0, 1): the highlight.
        float fRz = 2.0f * fDiffuse * fNz - LIGHT_Z;
        float fShine = std::pow(std::max(0.0f, fRz), 24.0f);
        // Light that comes through the glass, brightest on the side away from the lamp.
        float fGlow = std::max(0.0f, -(fNx * LIGHT_X + fNy * LIGHT_Y)) * (1.0f - fNz) * 0.55f;
        float fShade = 0.22f + 0.85f * fDiffuse + fGlow;
        CRgba Colour = Scaled(Base, fShade);
        Colour = Mix(Colour, CRgba{1, 1, 1, 1}, std::min(1.0f, fShine * 0.9f));
        return WithAlpha(Colour, 1.0f);
    };
}

// Runs of one to three balls of one colour, as chains come in play.
std::vector<int> ChainColours(std::size_t nCount, std::uint64_t ulSeed)
{
    CRandom Rng(ulSeed);
    std::vector<int> vColours;
    int iColour = Rng.Below(6);
    while(vColours.size() < nCount)
    {
        int iRun = 1 + Rng.Below(3);
        for(int i = 0; i < iRun && vColours.size() < nCount; ++i)
            vColours.push_back(iColour);
        iColour = (iColour + 1 + Rng.Below(5)) % 6;
    }
    return vColours;
}
} // namespace

void DrawMarble(CCanvas& Canvas, float fCx, float fCy, float fRadius, CRgba Colour, float fOpacity)
{
    // Contact shadow first, so the ball sits on whatever lies under it.
    CMask Shadow =
        Blurred(Rasterize(Ellipse(fCx + fRadius * 0.12f, fCy + fRadius * 0.22f, fRadius * 0.95f, fRadius * 0.9f)),
                std::max(2.0f, fRadius * 0.35f));
    Canvas.Paint(Shadow, Solid({0, 0, 0, 0.45f}), EBlend::Over, fOpacity);
    Canvas.Paint(Rasterize(Circle(fCx, fCy, fRadius)), SphereShade(fCx, fCy, fRadius, Colour), EBlend::Over, fOpacity);
    // A thin dark rim keeps small balls crisp against any ground.
    Canvas.Paint(Rasterize(Outline(Circle(fCx, fCy, fRadius - 0.4f), std::max(0.8f, fRadius * 0.06f))),
                 Solid(WithAlpha(Scaled(Colour, 0.3f), 0.6f)), EBlend::Over, fOpacity);
}

void DrawPit(CCanvas& Canvas, float fCx, float fCy, float fRadius, float fOpacity)
{
    Canvas.Paint(Blurred(Rasterize(Circle(fCx, fCy, fRadius * 1.2f)), fRadius * 0.6f),
                 Solid(WithAlpha(theme::Gold(), 0.35f)), EBlend::Add, fOpacity);
    Canvas.Paint(Rasterize(Circle(fCx, fCy, fRadius)),
                 Radial(fCx - fRadius * 0.2f, fCy - fRadius * 0.2f, fRadius * 1.2f,
                        {{0.0f, Hex(0x000000)}, {0.7f, Hex(0x0c0a18)}, {1.0f, Hex(0x3a2a1a)}}),
                 EBlend::Over, fOpacity);
    Canvas.Paint(Rasterize(Outline(Circle(fCx, fCy, fRadius), 2.0f)), Solid(WithAlpha(theme::GoldDeep(), 0.9f)),
                 EBlend::Over, fOpacity);
}

void DrawGroove(CCanvas& Canvas, const std::vector<CPoint>& vPath, float fBallRadius, float fOpacity)
{
    Canvas.Paint(Rasterize(Polyline(vPath, fBallRadius * 1.5f), 1.5f), Solid(Hex(0x02030a, 0.55f)), EBlend::Over,
                 fOpacity);
    Canvas.Paint(Rasterize(Polyline(vPath, 2.0f)), Solid(WithAlpha(theme::Gold(), 0.35f)), EBlend::Over, fOpacity);
}

void DrawChain(CCanvas& Canvas, const std::vector<CPoint>& vPath, const CChainLook& Look)
{
    if(Look.m_fGrooveOpacity > 0.0f)
        DrawGroove(Canvas, vPath, Look.m_fRadius, Look.m_fGrooveOpacity);
    std::vector<CPoint> vCentres = Spaced(vPath, Look.m_fRadius * 2.0f);
    std::vector<int> vColours = ChainColours(vCentres.size(), Look.m_ulSeed);
    auto aPalette = theme::Balls();
    for(std::size_t i = 0; i < vCentres.size(); ++i)
        DrawMarble(Canvas, vCentres[i].m_fX, vCentres[i].m_fY, Look.m_fRadius,
                   aPalette[static_cast<std::size_t>(vColours[i])], Look.m_fOpacity);
}
} // namespace art
