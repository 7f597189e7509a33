#pragma once

#include "sounds/PieceStyle.h"

#include <vector>

// A bar of the piece as the parts see it.
struct BarInfo
{
    double m_dStart; // in beats
    Chord m_Chord;
    Chord m_NextChord; // the chord of the bar after, for lines that lead into it
    int m_nInSection;  // 0 for the first bar of its section
};

struct SectionPlan
{
    const Section* m_pSection;
    std::vector<BarInfo> m_vBars;
};

// Lays the form out bar by bar. The piece closes on one more bar of the tonic chord, which the last section
// leads into and which the fade-out rings through.
std::vector<SectionPlan> LayOut(const PieceStyle& Style);

// Beats from the start of the piece to the end of that closing bar.
double LengthInBeats(const PieceStyle& Style);
