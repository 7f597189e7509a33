#include "math/BSpline.h"

#include "math/FloatBits.h"

#include <algorithm>
#include <cmath>

namespace
{
const float PARAMETER_STEP = FloatFromBits(0x3DCCCCCD); // 0.1
const float POINT_SPACING = FloatFromBits(0x3E4CCCCD);  // 0.2

CVector3 FromOrigin(const CPoint3& p)
{
    return p - CPoint3(0.0f, 0.0f, 0.0f);
}
} // namespace

uint32_t CBSpline::Degree() const
{
    return std::min(m_uiDegree, MAX_DEGREE);
}

void CBSpline::Build()
{
    m_uiNumControlPoints = static_cast<uint32_t>(m_vControlPoints.size());
    m_vSamples.clear();
    m_vPoints.clear();
    m_vDistances.clear();
    if(m_uiNumControlPoints < MIN_CONTROL_POINTS)
        return;

    SampleCurve();
    m_uiNumSamples = static_cast<uint32_t>(m_vSamples.size());
    AccumulateDistances(m_vSamples, m_vDistances);
    if(m_vDistances.empty())
        return;

    const float fTotal = m_vDistances.back();
    m_vDistances.clear();
    if(!std::isfinite(fTotal))
    {
        // Coordinates out of float range: no rail can be laid, so the curve stays empty.
        m_vSamples.clear();
        m_uiNumSamples = 0;
        return;
    }
    m_vDistances.push_back(0.0f);
    m_vDistances.push_back(fTotal);
    SubdivideDistances(m_vDistances, POINT_SPACING);
    m_uiNumDistances = static_cast<uint32_t>(m_vDistances.size());

    ResamplePoints(m_vSamples, m_vDistances, m_vPoints);
    m_vPoints.push_back(m_vSamples.back());
    m_uiNumPoints = static_cast<uint32_t>(m_vPoints.size());

    m_vDistances.clear();
    AccumulateDistances(m_vPoints, m_vDistances);
    m_uiNumDistances = static_cast<uint32_t>(m_vDistances.size());
}

void CBSpline::SampleCurve()
{
    const uint32_t uiDegree = Degree();
    const float fEnd = static_cast<float>(m_vControlPoints.size());
    for(float t = static_cast<float>(uiDegree); t <= fEnd;)
    {
        const float j = std::floor(t);
        // Degree 0 has no blend whose weight could drop the missing point past the last one.
        if(uiDegree == 0 && j >= fEnd)
            break;
        m_vSamples.push_back(Evaluate(t, static_cast<float>(uiDegree), j));
        const float tNext = t + PARAMETER_STEP;
        if(tNext == t) // a polygon so long that the parameter no longer moves
            break;
        t = tNext;
    }
}

// De Boor's recurrence for the knots u_i = i, as plain recursion. Control point number n does not exist:
// where a term would name it, t equals n and the term's weight is 0, so it is left out of the sum.
CPoint3 CBSpline::Evaluate(float t, float k, float j) const
{
    if(k == 0.0f)
        return m_vControlPoints[static_cast<size_t>(j)];

    const float a = static_cast<float>(Degree()) + j - k + 1.0f;
    const float w1 = (t - j) / (a - j);
    const float w2 = (a - t) / (a - j);
    CPoint3 Result(0.0f, 0.0f, 0.0f);
    if(j < static_cast<float>(m_vControlPoints.size()))
        Result += FromOrigin(Evaluate(t, k - 1.0f, j)) * w1;
    Result += FromOrigin(Evaluate(t, k - 1.0f, j - 1.0f)) * w2;
    return Result;
}

void CBSpline::AccumulateDistances(const std::vector<CPoint3>& vPoints, std::vector<float>& vDistances)
{
    if(vPoints.size() < 2)
        return;
    float fSum = 0.0f;
    vDistances.push_back(fSum);
    for(size_t i = 1; i < vPoints.size(); i++)
    {
        fSum += (vPoints[i] - vPoints[i - 1]).Length();
        vDistances.push_back(fSum);
    }
}

void CBSpline::SubdivideDistances(std::vector<float>& vDistances, float fLimit)
{
    std::vector<float> vMidpoints;
    for(int iRound = 0; iRound < MAX_SUBDIVISIONS; iRound++)
    {
        // The grid stays even, so the first interval speaks for all of them.
        if(!(vDistances[1] - vDistances[0] > fLimit))
            return;
        vMidpoints.clear();
        for(size_t i = 0; i + 1 < vDistances.size(); i++)
        {
            const float fLo = vDistances[i];
            const float fSpan = vDistances[i + 1] - fLo;
            vMidpoints.push_back(static_cast<float>(fLo + fSpan / 2.0));
        }
        // Both halves are sorted, so merging them is the same as sorting the whole list.
        const auto Old = static_cast<std::ptrdiff_t>(vDistances.size());
        vDistances.insert(vDistances.end(), vMidpoints.begin(), vMidpoints.end());
        std::inplace_merge(vDistances.begin(), vDistances.begin() + Old, vDistances.end());
    }
}

// The new points lie on the chords between samples. The lower end of each chord is inclusive and the upper
// strict, so a chord of zero length never emits a point and its undefined direction is never used.
void CBSpline::ResamplePoints(const std::vector<CPoint3>& vSamples, const std::vector<float>& vDistances,
                              std::vector<CPoint3>& vPoints)
{
    float fAcc = 0.0f;
    size_t d = 0;
    for(size_t i = 1; i < vSamples.size(); i++)
    {
        const float fPrev = fAcc;
        CVector3 v = vSamples[i] - vSamples[i - 1];
        fAcc += v.Length();
        v.Normalize();
        while(d < vDistances.size() && fPrev <= vDistances[d] && vDistances[d] < fAcc)
        {
            vPoints.push_back(vSamples[i - 1] + v * (vDistances[d] - fPrev));
            d++;
        }
    }
}
