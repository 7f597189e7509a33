#pragma once

#include "sounds/Signal.h"

#include <cstdint>

// The building blocks the short effects are made of. Each adds its layer into a buffer that already has the
// effect's full length; anything that would run past the end is cut off there.

// A sine whose pitch glides from dFromHz towards dToHz with time constant dGlide seconds (0: no glide), which
// rises in dAttack seconds and then dies away with time constant dDecay seconds.
struct Tone
{
    double m_dStart;
    double m_dFromHz;
    double m_dToHz;
    double m_dGlide;
    double m_dAttack;
    double m_dDecay;
    float m_fLevel;
};
void AddTone(Mono& vOut, const Tone& Spec);

// A burst of white noise through a band-pass whose centre glides like a tone's pitch.
struct Noise
{
    double m_dStart;
    double m_dFromHz;
    double m_dToHz;
    double m_dGlide;
    double m_dQ;
    double m_dAttack;
    double m_dDecay;
    float m_fLevel;
    uint64_t m_ulSeed;
};
void AddNoise(Mono& vOut, const Noise& Spec);

// A steady tone whose pitch climbs at an even rate (equal musical steps per second) from dFromHz to dToHz over
// dLength seconds, with a soft triangle timbre; it rises in dAttack seconds and then holds.
void AddSweep(Mono& vOut, double dStart, double dLength, double dFromHz, double dToHz, double dAttack, float fLevel);

// A struck bell: a few slightly stretched partials over dHz, the higher ones dying sooner.
void AddBell(Mono& vOut, double dStart, double dHz, double dDecay, float fLevel);

// Takes out DC, fades both ends to zero (the end over dFadeOut seconds) and sets the peak to -3 dBFS.
void FinishEffect(Mono& vSamples, double dFadeOut);

Mono SilenceOf(double dSeconds);
