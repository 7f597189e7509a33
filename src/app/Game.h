#pragma once
#include "app/Clocks.h"
#include "gfx/GraphicsEngine.h"
#include "tracks/Level.h"
#include "tracks/TrackList.h"

#include <cstdint>

// The one top-level object. It holds every subsystem by value, so one construction builds the game and one
// destruction takes it down in reverse. Members are declared in the order they must be built.
class CGame
{
public:
    CGame();
    CGame(const CGame&) = delete;
    CGame& operator=(const CGame&) = delete;

    // Brings up the subsystems that need more than construction: today the track list.
    void Init();
    // One frame, in a fixed order on one frame delta: clock, fire delay, then the rest of the frame.
    void Tick();
    void UpdateFireDelay();

    uint32_t m_nScore = 0;
    bool m_bInGame = false;
    CGameClock m_Clock;
    uint32_t m_nFireDelay = 0; // milliseconds until the next shot is allowed
    uint32_t m_nStartTime;     // start of the logo screen's time-out
    CGraphicsEngine m_Graphics;
    CLevel m_Level;
    CTrackList m_Tracks;
    uint32_t m_nMusicIndex = 0;
    bool m_bHasMusic = false;
};

// Set once the game is built; nothing constructed inside the game may use it.
extern CGame* g_pGame;
