#pragma once
#include "sim/RunCount.h"

#include <cstdint>
#include <ostream>

class CGame;

// "won", "lost", or "running" while the level goes on.
const char* Outcome(const CGame& Game);

// The result of a run as one line of JSON: outcome, time, score, what is left and the results-screen counters.
void WriteSummary(std::ostream& Stream, const CGame& Game, const CRunCount& Count);

// One frame's balls on every track, rear first, and the shots in flight, as one line of JSON.
void WriteTraceFrame(std::ostream& Stream, uint64_t ulFrame, const CGame& Game);
