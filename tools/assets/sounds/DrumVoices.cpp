#include "sounds/Filters.h"
#include "sounds/Levels.h"
#include "sounds/Oscillators.h"
#include "sounds/Rng.h"
#include "sounds/Voices.h"

#include <cmath>

namespace
{
// Every drum ends on a short fade, so a hit cut at its buffer's end never clicks.
constexpr double DRUM_TAIL_FADE = 0.005;

double Seconds(std::size_t nSample)
{
    return static_cast<double>(nSample) / SAMPLE_RATE;
}

// A sine that drops fast from a knock to its low tone, with a tick of noise on top; softly saturated for weight.
Mono Kick(const Patch& Sound, uint64_t ulSeed)
{
    Mono vOut(SecondsToSamples(0.45 * Sound.m_dDrumDecay));
    CRng Rng(ulSeed);
    COnePole Tick(3000.0);
    CPhase Phase;
    for(std::size_t i = 0; i < vOut.size(); ++i)
    {
        const double dTime = Seconds(i);
        const double dHz = Sound.m_dDrumTune * (48.0 + 110.0 * std::exp(-dTime / 0.035));
        const double dBody = SineWave(Phase.Advance(HzToStep(dHz))) * std::exp(-dTime / (0.2 * Sound.m_dDrumDecay));
        const double dTick = 0.3 * Tick.Low(Rng.Bipolar()) * std::exp(-dTime / 0.002);
        vOut[i] = static_cast<float>(std::tanh(1.5 * (dBody + dTick)) / std::tanh(1.5));
    }
    return vOut;
}

// A short tuned body under a burst of band-passed noise: the drum and its wires.
Mono Snare(const Patch& Sound, uint64_t ulSeed)
{
    Mono vOut(SecondsToSamples(0.3 * Sound.m_dDrumDecay));
    CRng Rng(ulSeed);
    CSvf Wires(2800.0, 0.6);
    CPhase Phase;
    for(std::size_t i = 0; i < vOut.size(); ++i)
    {
        const double dTime = Seconds(i);
        const double dHz = Sound.m_dDrumTune * (175.0 + 40.0 * std::exp(-dTime / 0.01));
        const double dBody = 0.55 * SineWave(Phase.Advance(HzToStep(dHz))) * std::exp(-dTime / 0.045);
        const double dNoise = Wires.Process(Rng.Bipolar()).m_fBand * std::exp(-dTime / (0.09 * Sound.m_dDrumDecay));
        vOut[i] = static_cast<float>(dBody + 1.6 * dNoise);
    }
    return vOut;
}

// Noise mixed with a cluster of clashing square waves, high-passed: the metallic hiss of a closed hat.
Mono Hat(const Patch& Sound, uint64_t ulSeed)
{
    static const double METAL_HZ[] = {205.3, 304.4, 369.6, 522.7, 540.0, 800.0};
    Mono vOut(SecondsToSamples(0.12 * Sound.m_dDrumDecay));
    CRng Rng(ulSeed);
    CSvf Brightener(7500.0 * Sound.m_dDrumTune, 0.8);
    CPhase aMetal[6];
    for(std::size_t i = 0; i < vOut.size(); ++i)
    {
        double dMetal = 0.0;
        for(std::size_t k = 0; k < 6; ++k)
            dMetal += SquareWave(aMetal[k].Advance(HzToStep(METAL_HZ[k] * 1.7)), HzToStep(METAL_HZ[k] * 1.7));
        const double dRaw = 0.6 * Rng.Bipolar() + 0.08 * dMetal;
        const double dLevel = std::exp(-Seconds(i) / (0.028 * Sound.m_dDrumDecay));
        vOut[i] = static_cast<float>(Brightener.Process(static_cast<float>(dRaw)).m_fHigh * dLevel);
    }
    return vOut;
}

// A soft grain-filled shake: band-passed noise that swells in and dies away.
Mono Shaker(const Patch& Sound, uint64_t ulSeed)
{
    Mono vOut(SecondsToSamples(0.13 * Sound.m_dDrumDecay));
    CRng Rng(ulSeed);
    CSvf Grains(5500.0 * Sound.m_dDrumTune, 1.2);
    for(std::size_t i = 0; i < vOut.size(); ++i)
    {
        const double dTime = Seconds(i);
        const double dSwell = dTime < 0.012 ? dTime / 0.012 : std::exp(-(dTime - 0.012) / (0.04 * Sound.m_dDrumDecay));
        vOut[i] = static_cast<float>(Grains.Process(Rng.Bipolar()).m_fBand * dSwell);
    }
    return vOut;
}
} // namespace

Mono RenderDrum(const Note& Played, const Patch& Sound, uint64_t ulSeed)
{
    Mono vOut;
    switch(Played.m_ePart)
    {
    case Part::Kick: vOut = Kick(Sound, ulSeed); break;
    case Part::Snare: vOut = Snare(Sound, ulSeed); break;
    case Part::Hat: vOut = Hat(Sound, ulSeed); break;
    default: vOut = Shaker(Sound, ulSeed); break;
    }
    FadeOut(vOut, DRUM_TAIL_FADE);
    ApplyGain(vOut, Played.m_fVelocity);
    return vOut;
}
