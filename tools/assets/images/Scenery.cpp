#include "Scenery.h"

#include "Filters.h"
#include "Gradients.h"
#include "Random.h"
#include "Shapes.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace art
{
namespace
{
// One pine: a trunk and a stack of drooping tiers, narrowing to the tip.
CShape Pine(float fX, float fGround, float fHeight, CRandom& Rng)
{
    std::vector<CPoint> vLeft, vRight;
    int iTiers = 5 + Rng.Below(3);
    float fTop = fGround - fHeight, fHalfBase = fHeight * Rng.Range(0.2f, 0.26f);
    vLeft.push_back({fX, fTop});
    for(int i = 1; i <= iTiers; ++i)
    {
        float fT = static_cast<float>(i) / iTiers;
        float fY = fTop + fHeight * 0.88f * fT, fHalf = fHalfBase * fT;
        float fNotch = fHalf * 0.45f;
        vLeft.push_back({fX - fHalf, fY});
        vLeft.push_back({fX - fNotch, fY - fHeight * 0.03f});
        vRight.push_back({fX + fNotch, fY - fHeight * 0.03f});
        vRight.push_back({fX + fHalf, fY});
    }
    float fTrunk = std::max(1.5f, fHeight * 0.03f);
    vLeft.push_back({fX - fTrunk, fGround + 2});
    vRight.push_back({fX + fTrunk, fGround + 2});
    std::vector<CPoint> vOutlinePoints = vLeft;
    vOutlinePoints.insert(vOutlinePoints.end(), vRight.rbegin(), vRight.rend());
    return Polygon(vOutlinePoints);
}
} // namespace

CMask BelowRidge(int iWidth, int iHeight, const std::function<float(float)>& fnRidgeY)
{
    CMask Mask(0, 0, iWidth, iHeight);
    for(int iX = 0; iX < iWidth; ++iX)
    {
        float fRidge = fnRidgeY(iX + 0.5f);
        for(int iY = 0; iY < iHeight; ++iY)
            Mask.Cell(iX, iY) = std::min(1.0f, std::max(0.0f, iY + 1.0f - fRidge));
    }
    return Mask;
}

std::function<float(float)> RollingRidge(std::uint32_t uiSeed, float fBase, float fAmplitude, float fFeatureWidth)
{
    CNoise Noise(uiSeed);
    return [Noise, fBase, fAmplitude, fFeatureWidth](float fX) {
        float fN = Noise.Fractal(fX, 0.5f, fFeatureWidth, 4);
        return fBase - (fN - 0.5f) * 2.0f * fAmplitude;
    };
}

void PineWood(CCanvas& Canvas, const CWoodLook& Look)
{
    CRandom Rng(Look.m_ulSeed);
    // The wood's floor rolls a little, so that no straight line shows between the trunks.
    auto fnFloor = RollingRidge(static_cast<std::uint32_t>(Look.m_ulSeed), Look.m_fGround, 10.0f, 160.0f);
    for(float fX = Rng.Range(-Look.m_fSpacing, 0); fX < Canvas.Width() + Look.m_fSpacing;
        fX += Look.m_fSpacing * Rng.Range(0.6f, 1.4f))
    {
        float fHeight = Rng.Range(Look.m_fMinHeight, Look.m_fMaxHeight);
        Canvas.Paint(Rasterize(Pine(fX, fnFloor(fX) + 4.0f, fHeight, Rng)), Solid(Look.m_Colour));
    }
    Canvas.Paint(BelowRidge(Canvas.Width(), Canvas.Height(), fnFloor), Solid(Look.m_Colour));
}

void Moon(CCanvas& Canvas, float fCx, float fCy, float fRadius, CRgba Tint, float fGlow)
{
    Canvas.Paint(Blurred(Rasterize(Circle(fCx, fCy, fRadius * 2.2f)), fRadius * 2.5f), Solid(WithAlpha(Tint, fGlow)),
                 EBlend::Add);
    Canvas.Paint(Rasterize(Circle(fCx, fCy, fRadius)),
                 Radial(fCx - fRadius * 0.3f, fCy - fRadius * 0.3f, fRadius * 1.5f,
                        {{0.0f, Tint}, {1.0f, Scaled(Tint, 0.75f)}}));
    CNoise Marks(7);
    Canvas.Paint(Rasterize(Circle(fCx, fCy, fRadius)), [&Marks, Tint](float fX, float fY) {
        float fN = Marks.Fractal(fX, fY, 9.0f, 3);
        return WithAlpha(Scaled(Tint, 0.6f), std::max(0.0f, fN - 0.5f) * 0.9f);
    });
}

void WaterGlints(CCanvas& Canvas, std::uint64_t ulSeed, float fX, float fHorizon, float fWidth, CRgba Tint)
{
    CRandom Rng(ulSeed);
    float fDepth = Canvas.Height() - fHorizon;
    for(int i = 0; i < 140; ++i)
    {
        float fT = Rng.Unit();
        float fY = fHorizon + 3 + fT * fT * fDepth;
        float fSpread = fWidth * (0.4f + fT * 1.4f);
        float fGx = fX + Rng.Range(-fSpread, fSpread) * Rng.Unit();
        float fLen = Rng.Range(6, 26) * (0.6f + fT);
        float fFade = 1.0f - std::fabs(fGx - fX) / (fSpread + 1);
        Canvas.Paint(Rasterize(Capsule({fGx - fLen / 2, fY}, {fGx + fLen / 2, fY}, 0.6f + fT * 0.8f)),
                     Solid(WithAlpha(Tint, 0.35f * fFade * (1.0f - 0.5f * fT))), EBlend::Add);
    }
}

void Fireflies(CCanvas& Canvas, std::uint64_t ulSeed, int iCount, float fTop, float fBottom)
{
    CRandom Rng(ulSeed);
    for(int i = 0; i < iCount; ++i)
    {
        float fX = Rng.Range(0, static_cast<float>(Canvas.Width())), fY = Rng.Range(fTop, fBottom);
        float fGlow = Rng.Range(0.25f, 0.6f);
        Canvas.Paint(Blurred(Rasterize(Circle(fX, fY, 2.5f)), 6.0f), Solid(Hex(0xc8e860, fGlow * 0.6f)), EBlend::Add);
        Canvas.Paint(Rasterize(Circle(fX, fY, 1.0f)), Solid(Hex(0xeaff9a, fGlow)), EBlend::Add);
    }
}
} // namespace art
