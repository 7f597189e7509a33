#include "app/Game.h"

#include "platform/Clock.h"

CGame* g_pGame = nullptr;

CGame::CGame() : m_nStartTime(timeGetTime())
{
    m_Level.m_pGraphics = &m_Graphics;
}

void CGame::Init()
{
    m_Tracks.Load(TRACK_LIST_FILE);
}

void CGame::Tick()
{
    m_Clock.Update(timeGetTime());
    UpdateFireDelay();
}

void CGame::UpdateFireDelay()
{
    const uint32_t uiDelta = m_Clock.GetDelta();
    m_nFireDelay = m_nFireDelay > uiDelta ? m_nFireDelay - uiDelta : 0;
}
