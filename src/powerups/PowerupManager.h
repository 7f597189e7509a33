#pragma once
#include <cstdint>

constexpr int POWERUP_STACK_SIZE = 5;
constexpr int NOTICE_CHARS = 40;

// The player's stack of powerup letters, first earned first spent, and the timers of their effects.
class CPowerupManager
{
public:
    CPowerupManager();

    // A burst ball that carried a powerup pays out a random letter, from all ten in a network game and from
    // five in single play; a full stack loses it.
    void EarnPowerup();
    // Puts a given letter on top of the stack, if there is room.
    void PushLetter(char cLetter);

    char m_acStack[POWERUP_STACK_SIZE];
    uint32_t m_nStackCount = 0;
    char m_szNotice[NOTICE_CHARS] = {};
    uint32_t m_nIncreaseTime = 0;
    uint32_t m_nDecreaseTime = 0;
    uint32_t m_nHaltTime = 0;
    bool m_bDecreaseOn = false;
    bool m_bIncreaseOn = false;
    bool m_bHaltOn = false;     // the chains stand still; read by the play rules
    bool m_bMuteBursts = false; // the bursts of this tick make no chime each; read by the play rules
};
