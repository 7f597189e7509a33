#pragma once
#include <cstdint>

class CGame;
struct CRunCount;

// The letters that do harm where they land, which a network player aims at a rival.
bool HarmsWhereItLands(char cLetter);

// A player who aims and fires by the game's own turn and fire operations: finish a run where the colour in
// hand allows, else pair it with a ball of its colour, most urgent first; swap when the next colour does
// better, and throw away a colour that can reach nothing. Powerups that help are spent at once; the others
// when the chains come close to their ends or the stack is full, since only the oldest can be spent. It draws no random numbers of its own, so a run
// depends on the seed alone.
class CAutoplay
{
public:
    explicit CAutoplay(uint32_t uiDeltaMs) : m_uiDeltaMs(uiDeltaMs) {}
    // Plays before one frame, counting the shots that left and the powerups spent.
    void Play(CGame& Game, CRunCount& Count) const;

private:
    // Aims at the best target for the colours in hand and fires; true when a shot left.
    bool AimAndFire(CGame& Game) const;

    uint32_t m_uiDeltaMs;
};
