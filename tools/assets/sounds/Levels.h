#pragma once

#include "sounds/Signal.h"

// Level and edge tools used on finished sounds: peaks, gains, fades and removing a DC offset.

double DbToGain(double dDecibels);
float Peak(const Mono& vSamples);
float Peak(const Stereo& Samples);
double Rms(const Stereo& Samples);
void ApplyGain(Mono& vSamples, float fGain);
void ApplyGain(Stereo& Samples, float fGain);
// Scales so that the largest sample stands at dDecibels below full scale; silence is left alone.
void NormalisePeak(Mono& vSamples, double dDecibels);
void NormalisePeak(Stereo& Samples, double dDecibels);
// Raised-cosine fades, so that a sound starts and ends on exactly zero.
void FadeIn(Mono& vSamples, double dSeconds);
void FadeOut(Mono& vSamples, double dSeconds);
// A very low high-pass (about 10 Hz): takes out any offset that asymmetric waveforms leave behind.
void RemoveDc(Mono& vSamples);
