#pragma once
#include <cstdint>
#include <ostream>

class CGame;

// How a run went, as far as the simulator itself counts.
struct CRunCount
{
    uint64_t m_ulFrames = 0;
    uint32_t m_uiDeltaMs = 0;
    uint64_t m_ulShotsFired = 0;
    uint64_t m_ulPowerupsEarned = 0; // letters that reached the stack
    uint64_t m_ulPowerupsUsed = 0;
};

// The result of a run as one line of JSON: outcome, time, score, what is left and the results-screen counters.
void WriteSummary(std::ostream& Stream, const CGame& Game, const CRunCount& Count);

// One frame's balls on every track, rear first, and the shots in flight, as one line of JSON.
void WriteTraceFrame(std::ostream& Stream, uint64_t ulFrame, const CGame& Game);
