#include "sounds/Envelope.h"
#include "sounds/Filters.h"
#include "sounds/Rng.h"
#include "sounds/Voices.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr double PICK_RMS = 0.5;

// One period of softened noise: the pick. A darker pick gives a rounder, more nylon-like tone.
void Pick(Mono& vOut, std::size_t nPeriod, const Patch& Sound, uint64_t ulSeed)
{
    CRng Rng(ulSeed);
    COnePole Softener(500.0 + 9000.0 * Sound.m_dBrightness * Sound.m_dBrightness);
    double dSum = 0.0;
    for(std::size_t i = 0; i <= nPeriod && i < vOut.size(); ++i)
    {
        vOut[i] = Softener.Low(Rng.Bipolar());
        dSum += vOut[i];
    }
    // Take the pick's own offset out, or the string would carry it as a slowly dying thump.
    const float fMean = static_cast<float>(dSum / static_cast<double>(nPeriod + 1));
    double dPower = 0.0;
    for(std::size_t i = 0; i <= nPeriod && i < vOut.size(); ++i)
    {
        vOut[i] -= fMean;
        dPower += static_cast<double>(vOut[i]) * vOut[i];
    }
    // A darker pick carries less energy; bring every pick to the same strength so brightness is only tone.
    const double dRms = std::sqrt(dPower / static_cast<double>(nPeriod + 1));
    const float fGain = dRms > 0.0 ? static_cast<float>(PICK_RMS / dRms) : 0.0f;
    for(std::size_t i = 0; i <= nPeriod && i < vOut.size(); ++i)
        vOut[i] *= fGain;
}
} // namespace

// A plucked string (Karplus-Strong): the pick circulates round a delay line one period long, and an averaging
// filter in the loop takes the treble away a little on every pass, as a real string loses it.
Mono RenderPluck(const Note& Played, const Patch& Sound, double dGate, uint64_t ulSeed)
{
    CAdsr Envelope(Sound.m_Envelope, dGate);
    Mono vOut(Envelope.Length());
    const double dHz = MidiToHz(Played.m_nMidi);
    // The averaging filter delays by half a sample, so the line is half a sample shorter than a period.
    const double dDelay = static_cast<double>(SAMPLE_RATE) / dHz - 0.5;
    const std::size_t nWhole = static_cast<std::size_t>(dDelay);
    const float fFraction = static_cast<float>(dDelay - static_cast<double>(nWhole));
    const float fLoss = static_cast<float>(std::pow(10.0, -3.0 / (Sound.m_dRing * dHz)));
    Pick(vOut, nWhole, Sound, ulSeed);
    float fPreviousTap = 0.0f;
    for(std::size_t i = nWhole + 1; i < vOut.size(); ++i)
    {
        const float fTap = (1.0f - fFraction) * vOut[i - nWhole] + fFraction * vOut[i - nWhole - 1];
        vOut[i] = fLoss * 0.5f * (fTap + fPreviousTap);
        fPreviousTap = fTap;
    }
    for(float& fSample : vOut)
        fSample *= Envelope.Next() * Played.m_fVelocity;
    return vOut;
}
