#include "play/ChainLogic.h"

#include "app/Game.h"
#include "net/Messages.h"

bool CChainLogic::IsNear(const CBall& a, const CBall& b, float fLimit)
{
    return (a.m_Position - b.m_Position).Length() < fLimit;
}

bool CChainLogic::IsHit(const CBall& Shot, const CBall& Ball)
{
    return IsNear(Shot, Ball, HIT_DISTANCE);
}

// Every step runs to the end of the list even in the frame in which the level ends, so a later step can
// overrule an earlier one: the last ball pushed off the end still leaves the level cleared, and won.
void CChainLogic::Tick()
{
    if(!m_pLevel || !m_bActive)
        return;
    m_pLevel->m_Countdown.Update(g_pGame->m_Clock.GetDelta());
    // In a network game the clock's end is the host's to judge: the highest score wins.
    if(m_pLevel->m_Countdown.IsExpired())
    {
        if(g_pGame->m_Network.m_bNetGame)
            g_pGame->m_Network.OnTimeUp();
        else
            EndLevel(false);
    }
    if(!g_pGame->m_Powerups.m_bHaltOn)
        AdvanceChains();
    UpdateRetreats(); // before the push pass, so a stretch that touches is pushed back out this frame
    UpdateShots();
    UpdateChains();
    UpdateLinks(); // after the removal pass and before the hit test, which reads the flags
    TestHits();
    m_pLevel->CountColours();
    CheckCleared();
    CountLiveBalls();
    ReplaceMissingColours();
}

void CChainLogic::EndLevel(bool bWon)
{
    m_bActive = false;
    g_pGame->m_bInGame = false;
    g_pGame->m_Graphics.m_nScreenState = SCREEN_RESULTS;
    m_pLevel->m_bWon = bWon;
}

// Shots in flight and pushers don't count: a level is cleared when no ball rolls and none waits.
void CChainLogic::CheckCleared()
{
    if(m_pLevel->BallsToClear() != 0)
        return;
    if(g_pGame->m_Network.m_bNetGame)
        g_pGame->m_Network.SendEvent(0, NET_YOU_LOSE); // everybody else has lost
    EndLevel(true);
}

void CChainLogic::CountLiveBalls()
{
    uint32_t* pLive = m_pLevel->m_auiLiveByColour;
    std::fill(pLive, pLive + NUM_COLOURS, 0u);
    for(const CTrack& Track : m_pLevel->m_vTracks)
    {
        for(const CBall* pBall : Track.m_lstBalls)
            pLive[pBall->m_ucColour % NUM_COLOURS]++;
    }
    m_pLevel->m_uiLiveBalls = 0;
    for(int c = 0; c < NUM_COLOURS; c++)
        m_pLevel->m_uiLiveBalls += pLive[c];
}
