// Grounds for whole screens: skies, haze, stars and the darkened corners that hold the eye in the middle.
// The menus share one night backdrop; the level pictures build their own from the same pieces.
#pragma once

#include "Canvas.h"
#include "Gradients.h"

#include <cstdint>

namespace art
{
constexpr int SCREEN_WIDTH = 800;
constexpr int SCREEN_HEIGHT = 600;

// Soft clouds: noise shaped into wisps of the colour, strongest where the noise is high.
struct CHazeLook
{
    std::uint32_t m_uiSeed = 1;
    CRgba m_Colour{1, 1, 1, 1};
    float m_fScale = 160.0f;                        // feature size in pixels
    float m_fStrength = 0.3f;                       // the most alpha a wisp reaches
    float m_fThreshold = 0.45f;                     // noise below this leaves the sky clear
    float m_fTop = 0.0f, m_fBottom = SCREEN_HEIGHT; // the band the haze fades in and out of
};
void Haze(CCanvas& Canvas, const CHazeLook& Look);

// Scattered stars between fTop and fBottom; the brightest get a small halo.
void Stars(CCanvas& Canvas, std::uint64_t ulSeed, int iCount, float fTop, float fBottom, float fBrightness);

// Darkens the corners and edges.
void Vignette(CCanvas& Canvas, float fStrength);

// The night ground of every menu screen.
CCanvas MenuBackdrop(std::uint64_t ulSeed);
} // namespace art
