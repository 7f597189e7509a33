// Pieces of landscape for the level backgrounds: ridges, pine woods, a moon, a reflection on water.
#pragma once

#include "Canvas.h"

#include <cstdint>
#include <functional>

namespace art
{
// Everything below the ridge line fnRidgeY(x), with an antialiased top edge.
CMask BelowRidge(int iWidth, int iHeight, const std::function<float(float fX)>& fnRidgeY);

// A ridge line: a base height with rolling noise of the given height and feature width.
std::function<float(float)> RollingRidge(std::uint32_t uiSeed, float fBase, float fAmplitude, float fFeatureWidth);

// A row of pine silhouettes standing on the given ground line.
struct CWoodLook
{
    std::uint64_t m_ulSeed = 1;
    float m_fGround = 500; // foot of the trees
    float m_fMinHeight = 60, m_fMaxHeight = 120;
    float m_fSpacing = 30; // mean distance between trunks
    CRgba m_Colour;
};
void PineWood(CCanvas& Canvas, const CWoodLook& Look);

// A pale disc with a halo.
void Moon(CCanvas& Canvas, float fCx, float fCy, float fRadius, CRgba Tint, float fGlow);

// Horizontal glints on water below a light at fX, from the horizon downwards.
void WaterGlints(CCanvas& Canvas, std::uint64_t ulSeed, float fX, float fHorizon, float fWidth, CRgba Tint);

// Small warm-green glows drifting between fTop and fBottom.
void Fireflies(CCanvas& Canvas, std::uint64_t ulSeed, int iCount, float fTop, float fBottom);
} // namespace art
