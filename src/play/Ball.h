#pragma once
#include "math/Vector.h"

#include <cstdint>

enum
{
    BALL_NORMAL = 0,     // rolling in a chain, or a shot in flight
    BALL_BURST = 1,      // to be removed in the next removal pass
    BALL_RETREATING = 2, // first ball of a stretch that rolls back to close a gap
    BALL_SETTLED = 3,    // that ball has met the one behind it
};

constexpr int NUM_BALL_COLOURS = 6; // red, green, blue, yellow, orange, purple

// One ball: of a chain, a shot in flight, or the hidden pusher of a track. Exactly one list, track or level
// holds each ball, and the holder frees it.
class CBall
{
public:
    CPoint3 m_Position{0.0f, 0.0f, 0.0f};
    CVector3 m_vDirection{0.0f, 0.0f, 0.0f}; // a shot's flight; the pusher keeps its travelled distance in x
    uint8_t m_ucColour = 0;
    bool m_bPowerup = false;
    uint8_t m_ucState = BALL_NORMAL;
    bool m_bLinkBack = false;
    bool m_bLinkAhead = false;
    uint16_t m_usLife = 3000; // a shot's milliseconds of flight left
    uint32_t m_uiPoint = 0;   // index into the track's evenly spaced points
};
