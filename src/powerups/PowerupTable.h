#pragma once
#include <cstdint>

class CPowerupManager;

// The ten powerups: the one table that the stack, the effects, the HUD and the network all read.
struct CPowerupInfo
{
    char m_cLetter;
    const char* m_pName;
    const char* m_pDescription;
    uint32_t m_uiMessageType;
    int m_iSingleRoll;                      // which roll of five earns it in single play; -1 never
    void (CPowerupManager::*m_pfnEffect)(); // what it does to the own level; null for none
};

constexpr int NUM_POWERUPS = 10;            // also the rolls of a network game, in table order
constexpr int NUM_SINGLE_PLAY_POWERUPS = 5; // the rolls of single play

extern const CPowerupInfo g_aPowerups[NUM_POWERUPS];

// The entry of a letter, or null for a letter outside the table.
const CPowerupInfo* FindPowerup(char cLetter);
