#include "app/Game.h"
#include "play/ChainLogic.h"

#include <new>

// The first ball in list order within reach is hit, which need not be the nearest. A shot that has hit
// takes no further part, on this track or any later one.
void CChainLogic::TestHits()
{
    std::list<CBall*>& lstShots = m_pLevel->m_lstShots;
    for(CTrack& Track : m_pLevel->m_vTracks)
    {
        for(auto itShot = lstShots.begin(); itShot != lstShots.end(); ++itShot)
        {
            if((*itShot)->m_ucState == BALL_BURST)
                continue;
            for(auto itBall = Track.m_lstBalls.begin(); itBall != Track.m_lstBalls.end(); ++itBall)
            {
                if(IsHit(**itShot, **itBall))
                {
                    OnHit(Track, itShot, itBall);
                    break;
                }
            }
        }
    }
}

// The test for a run comes first, at the ball hit and at its linked neighbour on the shot's side; a shot
// that completes a run never joins the chain. A run can only form around the shot, since an insertion keeps
// the order of all other colours.
void CChainLogic::OnHit(CTrack& Track, CBallIter itShot, CBallIter itBall)
{
    CBall& Shot = **itShot;
    const uint8_t ucColour = Shot.m_ucColour;
    if(CountRun(Track, itBall, ucColour, 1) >= MIN_RUN)
    {
        Shot.m_ucState = BALL_BURST;
        return;
    }
    CBallIter itNeighbour = Track.m_lstBalls.end();
    if(IsShotAhead(Track, **itBall, Shot))
    {
        if((*itBall)->m_bLinkAhead && std::next(itBall) != Track.m_lstBalls.end())
            itNeighbour = std::next(itBall);
    }
    else if((*itBall)->m_bLinkBack && itBall != Track.m_lstBalls.begin())
        itNeighbour = std::prev(itBall);

    if(itNeighbour == Track.m_lstBalls.end())
    {
        InsertShot(Track, itBall, itShot);
        return;
    }
    if((*itNeighbour)->m_ucColour == ucColour && CountRun(Track, itNeighbour, ucColour, 1) >= MIN_RUN)
    {
        Shot.m_ucState = BALL_BURST;
        return;
    }
    InsertShot(Track, itNeighbour, itShot);
}

// Compares the shot's distance to the points on either side of the ball: it works from any direction and
// on a curve, with no angle. Past the last point the track is continued by one point.
bool CChainLogic::IsShotAhead(const CTrack& Track, const CBall& Ball, const CBall& Shot) const
{
    const std::vector<CPoint3>& vPoints = Track.m_Spline.m_vPoints;
    if(Ball.m_uiPoint == 0 || vPoints.size() < 2)
        return false;
    const size_t Point = std::min<size_t>(Ball.m_uiPoint, vPoints.size() - 1);
    const CPoint3& p = vPoints[Point - 1];
    const CPoint3 q = Point + 1 < vPoints.size() ? vPoints[Point + 1]
                                                 : vPoints.back() + (vPoints.back() - vPoints[vPoints.size() - 2]);
    return Distance(p, Shot.m_Position) > Distance(q, Shot.m_Position);
}

// No ball moves to make room: a new ball comes into being one diameter ahead of the lead of the stretch that
// was hit, and the colours shift one place towards it, so that the shot's colour stands where it landed. The
// walk to the lead crosses any hole too small to take a ball.
void CChainLogic::InsertShot(CTrack& Track, CBallIter itBall, CBallIter itShot)
{
    g_pGame->m_Sound.PlaySound(SOUND_STICK);
    CBall& Shot = **itShot;
    std::list<CBall*>& lstBalls = Track.m_lstBalls;
    uint8_t ucColour = Shot.m_ucColour;
    CBallIter itStart = itBall;
    if(IsShotAhead(Track, **itStart, Shot))
        ++itStart;
    CBall* pFresh = new(std::nothrow) CBall;
    if(!pFresh)
        return; // the shot flies on and is tested again next frame

    CBallIter itLead = itStart == lstBalls.end() ? std::prev(lstBalls.end()) : itStart;
    if(itStart != lstBalls.end())
    {
        while(std::next(itLead) != lstBalls.end() && IsNear(**itLead, **std::next(itLead), GROUP_DISTANCE))
            ++itLead;
    }
    const CBallIter itFresh = lstBalls.insert(std::next(itLead), pFresh);

    const std::vector<CPoint3>& vPoints = Track.m_Spline.m_vPoints;
    const uint32_t uiLeadPoint = std::min<uint32_t>((*itLead)->m_uiPoint, Track.m_Spline.m_uiNumPoints - 1);
    uint32_t uiPoint = uiLeadPoint;
    while(uiPoint + 1 < Track.m_Spline.m_uiNumPoints &&
          Distance(vPoints[uiPoint], vPoints[uiLeadPoint]) < BALL_DIAMETER)
        uiPoint++;
    pFresh->m_Position = vPoints[uiPoint];
    pFresh->m_uiPoint = uiPoint;
    pFresh->m_ucColour = ucColour;
    if(ucColour < Track.m_vColourCounts.size())
        Track.m_vColourCounts[ucColour]++;

    if(itStart != lstBalls.end())
    {
        for(CBallIter it = itStart; it != std::next(itFresh); ++it)
            std::swap((*it)->m_ucColour, ucColour);
    }
    Shot.m_ucState = BALL_BURST;
}
