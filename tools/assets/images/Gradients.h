// Paints that vary over the picture: colour ramps along a line or out from a centre.
#pragma once

#include "Canvas.h"

#include <vector>

namespace art
{
struct CStop
{
    float m_fAt; // 0..1 along the ramp
    CRgba m_Colour;
};

using CRamp = std::vector<CStop>;

CRgba Sample(const CRamp& vRamp, float fT);

CPaint Linear(float fX0, float fY0, float fX1, float fY1, CRamp vRamp);
CPaint Vertical(float fTop, float fBottom, CRamp vRamp);
CPaint Radial(float fCx, float fCy, float fRadius, CRamp vRamp);
// Radial with separate horizontal and vertical reach: for wide, flat glows.
CPaint Oval(float fCx, float fCy, float fRx, float fRy, CRamp vRamp);
} // namespace art
