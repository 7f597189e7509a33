#pragma once
#include <cstdint>

// The counters of the results screen. They add up over every level of a run of the program.
class CPlayStats
{
public:
    uint32_t m_nTriples = 0;   // runs of exactly 3
    uint32_t m_nLastChain = 0; // length of the last run of 4 or more
    uint32_t m_nChains = 0;    // runs of 4 or more
    uint32_t m_nMaxChain = 0;
    uint32_t m_nComboRun = 0; // combos since the last run a shot made
    uint32_t m_nCombos = 0;   // runs a closing gap made, with no shot taking part
    uint32_t m_nMaxCombo = 0; // the longest series of combos that a direct hit has ended
};
