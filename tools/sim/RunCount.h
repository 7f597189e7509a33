#pragma once
#include <cstdint>

// How a run went, as far as the player's side counts it.
struct CRunCount
{
    uint64_t m_ulFrames = 0;
    uint32_t m_uiDeltaMs = 0;
    uint64_t m_ulShotsFired = 0;
    uint64_t m_ulPowerupsEarned = 0; // letters that reached the stack
    uint64_t m_ulPowerupsUsed = 0;
};
