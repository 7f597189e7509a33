#pragma once
#include <cstdint>

constexpr int POWERUP_STACK_SIZE = 5;
constexpr int NOTICE_CHARS = 40;

// The player's stack of powerup letters, first earned first spent, the effects a letter has on the level,
// and their timers.
class CPowerupManager
{
public:
    static constexpr uint32_t SLOW_INTERVAL = 1000; // milliseconds per ball while slowed
    static constexpr uint32_t FAST_INTERVAL = 90;   // while hurried
    static constexpr uint32_t AFTER_INTERVAL = 300; // every track once either ends
    static constexpr uint32_t DECREASE_MS = 7000;
    static constexpr uint32_t INCREASE_MS = 9000;
    static constexpr uint32_t HALT_MS = 6000;

    CPowerupManager();

    // A burst ball that carried a powerup pays out a random letter, from all ten in a network game and from
    // five in single play; a full stack loses it.
    void EarnPowerup();
    // Puts a given letter on top of the stack, if there is room.
    void PushLetter(char cLetter);
    // Spends the oldest letter on the player's own level.
    void UsePowerup();
    // Drops the oldest letter and moves the others up.
    void PopLetter();
    void Update();
    // The HUD's two lines about the letter the next use takes: what it does, and how to spend it.
    void DrawPowerupInfo() const;

    void ApplyDecrease();
    void ApplyIncrease();
    void ApplyHalt();
    void ApplyMake();
    void ApplyZero();
    void ApplyClear();
    void ApplyEmpty();
    void ApplyRandom();
    void ApplyExchange();

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

private:
    void SetIntervals(uint32_t uiInterval, bool bOnlyWithBalls);
    void BurstAfterRear(uint32_t (*pfnCount)(uint32_t uiBalls));
};
