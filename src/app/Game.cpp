#include "app/Game.h"

#include "platform/Clock.h"

CGame* g_pGame = nullptr;

CGame::CGame() : m_nStartTime(timeGetTime())
{
    m_Level.m_pGraphics = &m_Graphics;
    m_Graphics.m_pLevel = &m_Level;
    m_Logic.m_pLevel = &m_Level;
}

void CGame::Init()
{
    m_Tracks.Load(TRACK_LIST_FILE);
}

void CGame::Tick()
{
    m_Clock.Update(timeGetTime());
    UpdateFireDelay();
    m_Logic.Tick();
    if(m_bInGame)
        m_Graphics.SetupCamera(CGraphicsEngine::NEAR_PLANE, CGraphicsEngine::FAR_PLANE);
    m_Powerups.Update();
}

void CGame::StartLevel(const char* pFileName)
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
