#include "app/Game.h"

#include "gfx/Fonts.h"
#include "platform/interfaces/Clock.h"
#include "platform/interfaces/ErrorBox.h"

CGame* g_pGame = nullptr;
IWindow* g_pWindow = nullptr;

CGame::CGame() : m_nStartTime(timeGetTime())
{
    m_Level.m_pGraphics = &m_Graphics;
    m_Graphics.m_pLevel = &m_Level;
    m_Logic.m_pLevel = &m_Level;
}

bool CGame::Init()
{
    if(!m_Graphics.Init())
    {
        ShowError("Failed to initialize Graphics Engine");
        return false;
    }
    // Without sound the track list stays unread: the game runs on with no levels to play.
    if(m_Sound.Init())
        m_Tracks.Load(TRACK_LIST_FILE);
    return true;
}

bool StartGame(CGame& Game)
{
    if(!Game.Init())
        return false;
    InitFonts();
    Game.m_Sound.LoadSounds();
    Game.m_bHasMusic = Game.m_Sound.ScanMusic();
    if(Game.m_bHasMusic && !Game.m_Sound.m_vMusicFiles.empty())
        Game.m_Sound.PlayMusic(Game.m_Sound.m_vMusicFiles[0], false);
    return true;
}

void CGame::Tick()
{
    m_Clock.Update(timeGetTime());
    UpdateFireDelay();
    m_Logic.Tick();
    if(m_bInGame)
        m_Graphics.RenderPlayFrame();
    else
        m_Graphics.RenderMenuFrame();
    m_Network.Tick(); // what arrived acts on play from the next frame on
    m_Powerups.Update();
    m_Sound.Update(m_bHasMusic, m_nMusicIndex);
}

void CGame::StartLevel(const char* pFileName)
{
    m_Tracks.m_uiCurrentFile = 0;
    PlayLevel(pFileName);
}

void CGame::PlayLevel(const char* pFileName)
{
    m_Graphics.m_nScreenState = SCREEN_PLAY;
    m_Level.Clear();
    m_Level.Load(pFileName, m_Tracks.m_uiRound);
    m_bInGame = true;
    m_Logic.m_bActive = true;
    m_Level.m_bWon = false;
}

void CGame::UpdateFireDelay()
{
    const uint32_t uiDelta = m_Clock.GetDelta();
    m_nFireDelay = m_nFireDelay > uiDelta ? m_nFireDelay - uiDelta : 0;
}
