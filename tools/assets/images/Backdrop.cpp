#include "Backdrop.h"

#include "Filters.h"
#include "Random.h"
#include "Shapes.h"
#include "Theme.h"

#include <algorithm>
#include <cmath>

namespace art
{
namespace
{
float BandFade(float fY, float fTop, float fBottom)
{
    float fSpan = std::max(1.0f, (fBottom - fTop) * 0.25f);
    return std::min(1.0f, std::max(0.0f, std::min(fY - fTop, fBottom - fY) / fSpan));
}

CRgba StarTint(CRandom& Rng)
{
    float fPick = Rng.Unit();
    if(fPick < 0.15f)
        return Hex(0xffe2b0);
    if(fPick < 0.4f)
        return Hex(0xbcd2ff);
    return Hex(0xffffff);
}
} // namespace

void Haze(CCanvas& Canvas, const CHazeLook& Look)
{
    CNoise Noise(Look.m_uiSeed);
    CMask All = FullMask(Canvas.Width(), Canvas.Height());
    Canvas.Paint(All, [&](float fX, float fY) {
        float fN = Noise.Fractal(fX, fY, Look.m_fScale, 5);
        float fWisp = std::max(0.0f, (fN - Look.m_fThreshold) / (1.0f - Look.m_fThreshold));
        return WithAlpha(Look.m_Colour,
                         std::min(1.0f, fWisp * 1.6f) * Look.m_fStrength * BandFade(fY, Look.m_fTop, Look.m_fBottom));
    });
}

void Stars(CCanvas& Canvas, std::uint64_t ulSeed, int iCount, float fTop, float fBottom, float fBrightness)
{
    CRandom Rng(ulSeed);
    for(int i = 0; i < iCount; ++i)
    {
        float fX = Rng.Range(0, static_cast<float>(Canvas.Width()));
        float fY = Rng.Range(fTop, fBottom);
        float fSize = Rng.Unit();
        fSize = fSize * fSize * fSize; // many faint stars, few bright ones
        CRgba Tint = StarTint(Rng);
        float fAlpha = fBrightness * (0.25f + 0.75f * fSize) * BandFade(fY, fTop - (fBottom - fTop), fBottom);
        float fRadius = 0.45f + fSize * 1.1f;
        Canvas.Paint(Rasterize(Circle(fX, fY, fRadius)), Solid(WithAlpha(Tint, fAlpha)), EBlend::Add);
        if(fSize > 0.55f)
            Canvas.Paint(Blurred(Rasterize(Circle(fX, fY, fRadius * 1.5f)), 5.0f),
                         Solid(WithAlpha(Tint, fAlpha * 0.45f)), EBlend::Add);
    }
}

void Vignette(CCanvas& Canvas, float fStrength)
{
    float fCx = Canvas.Width() / 2.0f, fCy = Canvas.Height() / 2.0f;
    Canvas.Paint(FullMask(Canvas.Width(), Canvas.Height()),
                 Oval(fCx, fCy, fCx * 1.25f, fCy * 1.35f,
                      {{0.0f, {0, 0, 0, 0}}, {0.55f, {0, 0, 0, 0}}, {1.0f, {0, 0, 0, fStrength}}}));
}

CCanvas MenuBackdrop(std::uint64_t ulSeed)
{
    CCanvas Canvas(SCREEN_WIDTH, SCREEN_HEIGHT);
    Canvas.Fill(
        Vertical(0, SCREEN_HEIGHT, {{0.0f, theme::NightTop()}, {0.55f, theme::NightMid()}, {1.0f, theme::NightLow()}}));
    // A low glow on the horizon, as if the menus stood over a lit valley.
    Canvas.Paint(FullMask(SCREEN_WIDTH, SCREEN_HEIGHT),
                 Oval(400, 640, 620, 300, {{0.0f, Hex(0x5a3a7a, 0.45f)}, {1.0f, Hex(0x5a3a7a, 0.0f)}}));
    auto uiSeed = static_cast<std::uint32_t>(ulSeed);
    Haze(Canvas, {uiSeed * 7 + 1, Hex(0x4d5fb0), 170.0f, 0.22f, 0.5f, 0.0f, 600.0f});
    Haze(Canvas, {uiSeed * 7 + 2, Hex(0x7a3f8f), 110.0f, 0.16f, 0.55f, 200.0f, 650.0f});
    Stars(Canvas, ulSeed * 31 + 5, 260, 0.0f, 420.0f, 0.85f);
    Vignette(Canvas, 0.55f);
    return Canvas;
}
} // namespace art
