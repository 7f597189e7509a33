#pragma once

#include "sounds/Arrangement.h"
#include "sounds/Rng.h"

// Writes the tune of one section as phrases of four bars: a motif, the motif again on the next chord, an
// answering bar, and a cadence; the second phrase repeats the first with a new answer and comes home to the
// tonic. A theme that returns in a later section brings back the same motifs, so the tune is recognisable.
void AddMelody(Score& Notes, const PieceStyle& Style, const SectionPlan& Plan, CRng& Humanise);
