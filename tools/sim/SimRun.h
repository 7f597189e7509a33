#pragma once
#include "sim/RunCount.h"
#include "sim/SimOptions.h"

#include <ostream>
#include <string>
#include <vector>

class CSimScript;

// How one simulated level ended, as the level tools count it.
struct CSimResult
{
    std::string m_Outcome;                // "won", "lost" or "running" when the frame cap came first
    CRunCount m_Count;                    // frames, shots and powerups
    uint32_t m_uiBallsAtStart = 0;        // balls on the tracks and queued when the level began
    uint32_t m_uiBallsLeft = 0;           // balls on the tracks and queued when the run stopped
    bool m_bClockRanOut = false;          // the level's clock, not a chain, ended it
    std::vector<std::string> m_vWarnings; // what the game would have shown in error boxes while loading

    uint64_t Milliseconds() const { return m_Count.m_ulFrames * m_Count.m_uiDeltaMs; }
};

// Where a run's frames and its one-line summary go; either may be left out.
struct CSimOutput
{
    std::ostream* m_pTrace = nullptr;
    std::ostream* m_pSummary = nullptr;
};

// Plays a level as the options ask, by the game's own rules on a hand-set clock, in this process. False with
// a reason when the level file can't be opened, as the game would refuse it.
bool RunSimulation(const CSimOptions& Options, CSimScript& Script, const CSimOutput& Output, CSimResult& Result,
                   std::string& Reason);
