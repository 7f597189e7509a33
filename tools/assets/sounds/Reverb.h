#pragma once

#include "sounds/Signal.h"

// A room: parallel damped comb filters feeding a chain of all-passes, one set per ear with slightly different
// lengths so that the tail spreads wide. dRoomSize from 0 (small) to 1 (a hall); dDamping from 0 (bright walls)
// to 1 (soft ones). Returns only the reflections, for the mixer to add to the dry sound.
Stereo Reverberate(const Stereo& Send, double dRoomSize, double dDamping);
