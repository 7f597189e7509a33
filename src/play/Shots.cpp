#include "app/Game.h"
#include "play/ChainLogic.h"

#include <cstdlib>
#include <new>

// The player is the launcher: a shot leaves from the point looked at, along the line of sight. A call that
// can't fire does nothing and says nothing; the click's sound is the caller's.
void CChainLogic::Fire()
{
    CLevel& Level = *m_pLevel;
    if(Level.m_lstShots.size() >= MAX_SHOTS || g_pGame->m_nFireDelay != 0)
        return;
    CBall* pShot = new(std::nothrow) CBall;
    if(!pShot)
        return;
    g_pGame->m_nFireDelay = FIRE_DELAY;
    uint8_t ucNext = static_cast<uint8_t>(std::rand() % NUM_COLOURS); // drawn even when not used
    const CGraphicsEngine& Camera = g_pGame->m_Graphics;
    pShot->m_Position = Camera.m_vLookAt;
    pShot->m_vDirection = Camera.m_vLookAt - Camera.m_vEye;
    pShot->m_vDirection.Normalize();
    pShot->m_ucColour = Level.m_ucShotColour;
    Level.m_lstShots.push_front(pShot);
    // The next colour is drawn evenly from those the level still has, rolling or queued.
    if(Level.m_bColoursLeft)
    {
        Level.m_ucShotColour = Level.m_ucNextColour;
        while(Level.m_vColoursLeft[ucNext] == 0)
            ucNext = static_cast<uint8_t>(std::rand() % NUM_COLOURS);
        Level.m_ucNextColour = ucNext;
    }
}

void CChainLogic::SwapColours()
{
    std::swap(m_pLevel->m_ucShotColour, m_pLevel->m_ucNextColour);
}

// Shots fly straight, with no swept test: the hit test sees a shot only where a frame leaves it.
void CChainLogic::UpdateShots()
{
    const uint32_t uiDelta = g_pGame->m_Clock.GetDelta();
    std::list<CBall*>& lstShots = m_pLevel->m_lstShots;
    for(CBall*& pShot : lstShots)
    {
        if(uiDelta < pShot->m_usLife && pShot->m_ucState != BALL_BURST)
        {
            pShot->m_usLife = static_cast<uint16_t>(pShot->m_usLife - uiDelta);
            pShot->m_Position += pShot->m_vDirection * static_cast<float>(uiDelta) * SHOT_SPEED;
        }
        else
        {
            delete pShot;
            pShot = nullptr;
        }
    }
    lstShots.remove(nullptr);
}

// What the player holds is always a colour that rolls on some track, as long as any ball rolls.
void CChainLogic::ReplaceMissingColours()
{
    CLevel& Level = *m_pLevel;
    if(Level.m_uiLiveBalls == 0)
        return;
    while(Level.m_auiLiveByColour[Level.m_ucShotColour] == 0)
        Level.m_ucShotColour = static_cast<uint8_t>(std::rand() % NUM_COLOURS);
    while(Level.m_auiLiveByColour[Level.m_ucNextColour] == 0)
        Level.m_ucNextColour = static_cast<uint8_t>(std::rand() % NUM_COLOURS);
}
