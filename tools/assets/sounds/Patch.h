#pragma once

#include "sounds/Envelope.h"

// How a part sounds. One structure serves every kind of voice; each kind reads the fields that concern it.
enum class Engine
{
    Subtractive, // mixed waveforms through a low-pass filter
    Fm,          // a sine modulated by another sine: bells, electric pianos, soft leads
    Pluck,       // a plucked string (Karplus-Strong)
    Drum         // the kit: which drum follows from the part
};

struct Patch
{
    Engine m_eEngine = Engine::Subtractive;
    AdsrShape m_Envelope = {0.01, 0.2, 0.7, 0.2};
    float m_fLevel = 0.3f;
    float m_fPan = 0.0f;    // -1 left to 1 right
    float m_fReverb = 0.2f; // how much goes to the reverb
    float m_fEcho = 0.0f;   // how much goes to the tempo echo

    // Subtractive: the waveform mix, unison voices spread in pitch and across the stereo field, the filter.
    float m_fSaw = 1.0f;
    float m_fSquare = 0.0f;
    float m_fTriangle = 0.0f;
    float m_fSine = 0.0f;
    int m_nUnison = 1;
    double m_dDetuneCents = 0.0;
    double m_dCutoffHz = 2000.0;
    double m_dCutoffFromEnvelope = 0.0; // extra cutoff, as a multiple of m_dCutoffHz, at the envelope's peak
    double m_dQ = 0.7;

    // Fm: the modulator's frequency ratio and depth, and how fast the depth falls to its floor.
    double m_dRatio = 1.0;
    double m_dIndex = 1.0;
    double m_dIndexFloor = 0.2;
    double m_dIndexDecay = 0.3;

    // Pluck: how long the string rings (seconds to fall 60 dB) and how bright the pick is (0 to 1).
    double m_dRing = 1.5;
    double m_dBrightness = 0.5;

    // Vibrato for held notes, fading in after a delay.
    double m_dVibratoHz = 5.0;
    double m_dVibratoCents = 0.0;
    double m_dVibratoDelay = 0.3;

    // Drums: the tuning of the kick and snare and the length of the hat, scaled from the defaults.
    double m_dDrumTune = 1.0;
    double m_dDrumDecay = 1.0;
};
