#include "sounds/Envelope.h"
#include "sounds/Oscillators.h"
#include "sounds/Voices.h"

#include <cmath>

// Two sines, one bending the other's phase. A high index at the strike that settles to a low floor gives the
// bright attack and mellow ring of bells and electric pianos; a steady low index makes a soft, round lead.
Mono RenderFm(const Note& Played, const Patch& Sound, double dGate)
{
    CAdsr Envelope(Sound.m_Envelope, dGate);
    Mono vOut(Envelope.Length());
    const double dHz = MidiToHz(Played.m_nMidi);
    const double dIndexDecay = std::exp(-1.0 / (Sound.m_dIndexDecay * SAMPLE_RATE));
    // Harder notes are brighter as well as louder.
    const double dPeakIndex = Sound.m_dIndex * (0.5 + 0.5 * Played.m_fVelocity);
    double dFalling = 1.0;
    CPhase Carrier;
    CPhase Modulator;
    for(std::size_t i = 0; i < vOut.size(); ++i)
    {
        const double dVibrato = VibratoRatio(Sound, static_cast<double>(i) / SAMPLE_RATE);
        const double dIndex = dPeakIndex * (Sound.m_dIndexFloor + (1.0 - Sound.m_dIndexFloor) * dFalling);
        dFalling *= dIndexDecay;
        const double dModulation = dIndex * SineWave(Modulator.Advance(HzToStep(dHz * Sound.m_dRatio * dVibrato)));
        const double dPhase = Carrier.Advance(HzToStep(dHz * dVibrato)) + dModulation / (2.0 * PI);
        vOut[i] = static_cast<float>(SineWave(dPhase) * Envelope.Next() * Played.m_fVelocity);
    }
    return vOut;
}
