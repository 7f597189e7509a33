#pragma once
#include "math/Vector.h"

#include <cstddef>
#include <cstdint>

enum
{
    BALL_NORMAL = 0,     // rolling in a chain, or a shot in flight
    BALL_BURST = 1,      // to be removed in the next removal pass
    BALL_RETREATING = 2, // first ball of a stretch that rolls back to close a gap
    BALL_SETTLED = 3,    // that ball has met the one behind it
};

constexpr int NUM_BALL_COLOURS = 6; // red, green, blue, yellow, orange, purple
constexpr int NUM_COLOURS = NUM_BALL_COLOURS;

// Distances between ball centres or points, each compared strictly less than.
constexpr float BALL_DIAMETER = 2.76f;      // least spacing of neighbours; a chain rolls this far per interval
constexpr float LINK_DISTANCE = 2.8979998f; // neighbours nearer than this touch: 1.05 diameters
constexpr float HIT_DISTANCE = 3.036f;      // a shot nearer than this to a ball hits it: 1.1 diameters
constexpr float GROUP_DISTANCE = 5.52f;     // neighbours this far apart have room for a ball between them
constexpr float POINT_SPACING = 0.2f;       // the pusher's distance-to-index divisor

constexpr float SHOT_SPEED = 0.2f; // units for each millisecond
constexpr uint16_t SHOT_LIFE = 3000;
constexpr size_t MAX_SHOTS = 20;
constexpr uint32_t FIRE_DELAY = 500;
constexpr float RETREAT_SPEED = 0.25f; // points for each millisecond
constexpr uint32_t BALL_POINTS = 100;
constexpr uint32_t MIN_RUN = 3;

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
