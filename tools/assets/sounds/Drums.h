#pragma once

#include "sounds/Arrangement.h"
#include "sounds/Rng.h"

// The drum part of one bar from the piece's patterns. nLevel 1 plays the light pattern, 2 the full one; bFill
// turns the last beat into a snare run that leads into the next section.
void AddDrums(Score& Notes, const PieceStyle& Style, const BarInfo& Bar, int nLevel, bool bFill, CRng& Humanise);
