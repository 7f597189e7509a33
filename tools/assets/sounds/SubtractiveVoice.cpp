#include "sounds/Envelope.h"
#include "sounds/Filters.h"
#include "sounds/Oscillators.h"
#include "sounds/Rng.h"
#include "sounds/Voices.h"

#include <algorithm>
#include <cmath>

namespace
{
// Filter coefficients cost a tangent, so the sweep is updated every few samples; far quicker than any envelope.
constexpr std::size_t FILTER_UPDATE = 32;

Mono EnvelopeOf(const Patch& Sound, double dGate)
{
    CAdsr Envelope(Sound.m_Envelope, dGate);
    Mono vLevels(Envelope.Length());
    for(float& fLevel : vLevels)
        fLevel = Envelope.Next();
    return vLevels;
}

double Waveform(const Patch& Sound, double dPhase, double dStep)
{
    double dValue = 0.0;
    if(Sound.m_fSaw != 0.0f)
        dValue += Sound.m_fSaw * SawWave(dPhase, dStep);
    if(Sound.m_fSquare != 0.0f)
        dValue += Sound.m_fSquare * SquareWave(dPhase, dStep);
    if(Sound.m_fTriangle != 0.0f)
        dValue += Sound.m_fTriangle * TriangleWave(dPhase);
    if(Sound.m_fSine != 0.0f)
        dValue += Sound.m_fSine * SineWave(dPhase);
    return dValue;
}

// One unison voice, detuned and placed by dSpread (-1 to 1), added into the raw stereo signal.
void AddUnisonVoice(Stereo& Raw, const Patch& Sound, double dHz, double dSpread, double dStartPhase)
{
    const double dDetune = std::pow(2.0, dSpread * Sound.m_dDetuneCents / 1200.0);
    const double dAngle = (dSpread * 0.7 + 1.0) * PI / 4.0;
    const float fLeft = static_cast<float>(std::cos(dAngle));
    const float fRight = static_cast<float>(std::sin(dAngle));
    CPhase Phase(dStartPhase);
    for(std::size_t i = 0; i < Raw.Size(); ++i)
    {
        const double dStep = HzToStep(dHz * dDetune * VibratoRatio(Sound, static_cast<double>(i) / SAMPLE_RATE));
        const float fValue = static_cast<float>(Waveform(Sound, Phase.Advance(dStep), dStep));
        Raw.m_vLeft[i] += fValue * fLeft;
        Raw.m_vRight[i] += fValue * fRight;
    }
}

// The low-pass opens with the envelope and, for soft notes, a little less far.
void FilterAndShape(Stereo& Raw, const Patch& Sound, const Mono& vEnvelope, float fVelocity, float fLevel)
{
    CSvf Left(Sound.m_dCutoffHz, Sound.m_dQ);
    CSvf Right(Sound.m_dCutoffHz, Sound.m_dQ);
    const double dVelocityBrightness = 0.6 + 0.4 * fVelocity;
    for(std::size_t i = 0; i < Raw.Size(); ++i)
    {
        if(i % FILTER_UPDATE == 0)
        {
            const double dCutoff =
                Sound.m_dCutoffHz * dVelocityBrightness * (1.0 + Sound.m_dCutoffFromEnvelope * vEnvelope[i]);
            Left.Set(dCutoff, Sound.m_dQ);
            Right.Set(dCutoff, Sound.m_dQ);
        }
        const float fGain = vEnvelope[i] * fLevel;
        Raw.m_vLeft[i] = Left.Process(Raw.m_vLeft[i]).m_fLow * fGain;
        Raw.m_vRight[i] = Right.Process(Raw.m_vRight[i]).m_fLow * fGain;
    }
}

// Keeps the part's overall position while the unison voices spread around it.
void Balance(Stereo& Out, float fPan)
{
    const double dAngle = (std::clamp(fPan, -1.0f, 1.0f) + 1.0) * PI / 4.0;
    const float fLeft = static_cast<float>(std::cos(dAngle) * std::sqrt(2.0));
    const float fRight = static_cast<float>(std::sin(dAngle) * std::sqrt(2.0));
    for(std::size_t i = 0; i < Out.Size(); ++i)
    {
        Out.m_vLeft[i] *= fLeft;
        Out.m_vRight[i] *= fRight;
    }
}
} // namespace

Stereo RenderSubtractive(const Note& Played, const Patch& Sound, double dGate, uint64_t ulSeed)
{
    const Mono vEnvelope = EnvelopeOf(Sound, dGate);
    Stereo Out(vEnvelope.size());
    CRng Rng(ulSeed);
    const int nVoices = std::max(1, Sound.m_nUnison);
    const double dHz = MidiToHz(Played.m_nMidi);
    for(int nVoice = 0; nVoice < nVoices; ++nVoice)
    {
        const double dSpread = nVoices == 1 ? 0.0 : 2.0 * nVoice / (nVoices - 1) - 1.0;
        // Free-running oscillators: each starts where it happens to be, so unison voices never line up.
        AddUnisonVoice(Out, Sound, dHz, dSpread, Rng.Unit());
    }
    // Detuned voices add up like noise, by the square root of their number.
    const float fLevel = Played.m_fVelocity / static_cast<float>(std::sqrt(nVoices));
    FilterAndShape(Out, Sound, vEnvelope, Played.m_fVelocity, fLevel);
    Balance(Out, Sound.m_fPan);
    return Out;
}
