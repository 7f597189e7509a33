#include "sounds/EffectParts.h"

#include "sounds/Filters.h"
#include "sounds/Levels.h"
#include "sounds/Oscillators.h"
#include "sounds/Rng.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr double EFFECT_PEAK_DB = -3.0;
// Long enough to round off the first waveform step, short enough to keep the attack crisp.
constexpr double EFFECT_FADE_IN = 0.001;

double Glide(double dFrom, double dTo, double dGlide, double dTime)
{
    if(dGlide <= 0.0)
        return dFrom;
    return dTo + (dFrom - dTo) * std::exp(-dTime / dGlide);
}

// Straight rise over dAttack seconds, then an exponential fall with time constant dDecay.
double Strike(double dAttack, double dDecay, double dTime)
{
    if(dTime < dAttack)
        return dTime / dAttack;
    return std::exp(-(dTime - dAttack) / dDecay);
}
} // namespace

void AddTone(Mono& vOut, const Tone& Spec)
{
    CPhase Phase;
    for(std::size_t i = SecondsToSamples(Spec.m_dStart); i < vOut.size(); ++i)
    {
        const double dTime = static_cast<double>(i) / SAMPLE_RATE - Spec.m_dStart;
        const double dHz = Glide(Spec.m_dFromHz, Spec.m_dToHz, Spec.m_dGlide, dTime);
        const double dLevel = Spec.m_fLevel * Strike(Spec.m_dAttack, Spec.m_dDecay, dTime);
        vOut[i] += static_cast<float>(dLevel * SineWave(Phase.Advance(HzToStep(dHz))));
    }
}

void AddNoise(Mono& vOut, const Noise& Spec)
{
    CRng Rng(Spec.m_ulSeed);
    CSvf Filter(Spec.m_dFromHz, Spec.m_dQ);
    for(std::size_t i = SecondsToSamples(Spec.m_dStart); i < vOut.size(); ++i)
    {
        const double dTime = static_cast<double>(i) / SAMPLE_RATE - Spec.m_dStart;
        if(Spec.m_dGlide > 0.0 && i % 32 == 0)
            Filter.Set(Glide(Spec.m_dFromHz, Spec.m_dToHz, Spec.m_dGlide, dTime), Spec.m_dQ);
        const double dLevel = Spec.m_fLevel * Strike(Spec.m_dAttack, Spec.m_dDecay, dTime);
        vOut[i] += static_cast<float>(dLevel * Filter.Process(Rng.Bipolar()).m_fBand);
    }
}

void AddSweep(Mono& vOut, double dStart, double dLength, double dFromHz, double dToHz, double dAttack, float fLevel)
{
    CPhase Phase;
    const std::size_t nEnd = std::min(vOut.size(), SecondsToSamples(dStart + dLength));
    for(std::size_t i = SecondsToSamples(dStart); i < nEnd; ++i)
    {
        const double dTime = static_cast<double>(i) / SAMPLE_RATE - dStart;
        const double dHz = dFromHz * std::pow(dToHz / dFromHz, dTime / dLength);
        const double dLevel = fLevel * std::min(1.0, dTime / dAttack);
        const double dPhase = Phase.Advance(HzToStep(dHz));
        vOut[i] += static_cast<float>(dLevel * (0.6 * TriangleWave(dPhase) + 0.4 * SineWave(dPhase)));
    }
}

void AddBell(Mono& vOut, double dStart, double dHz, double dDecay, float fLevel)
{
    // Ratios a little off the harmonic series give the glassy, bell-like shimmer.
    static const double RATIOS[] = {1.0, 2.01, 3.03, 4.18, 5.43};
    static const float LEVELS[] = {1.0f, 0.45f, 0.28f, 0.16f, 0.09f};
    for(std::size_t k = 0; k < 5; ++k)
    {
        const double dPartialHz = dHz * RATIOS[k];
        const double dPartialDecay = dDecay / std::sqrt(RATIOS[k]);
        AddTone(vOut, {dStart, dPartialHz, dPartialHz, 0.0, 0.0008, dPartialDecay, fLevel * LEVELS[k]});
    }
}

void FinishEffect(Mono& vSamples, double dFadeOut)
{
    RemoveDc(vSamples);
    FadeIn(vSamples, EFFECT_FADE_IN);
    FadeOut(vSamples, dFadeOut);
    NormalisePeak(vSamples, EFFECT_PEAK_DB);
}

Mono SilenceOf(double dSeconds)
{
    return Mono(SecondsToSamples(dSeconds), 0.0f);
}
