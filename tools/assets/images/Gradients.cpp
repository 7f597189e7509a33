#include "Gradients.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace art
{
CRgba Sample(const CRamp& vRamp, float fT)
{
    if(fT <= vRamp.front().m_fAt)
        return vRamp.front().m_Colour;
    for(std::size_t i = 1; i < vRamp.size(); ++i)
        if(fT <= vRamp[i].m_fAt)
        {
            float fSpan = vRamp[i].m_fAt - vRamp[i - 1].m_fAt;
            float fFraction = fSpan > 0.0f ? (fT - vRamp[i - 1].m_fAt) / fSpan : 1.0f;
            // Smooth the steps between stops so that no band edges show.
            fFraction = fFraction * fFraction * (3.0f - 2.0f * fFraction);
            return Mix(vRamp[i - 1].m_Colour, vRamp[i].m_Colour, fFraction);
        }
    return vRamp.back().m_Colour;
}

CPaint Linear(float fX0, float fY0, float fX1, float fY1, CRamp vRamp)
{
    float fDx = fX1 - fX0, fDy = fY1 - fY0, fLen2 = fDx * fDx + fDy * fDy;
    return [=, vRamp = std::move(vRamp)](float fX, float fY) {
        return Sample(vRamp, ((fX - fX0) * fDx + (fY - fY0) * fDy) / fLen2);
    };
}

CPaint Vertical(float fTop, float fBottom, CRamp vRamp)
{
    return Linear(0, fTop, 0, fBottom, std::move(vRamp));
}

CPaint Radial(float fCx, float fCy, float fRadius, CRamp vRamp)
{
    return Oval(fCx, fCy, fRadius, fRadius, std::move(vRamp));
}

CPaint Oval(float fCx, float fCy, float fRx, float fRy, CRamp vRamp)
{
    return [=, vRamp = std::move(vRamp)](float fX, float fY) {
        float fU = (fX - fCx) / fRx, fV = (fY - fCy) / fRy;
        return Sample(vRamp, std::sqrt(fU * fU + fV * fV));
    };
}
} // namespace art
