#include "sounds/Filters.h"

#include "sounds/Signal.h"

#include <algorithm>
#include <cmath>

namespace
{
// Above this the filter's pre-warping runs away; nothing we play needs a cutoff that high anyway.
constexpr double MAX_CUTOFF_HZ = SAMPLE_RATE * 0.45;

double ClampCutoff(double dCutoffHz)
{
    return std::clamp(dCutoffHz, 10.0, MAX_CUTOFF_HZ);
}
} // namespace

void COnePole::SetCutoff(double dCutoffHz)
{
    m_fCoefficient = static_cast<float>(1.0 - std::exp(-2.0 * PI * ClampCutoff(dCutoffHz) / SAMPLE_RATE));
}

void CSvf::Set(double dCutoffHz, double dQ)
{
    const double dG = std::tan(PI * ClampCutoff(dCutoffHz) / SAMPLE_RATE);
    m_dK = 1.0 / std::max(dQ, 0.1);
    m_dA1 = 1.0 / (1.0 + dG * (dG + m_dK));
    m_dA2 = dG * m_dA1;
    m_dA3 = dG * m_dA2;
}

CSvf::Output CSvf::Process(float fInput)
{
    const double dV3 = fInput - m_dState2;
    const double dV1 = m_dA1 * m_dState1 + m_dA2 * dV3;
    const double dV2 = m_dState2 + m_dA2 * m_dState1 + m_dA3 * dV3;
    m_dState1 = 2.0 * dV1 - m_dState1;
    m_dState2 = 2.0 * dV2 - m_dState2;
    const double dHigh = fInput - m_dK * dV1 - dV2;
    return {static_cast<float>(dV2), static_cast<float>(dV1), static_cast<float>(dHigh)};
}
