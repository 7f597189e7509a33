#include "level/SegmentDistance.h"

#include <algorithm>
#include <cmath>

namespace
{
float Clamp01(float f)
{
    return std::min(1.0f, std::max(0.0f, f));
}
} // namespace

// The usual closest points of two segments: the parameters minimise the distance of a0 + s u and b0 + t v,
// each kept within its segment, with the degenerate cases of points and of parallel segments taken first.
CSegmentApproach SegmentApproach(const CPoint3& a0, const CPoint3& a1, const CPoint3& b0, const CPoint3& b1,
                                 float fEnough)
{
    const CVector3 u = a1 - a0, v = b1 - b0, w = a0 - b0;
    const CVector3 Gap = (a0 + u * 0.5f) - (b0 + v * 0.5f);
    if(Gap.Length() - 0.5f * (u.Length() + v.Length()) >= fEnough)
        return {fEnough, a0};
    const float a = Dot(u, u), b = Dot(u, v), c = Dot(v, v), d = Dot(u, w), e = Dot(v, w);
    const float fDenominator = a * c - b * b;
    float s = 0.0f, t = 0.0f;
    if(a <= 1e-12f && c <= 1e-12f)
        s = t = 0.0f;
    else if(a <= 1e-12f)
        t = Clamp01(e / c);
    else if(c <= 1e-12f)
        s = Clamp01(-d / a);
    else
    {
        s = fDenominator > 1e-12f ? Clamp01((b * e - c * d) / fDenominator) : 0.0f;
        t = (b * s + e) / c;
        if(t < 0.0f || t > 1.0f)
        {
            t = Clamp01(t);
            s = Clamp01((t * b - d) / a);
        }
    }
    const CPoint3 Pa = a0 + u * s, Pb = b0 + v * t;
    return {(Pa - Pb).Length(), Pa + (Pb - Pa) * 0.5f};
}
