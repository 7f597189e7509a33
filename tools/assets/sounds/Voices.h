#pragma once

#include "sounds/Patch.h"
#include "sounds/Score.h"
#include "sounds/Signal.h"

#include <cstdint>

// Renders one note as it sounds, from its start until its release has died away, at the note's velocity but
// before the part's level. ulSeed gives the note its own noise.
Stereo RenderVoice(const Note& Played, const Patch& Sound, double dSecondsPerBeat, uint64_t ulSeed);

// The engines behind it; dGate is how long the key is held, in seconds.
Stereo RenderSubtractive(const Note& Played, const Patch& Sound, double dGate, uint64_t ulSeed);
Mono RenderFm(const Note& Played, const Patch& Sound, double dGate);
Mono RenderPluck(const Note& Played, const Patch& Sound, double dGate, uint64_t ulSeed);
Mono RenderDrum(const Note& Played, const Patch& Sound, uint64_t ulSeed);

// Places a mono sound in the stereo field with equal loudness at every position (-1 left to 1 right).
Stereo Pan(const Mono& vSamples, float fPan);
// The gentle pitch wobble of a held note, as a frequency ratio at dTime seconds into it.
double VibratoRatio(const Patch& Sound, double dTime);
