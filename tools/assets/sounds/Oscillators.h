#pragma once

#include "sounds/Signal.h"

#include <cmath>

// Waveforms over a phase that runs from 0 to 1 once a cycle. The saw and square are smoothed at their jumps
// (polyBLEP) so that high notes do not fold back as harsh inharmonic whistles.

class CPhase
{
public:
    explicit CPhase(double dStart = 0.0) : m_dPhase(dStart) {}

    // Returns the phase of this sample and moves on by dStep cycles.
    double Advance(double dStep)
    {
        const double dNow = m_dPhase;
        m_dPhase += dStep;
        m_dPhase -= std::floor(m_dPhase);
        return dNow;
    }

private:
    double m_dPhase;
};

inline double HzToStep(double dHz)
{
    return dHz / SAMPLE_RATE;
}

inline double PolyBlep(double dPhase, double dStep)
{
    if(dPhase < dStep)
    {
        const double dT = dPhase / dStep;
        return dT + dT - dT * dT - 1.0;
    }
    if(dPhase > 1.0 - dStep)
    {
        const double dT = (dPhase - 1.0) / dStep;
        return dT * dT + dT + dT + 1.0;
    }
    return 0.0;
}

inline double SineWave(double dPhase)
{
    return std::sin(2.0 * PI * dPhase);
}

inline double SawWave(double dPhase, double dStep)
{
    return 2.0 * dPhase - 1.0 - PolyBlep(dPhase, dStep);
}

// Low in the first half of the cycle, like the saw, so that the two mixed reinforce instead of cancelling.
inline double SquareWave(double dPhase, double dStep)
{
    const double dHalf = dPhase + 0.5 - std::floor(dPhase + 0.5);
    return (dPhase < 0.5 ? -1.0 : 1.0) - PolyBlep(dPhase, dStep) + PolyBlep(dHalf, dStep);
}

inline double TriangleWave(double dPhase)
{
    return dPhase < 0.5 ? 4.0 * dPhase - 1.0 : 3.0 - 4.0 * dPhase;
}
