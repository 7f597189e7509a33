#pragma once

#include "sounds/Signal.h"

#include <string>

// The lame program to use: the given path when it names an executable, or else "lame" found on PATH. Empty
// when there is none.
std::string FindLame(const std::string& Given);

// Encodes the music to an MP3 file at a fixed bitrate, by way of a temporary WAV beside it. The output carries
// a title tag and nothing that changes from run to run, so the same music always gives the same bytes. On
// failure returns false with the reason in Error and leaves no partial file behind.
bool EncodeMp3(const std::string& Lame, const Stereo& Music, const std::string& OutPath, const std::string& Title,
               std::string& Error);
