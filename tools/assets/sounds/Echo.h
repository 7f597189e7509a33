#pragma once

#include "sounds/Signal.h"

// A ping-pong echo: repeats alternate between the ears, each one dFeedback quieter and a little darker than
// the last. Returns only the repeats.
Stereo Echo(const Stereo& Send, double dDelaySeconds, double dFeedback);
