#include "app/Game.h"
#include "play/ChainLogic.h"

#include <cstdlib>

// The walks go along link flags only, so balls of one colour with a hole between them are no run; they
// don't look at states, so a ball already marked is counted and marked again. With uiStart 1 the shot is
// one ball of the run; with 0 a closing gap made it, and a run is a combo.
uint32_t CChainLogic::CountRun(const CTrack& Track, CBallIter itBall, uint8_t ucColour, uint32_t uiStart)
{
    uint32_t uiCount = uiStart;
    if((*itBall)->m_ucColour != ucColour)
        return uiCount;
    uiCount++;
    CBallIter itRear = itBall;
    while((*itRear)->m_bLinkBack && itRear != Track.m_lstBalls.begin() && (*std::prev(itRear))->m_ucColour == ucColour)
    {
        uiCount++;
        --itRear;
    }
    CBallIter itLead = itBall;
    while((*itLead)->m_bLinkAhead && std::next(itLead) != Track.m_lstBalls.end() &&
          (*std::next(itLead))->m_ucColour == ucColour)
    {
        uiCount++;
        ++itLead;
    }
    if(uiCount < MIN_RUN)
        return uiCount;

    for(CBallIter it = itRear; it != std::next(itLead); ++it)
        (*it)->m_ucState = BALL_BURST;
    CPlayStats& Stats = g_pGame->m_Stats;
    if(uiStart == 0)
    {
        Stats.m_nComboRun++;
        Stats.m_nCombos++;
        MarkPowerupBall();
    }
    else
    {
        // A direct hit ends a series of combos.
        Stats.m_nMaxCombo = std::max(Stats.m_nMaxCombo, Stats.m_nComboRun);
        Stats.m_nComboRun = 0;
    }
    if(uiCount == 3)
        Stats.m_nTriples++;
    else
    {
        Stats.m_nLastChain = uiCount;
        Stats.m_nMaxChain = std::max(Stats.m_nMaxChain, uiCount);
        Stats.m_nChains++;
    }
    return uiCount;
}

// Any ball can get it, one of the run that is just bursting too, which then pays out at once.
void CChainLogic::MarkPowerupBall()
{
    std::vector<CTrack>& vTracks = m_pLevel->m_vTracks;
    if(vTracks.empty())
        return;
    CTrack& Track = vTracks.size() >= 2 ? vTracks[std::rand() % vTracks.size()] : vTracks[0];
    if(Track.m_lstBalls.empty())
        return;
    auto it = Track.m_lstBalls.begin();
    std::advance(it, std::rand() % Track.m_lstBalls.size());
    (*it)->m_bPowerup = true;
}

// Marked balls leave with their points and effects. The first ball after a hole starts a retreat when the
// ball behind the hole has its colour; when only the list's first entry stands behind a hole, the pass stops
// there and what lies further ahead waits for the next frame.
void CChainLogic::RemoveBursts(CTrack& Track)
{
    std::list<CBall*>& lstBalls = Track.m_lstBalls;
    bool bHole = false;
    for(CBallIter it = lstBalls.begin(); it != lstBalls.end(); ++it)
    {
        CBall* pBall = *it;
        if(pBall->m_ucState == BALL_BURST)
        {
            if(!g_pGame->m_Powerups.m_bMuteBursts)
                g_pGame->m_Sound.PlaySound(SOUND_CHIMES);
            g_pGame->m_Particles.StartBurst(pBall->m_Position);
            g_pGame->m_nScore += BALL_POINTS;
            if(pBall->m_bPowerup)
                g_pGame->m_Powerups.EarnPowerup();
            if(pBall->m_ucColour < Track.m_vColourCounts.size())
                Track.m_vColourCounts[pBall->m_ucColour]--;
            delete pBall;
            *it = nullptr;
            bHole = true;
            continue;
        }
        if(!bHole)
            continue;
        bHole = false;
        CBallIter itBehind = it;
        do
            --itBehind;
        while(*itBehind == nullptr && itBehind != lstBalls.begin());
        if(itBehind == lstBalls.begin())
            break;
        if((*itBehind)->m_ucColour == pBall->m_ucColour)
            pBall->m_ucState = BALL_RETREATING;
    }
    lstBalls.remove(nullptr);
}

void CChainLogic::UpdateRetreats()
{
    const uint32_t uiPoints = static_cast<uint32_t>(static_cast<float>(g_pGame->m_Clock.GetDelta()) * RETREAT_SPEED);
    for(CTrack& Track : m_pLevel->m_vTracks)
    {
        // The first ball of the list never retreats and never tests for a run here.
        if(Track.m_lstBalls.empty())
            continue;
        CBallIter it = std::next(Track.m_lstBalls.begin());
        while(it != Track.m_lstBalls.end())
        {
            if((*it)->m_ucState == BALL_RETREATING)
            {
                it = RetreatStretch(Track, it, uiPoints);
                continue;
            }
            if((*it)->m_ucState == BALL_SETTLED)
                CountRun(Track, it, (*it)->m_ucColour, 0);
            ++it;
        }
    }
}

// A retreating stretch rolls back through its points as a rigid body, every ball by the same count, until
// the push pass meets it with the stretch behind. Returns where the outer walk goes on.
CBallIter CChainLogic::RetreatStretch(CTrack& Track, CBallIter it, uint32_t uiPoints)
{
    for(;;)
    {
        CBall& Ball = **it;
        Ball.m_uiPoint = Ball.m_uiPoint >= uiPoints ? Ball.m_uiPoint - uiPoints : 0;
        Ball.m_Position = Track.m_Spline.m_vPoints[Ball.m_uiPoint];
        ++it;
        if(!Ball.m_bLinkAhead || it == Track.m_lstBalls.end())
            return it;
    }
}
