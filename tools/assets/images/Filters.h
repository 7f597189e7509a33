// Operations on coverage masks: the blur behind glows and shadows, growing and moving masks, and the smooth
// noise that gives clouds, mist and nebulae their texture.
#pragma once

#include "Canvas.h"

#include <cstdint>

namespace art
{
CMask Blurred(const CMask& Mask, float fRadius); // Gaussian-like (three box passes), grows by the radius
CMask Dilated(const CMask& Mask, float fRadius); // every edge pushed out by the radius
CMask Shifted(const CMask& Mask, int iDx, int iDy);
CMask ScaledCover(const CMask& Mask, float fFactor); // coverage times fFactor, clamped
CMask Multiplied(const CMask& a, const CMask& b);    // coverage of a kept where b covers
CMask United(const CMask& a, const CMask& b);        // the larger coverage of the two
CMask FullMask(int iWidth, int iHeight);             // a whole picture, fully covered

// Smooth value noise, about 0..1, with features near fScale pixels; iOctaves add finer detail.
class CNoise
{
public:
    explicit CNoise(std::uint32_t uiSeed);
    float At(float fX, float fY) const;
    float Fractal(float fX, float fY, float fScale, int iOctaves) const;

private:
    float Lattice(int iX, int iY) const;
    std::uint32_t m_uiSeed;
};
} // namespace art
