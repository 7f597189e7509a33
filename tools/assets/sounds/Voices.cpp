#include "sounds/Voices.h"

#include <algorithm>
#include <cmath>

Stereo Pan(const Mono& vSamples, float fPan)
{
    const double dAngle = (std::clamp(fPan, -1.0f, 1.0f) + 1.0) * PI / 4.0;
    const float fLeft = static_cast<float>(std::cos(dAngle));
    const float fRight = static_cast<float>(std::sin(dAngle));
    Stereo Out(vSamples.size());
    for(std::size_t i = 0; i < vSamples.size(); ++i)
    {
        Out.m_vLeft[i] = vSamples[i] * fLeft;
        Out.m_vRight[i] = vSamples[i] * fRight;
    }
    return Out;
}

double VibratoRatio(const Patch& Sound, double dTime)
{
    if(Sound.m_dVibratoCents <= 0.0 || dTime <= Sound.m_dVibratoDelay)
        return 1.0;
    // The wobble eases in over a third of a second, as a player's would.
    const double dDepth = std::min(1.0, (dTime - Sound.m_dVibratoDelay) / 0.3) * Sound.m_dVibratoCents;
    const double dCents = dDepth * std::sin(2.0 * PI * Sound.m_dVibratoHz * dTime);
    return 1.0 + dCents * (std::log(2.0) / 1200.0);
}

Stereo RenderVoice(const Note& Played, const Patch& Sound, double dSecondsPerBeat, uint64_t ulSeed)
{
    const double dGate = Played.m_dLength * dSecondsPerBeat;
    switch(Sound.m_eEngine)
    {
    case Engine::Fm: return Pan(RenderFm(Played, Sound, dGate), Sound.m_fPan);
    case Engine::Pluck: return Pan(RenderPluck(Played, Sound, dGate, ulSeed), Sound.m_fPan);
    case Engine::Drum: return Pan(RenderDrum(Played, Sound, ulSeed), Sound.m_fPan);
    case Engine::Subtractive:
    default: return RenderSubtractive(Played, Sound, dGate, ulSeed);
    }
}
