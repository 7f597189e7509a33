#pragma once

#include <vector>

// The parts of the band. Each piece gives every part its own sound.
enum class Part
{
    Lead,
    Pad,
    Bass,
    Arp,
    Kick,
    Snare,
    Hat,
    Shaker,
    Count
};

// One note of a piece. Times are in beats from the start, so tempo stays the mixer's business.
struct Note
{
    double m_dStart;
    double m_dLength;
    int m_nMidi;
    float m_fVelocity;
    Part m_ePart;
};

using Score = std::vector<Note>;
