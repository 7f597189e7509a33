#include "sounds/Envelope.h"

#include "sounds/Signal.h"

#include <algorithm>
#include <cmath>

namespace
{
// An exponential segment is taken to have ended when it has fallen by this many time constants (about -43 dB).
constexpr double TIME_CONSTANTS = 5.0;

double FallPerSample(double dSeconds)
{
    return std::exp(-TIME_CONSTANTS / std::max(1.0, dSeconds * SAMPLE_RATE));
}
} // namespace

CAdsr::CAdsr(const AdsrShape& Shape, double dGateSeconds)
    : m_Shape(Shape), m_nAttack(std::max<std::size_t>(1, SecondsToSamples(Shape.m_dAttack))),
      m_nGate(SecondsToSamples(dGateSeconds)), m_nRelease(std::max<std::size_t>(1, SecondsToSamples(Shape.m_dRelease))),
      m_dDecayCoefficient(FallPerSample(Shape.m_dDecay)), m_dReleaseCoefficient(FallPerSample(Shape.m_dRelease))
{
}

float CAdsr::Held()
{
    if(m_nPosition < m_nAttack)
        return static_cast<float>(static_cast<double>(m_nPosition) / static_cast<double>(m_nAttack));
    m_dDecayed *= m_dDecayCoefficient;
    return static_cast<float>(m_Shape.m_dSustain + (1.0 - m_Shape.m_dSustain) * m_dDecayed);
}

float CAdsr::Next()
{
    float fValue = 0.0f;
    if(m_nPosition < m_nGate)
    {
        fValue = Held();
        m_dLevel = fValue;
    }
    else if(m_nPosition < Length())
    {
        m_dLevel *= m_dReleaseCoefficient;
        const double dLeft = static_cast<double>(Length() - m_nPosition) / static_cast<double>(m_nRelease);
        fValue = static_cast<float>(m_dLevel * dLeft);
    }
    ++m_nPosition;
    return fValue;
}
