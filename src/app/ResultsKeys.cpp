#include "app/ScreenFlow.h"

#include "app/Game.h"
#include "input/Input.h"
#include "input/KeyCodes.h"

#include <cstring>

namespace
{
// A won level leads to the next, a lost one is tried again, and after the last level of the list a new round
// starts at the first with faster chains.
void MoveOnInList(CTrackList& Tracks, bool bWon)
{
    if(bWon)
        Tracks.m_uiCurrentFile++;
    if(Tracks.m_uiCurrentFile >= Tracks.m_uiNumFiles)
    {
        Tracks.m_uiRound++;
        Tracks.m_uiCurrentFile = 0;
    }
}

// Unlike the menus' ways into play this one keeps the place in the list. A list without the entry gives a
// level that fails to load, as any missing file does.
void LoadCurrentLevel(CGame& Game)
{
    const CTrackList& Tracks = Game.m_Tracks;
    const bool bListed = Tracks.m_uiCurrentFile < Tracks.m_vFiles.size();
    Game.PlayLevel(bListed ? Tracks.m_vFiles[Tracks.m_uiCurrentFile].c_str() : "");
}

// The score runs on from level to level; the powerups of the old level don't.
void GoOnToLevel(CGame& Game)
{
    MoveOnInList(Game.m_Tracks, Game.m_Level.m_bWon);
    Game.m_Powerups.ApplyEmpty();
    std::memset(Game.m_Powerups.m_szNotice, 0, sizeof(Game.m_Powerups.m_szNotice));
    LoadCurrentLevel(Game);
}

// Back to the lobby with the connection open, the match's traces gone.
void GoBackToLobby(CGame& Game)
{
    Game.m_Network.ResetMatch();
    Game.m_Level.m_bWon = false;
    Game.m_Graphics.m_nScreenState = SCREEN_LOBBY;
}
} // namespace

// The space bar wins over Escape in a frame that has both.
void CScreenFlow::OnResultsKeys()
{
    CGame& Game = *g_pGame;
    if(KeyPressed(DIK_SPACE))
    {
        if(Game.m_Network.m_bNetGame)
            GoBackToLobby(Game);
        else
            GoOnToLevel(Game);
    }
    else if(KeyPressed(DIK_ESCAPE))
    {
        Game.m_Powerups.ApplyEmpty();
        Game.m_Graphics.m_nScreenState = SCREEN_MAIN_MENU;
    }
}
