#include "sounds/Levels.h"

#include <algorithm>
#include <cmath>

double DbToGain(double dDecibels)
{
    return std::pow(10.0, dDecibels / 20.0);
}

float Peak(const Mono& vSamples)
{
    float fPeak = 0.0f;
    for(float fSample : vSamples)
        fPeak = std::max(fPeak, std::fabs(fSample));
    return fPeak;
}

float Peak(const Stereo& Samples)
{
    return std::max(Peak(Samples.m_vLeft), Peak(Samples.m_vRight));
}

double Rms(const Stereo& Samples)
{
    double dSum = 0.0;
    for(const Mono* pChannel : {&Samples.m_vLeft, &Samples.m_vRight})
    {
        for(float fSample : *pChannel)
            dSum += static_cast<double>(fSample) * fSample;
    }
    const double dCount = 2.0 * static_cast<double>(std::max<std::size_t>(1, Samples.Size()));
    return std::sqrt(dSum / dCount);
}

void ApplyGain(Mono& vSamples, float fGain)
{
    for(float& fSample : vSamples)
        fSample *= fGain;
}

void ApplyGain(Stereo& Samples, float fGain)
{
    ApplyGain(Samples.m_vLeft, fGain);
    ApplyGain(Samples.m_vRight, fGain);
}

void NormalisePeak(Mono& vSamples, double dDecibels)
{
    const float fPeak = Peak(vSamples);
    if(fPeak > 0.0f)
        ApplyGain(vSamples, static_cast<float>(DbToGain(dDecibels) / fPeak));
}

void NormalisePeak(Stereo& Samples, double dDecibels)
{
    const float fPeak = Peak(Samples);
    if(fPeak > 0.0f)
        ApplyGain(Samples, static_cast<float>(DbToGain(dDecibels) / fPeak));
}

namespace
{
// 0 at x = 0 rising smoothly to 1 at x = 1.
float RaisedCosine(double dX)
{
    return static_cast<float>(0.5 - 0.5 * std::cos(PI * std::clamp(dX, 0.0, 1.0)));
}
} // namespace

void FadeIn(Mono& vSamples, double dSeconds)
{
    const std::size_t nFade = std::min(vSamples.size(), std::max<std::size_t>(1, SecondsToSamples(dSeconds)));
    for(std::size_t i = 0; i < nFade; ++i)
        vSamples[i] *= RaisedCosine(static_cast<double>(i) / static_cast<double>(nFade));
}

void FadeOut(Mono& vSamples, double dSeconds)
{
    const std::size_t nFade = std::min(vSamples.size(), std::max<std::size_t>(1, SecondsToSamples(dSeconds)));
    const std::size_t nStart = vSamples.size() - nFade;
    for(std::size_t i = 0; i < nFade; ++i)
    {
        const double dLeft = static_cast<double>(nFade - 1 - i) / static_cast<double>(nFade);
        vSamples[nStart + i] *= RaisedCosine(dLeft);
    }
}

void RemoveDc(Mono& vSamples)
{
    constexpr float POLE = 1.0f - static_cast<float>(2.0 * PI * 10.0 / SAMPLE_RATE);
    float fPreviousIn = 0.0f;
    float fPreviousOut = 0.0f;
    for(float& fSample : vSamples)
    {
        const float fOut = fSample - fPreviousIn + POLE * fPreviousOut;
        fPreviousIn = fSample;
        fPreviousOut = fOut;
        fSample = fOut;
    }
}
