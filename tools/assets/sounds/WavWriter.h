#pragma once

#include "sounds/Signal.h"

#include <string>

// Writes 16-bit PCM WAV files at SAMPLE_RATE. Samples beyond -1..1 are clipped. False when the file cannot be
// written.
bool WriteMonoWav(const std::string& Path, const Mono& vSamples);
bool WriteStereoWav(const std::string& Path, const Stereo& Samples);
