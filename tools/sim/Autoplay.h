#pragma once
#include "sim/BallMotion.h"

#include <cstdint>
#include <random>

class CGame;
struct CRunCount;

// The letters that do harm where they land, which a network player aims at a rival.
bool HarmsWhereItLands(char cLetter);

// How a player's hand differs from the game's own best: a person needs a while between two shots and never
// aims quite true.
struct CPlayStyle
{
    uint32_t m_uiPaceMs = 0;     // least time between two shots, on top of the game's fire delay
    float m_fAimErrorDeg = 0.0f; // every aim lands up to this many degrees off the target, in any direction
    uint32_t m_uiSeed = 1;       // of the aim errors, which draw from a generator of their own
};

// A player who aims and fires by the game's own turn and fire operations: finish a run where the colour in
// hand allows, else pair it with a ball of its colour, most urgent first; swap when the next colour does
// better, and throw away a colour that can reach nothing. Powerups that help are spent at once; the others
// when the chains come close to their ends or the stack is full, since only the oldest can be spent. It rides
// the camera paths towards the chain in most danger. Its aim errors come from a generator of its own, so the
// game's random numbers, and with them the balls, depend on the game's seed alone.
class CAutoplay
{
public:
    explicit CAutoplay(uint32_t uiDeltaMs, const CPlayStyle& Style = {});
    // Plays before one frame, counting the shots that left and the powerups spent.
    void Play(CGame& Game, CRunCount& Count);

private:
    // Aims at the best target for the colours in hand and fires; true when a shot left.
    bool AimAndFire(CGame& Game);
    // Turns the sight by a random angle of up to the style's aim error.
    void MissAim(CGame& Game);

    uint32_t m_uiDeltaMs;
    CPlayStyle m_Style;
    uint32_t m_uiSinceShot = 0;
    CBallMotion m_Motion;
    std::mt19937 m_AimRandom;
};
