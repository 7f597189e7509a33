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

    // Brings up graphics, sound and the track list; false, after telling the player, when there is no
    // graphics device.
    bool Init();
    // One frame, in a fixed order on one frame delta: clock, fire delay, play rules, drawing, network,
    // powerup timers, the music playlist.
    void Tick();
    void UpdateFireDelay();
    // The common tail of a level's start from the menus, the lobby or the host's start message: the file
    // counter goes back to 0 whatever the file, as a chosen track only names the file; then PlayLevel.
    void StartLevel(const char* pFileName);
    // The play screen, the level cleared and loaded at the round of the run, and the rules active. Score,
    // statistics, shots and colour slots run on; a file that can't be loaded leaves an empty level in play.
    void PlayLevel(const char* pFileName);

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

// The start-up after the window exists: Init, then the fonts, the sounds and the first piece of music.
// False when the game can't run for want of a graphics device.
bool StartGame(CGame& Game);

class IWindow;
// Set once the game is built; nothing constructed inside the game may use it.
extern CGame* g_pGame;
// The game's window, which the Escape key closes.
extern IWindow* g_pWindow;
