#pragma once
#include "app/Clocks.h"
#include "app/ScreenFlow.h"
#include "gfx/GraphicsEngine.h"
#include "gfx/ParticleSystem.h"
#include "net/Network.h"
#include "play/ChainLogic.h"
#include "play/PlayStats.h"
#include "powerups/PowerupManager.h"
#include "sound/SoundEngine.h"
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
    // One frame, in a fixed order on one frame delta: clock, fire delay, play rules, the play frame's camera,
    // powerup timers.
    void Tick();
    void UpdateFireDelay();
    // Starts a level from its file, as every way into play does: the level is cleared and loaded at the
    // round of the run, and the rules go active. Score, statistics, shots and colour slots run on.
    void StartLevel(const char* pFileName);

    uint32_t m_nScore = 0;
    bool m_bInGame = false;
    CGameClock m_Clock;
    uint32_t m_nFireDelay = 0; // milliseconds until the next shot is allowed
    uint32_t m_nStartTime;     // start of the logo screen's time-out
    CGraphicsEngine m_Graphics;
    CSoundEngine m_Sound;
    CNetwork m_Network;
    CPlayStats m_Stats;
    CLevel m_Level;
    CChainLogic m_Logic;
    CParticleSystem m_Particles;
    CPowerupManager m_Powerups;
    CScreenFlow m_Flow;
    CTrackList m_Tracks;
    uint32_t m_nMusicIndex = 0;
    bool m_bHasMusic = false;
};

// Set once the game is built; nothing constructed inside the game may use it.
extern CGame* g_pGame;
