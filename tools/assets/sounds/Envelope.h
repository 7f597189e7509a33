#pragma once

#include <cstddef>

// Attack, decay and release in seconds, sustain as a level from 0 to 1.
struct AdsrShape
{
    double m_dAttack;
    double m_dDecay;
    double m_dSustain;
    double m_dRelease;
};

// An ADSR envelope for one note, stepped one sample at a time. The attack rises in a straight line, decay and
// release fall exponentially, and the release is pulled down to exactly zero at its end so that a note never
// stops on a click.
class CAdsr
{
public:
    CAdsr(const AdsrShape& Shape, double dGateSeconds);

    float Next();
    // Samples from the start of the note until the release has died away.
    std::size_t Length() const { return m_nGate + m_nRelease; }

private:
    float Held();

    AdsrShape m_Shape;
    std::size_t m_nAttack;
    std::size_t m_nGate;
    std::size_t m_nRelease;
    std::size_t m_nPosition = 0;
    double m_dDecayCoefficient;
    double m_dReleaseCoefficient;
    double m_dDecayed = 1.0;
    double m_dLevel = 0.0;
};
