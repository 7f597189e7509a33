#pragma once

#include "sounds/Rng.h"

#include <vector>

// A motif: one bar of rhythm with a melodic shape, in scale steps, that is fitted to each chord it lands on.
struct MotifNote
{
    int m_nEighths;
    int m_nStep; // scale steps from the note before (from the anchor, for the first)
    bool m_bRest;
};
using Motif = std::vector<MotifNote>;

// dBusy from 0 (long notes) to 1 (mostly eighths). A pickup rest is allowed when bMayRest.
Motif MakeMotif(CRng& Rng, int nEighthsPerBar, double dBusy, bool bMayRest);
// The same rhythm with a new shape in its second half: heard as an answer to the original.
Motif Answer(const Motif& Source, CRng& Rng);
// The close of a phrase: the source's first half, then one long note to the end of the bar.
Motif Cadence(const Motif& Source, int nEighthsPerBar);
