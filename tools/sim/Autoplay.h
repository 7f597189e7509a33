#pragma once
#include <cstdint>

class CGame;

// A player who aims and fires by the game's own turn and fire operations: finish a run where the colour in
// hand allows, else pair it with a ball of its colour, most urgent first; swap when the next colour does
// better, and throw away a colour that can reach nothing. It draws no random numbers of its own, so a run
// depends on the seed alone.
class CAutoplay
{
public:
    explicit CAutoplay(uint32_t uiDeltaMs) : m_uiDeltaMs(uiDeltaMs) {}
    // Plays before one frame; returns how many shots left (0 or 1).
    uint32_t Play(CGame& Game) const;

private:
    uint32_t m_uiDeltaMs;
};
