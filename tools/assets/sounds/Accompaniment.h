#pragma once

#include "sounds/Arrangement.h"

#include <vector>

// The harmony parts: a held pad chord in each bar, an arpeggio picked out of it, and the bass line.

// The pad's chord for a bar, voiced close to the previous one (empty for the first) so that the inner voices
// move by small steps instead of jumping in parallel.
std::vector<int> VoiceChord(const CKey& Key, const Chord& Harmony, const std::vector<int>& vPrevious);

void AddPad(Score& Notes, const PieceStyle& Style, const BarInfo& Bar, const std::vector<int>& vVoicing);
void AddArpeggio(Score& Notes, const PieceStyle& Style, const BarInfo& Bar, const std::vector<int>& vVoicing);
void AddBass(Score& Notes, const CKey& Key, const BarInfo& Bar, const std::vector<BassHit>& vPattern);
