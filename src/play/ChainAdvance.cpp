#include "app/Game.h"
#include "play/ChainLogic.h"

#include <algorithm>
#include <new>

namespace
{
CVector3 SegmentDirection(const std::vector<CPoint3>& vPoints, size_t i)
{
    CVector3 v = vPoints[i + 1] - vPoints[i];
    return v.Normalize();
}
} // namespace

// Nothing in a chain rolls by itself: the rear moves, and every other ball is pushed by the one behind it.
void CChainLogic::AdvanceChains()
{
    const uint32_t uiDelta = g_pGame->m_Clock.GetDelta();
    for(CTrack& Track : m_pLevel->m_vTracks)
    {
        if(Track.m_Spline.m_uiNumPoints < 2)
        {
            // A track without a rail can never take its balls; they are dropped so that the level can end.
            Track.m_vColourQueue.clear();
            std::fill(Track.m_vColourCounts.begin(), Track.m_vColourCounts.end(), 0u);
            continue;
        }
        // An interval of 0 (a file value of 1 from round 1 on) is taken as the fastest chain there is.
        const uint32_t uiInterval = std::max(Track.m_uiInterval, 1u);
        const float fStep = static_cast<float>(uiDelta) / static_cast<float>(uiInterval) * BALL_DIAMETER;
        Track.m_uiElapsed += uiDelta;
        if(!Track.m_vColourQueue.empty())
        {
            if(Track.m_uiElapsed >= uiInterval)
            {
                // One ball a frame at most; what a long frame leaves over lets the next frames catch up.
                Track.m_uiElapsed -= uiInterval;
                if(AddBall(Track))
                {
                    CBall& Rear = *Track.m_lstBalls.front();
                    Rear.m_ucColour = Track.m_vColourQueue.back();
                    Track.m_vColourQueue.pop_back();
                    Rear.m_Position = Track.m_Spline.m_vPoints[0];
                    Rear.m_uiPoint = 0;
                }
            }
            else if(!Track.m_lstBalls.empty())
                MoveRearBall(Track, fStep);
        }
        else if(Track.m_uiElapsed < uiInterval)
        {
            if(!Track.m_lstBalls.empty())
                MoveRearBall(Track, fStep);
        }
        else
        {
            if(!Track.m_pPusher)
            {
                Track.m_pPusher = new(std::nothrow) CBall;
                if(!Track.m_pPusher)
                    continue;
                Track.m_pPusher->m_Position = Track.m_Spline.m_vPoints[0];
            }
            MovePusher(Track, fStep);
        }
    }
}

bool CChainLogic::AddBall(CTrack& Track)
{
    CBall* pBall = new(std::nothrow) CBall;
    if(!pBall)
        return false;
    Track.m_lstBalls.push_front(pBall);
    return true;
}

// The rear ball slides straight along the track's first segment, which is right for a ball that has just
// entered; it gets onto the points when a newer ball pushes it.
void CChainLogic::MoveRearBall(CTrack& Track, float fStep)
{
    Track.m_lstBalls.front()->m_Position += SegmentDirection(Track.m_Spline.m_vPoints, 0) * fStep;
}

// The pusher's index is its distance over 0.2 whatever the real spacing, so it is slower than the entry
// phase where points lie closer; it stops at the last but one point while its distance grows on.
void CChainLogic::MovePusher(CTrack& Track, float fStep)
{
    CBall& Pusher = *Track.m_pPusher;
    Pusher.m_vDirection.x() += fStep;
    const float fIndex = Pusher.m_vDirection.x() / POINT_SPACING;
    Pusher.m_uiPoint = fIndex < 4294967040.0f ? static_cast<uint32_t>(fIndex) : 0xFFFFFFFFu;
    const float f = Pusher.m_vDirection.x() - static_cast<float>(Pusher.m_uiPoint) * POINT_SPACING;
    if(Pusher.m_uiPoint >= Track.m_Spline.m_uiNumPoints - 1)
        return;
    Pusher.m_Position =
        Track.m_Spline.m_vPoints[Pusher.m_uiPoint] + SegmentDirection(Track.m_Spline.m_vPoints, Pusher.m_uiPoint) * f;
}

void CChainLogic::UpdateChains()
{
    for(CTrack& Track : m_pLevel->m_vTracks)
    {
        PushChain(Track);
        RemoveBursts(Track);
    }
}

// From the rear to the lead, each ball is pushed by one that has already moved in this pass, so a push runs
// through a whole stretch in one frame.
void CChainLogic::PushChain(CTrack& Track)
{
    const CPoint3* pRear = Track.m_pPusher ? &Track.m_pPusher->m_Position : nullptr;
    for(CBall* pBall : Track.m_lstBalls)
    {
        if(pRear)
            PushBall(Track, *pRear, *pBall);
        pRear = &pBall->m_Position;
    }
}

// A pushed ball jumps to the first point ahead that is at least a diameter from the ball behind, in a
// straight line; past the last point it runs off and the level is lost.
void CChainLogic::PushBall(CTrack& Track, const CPoint3& RearPosition, CBall& Ball)
{
    if(!(Distance(RearPosition, Ball.m_Position) < BALL_DIAMETER))
        return;
    const std::vector<CPoint3>& vPoints = Track.m_Spline.m_vPoints;
    do
    {
        Ball.m_uiPoint++;
        if(Ball.m_uiPoint >= Track.m_Spline.m_uiNumPoints)
        {
            Ball.m_ucState = BALL_BURST;
            if(g_pGame->m_Network.m_bNetGame)
                g_pGame->m_Network.OnPlayerLost();
            EndLevel(false);
            return;
        }
    } while(Distance(vPoints[Ball.m_uiPoint], RearPosition) < BALL_DIAMETER);
    Ball.m_Position = vPoints[Ball.m_uiPoint];
    if(Ball.m_ucState == BALL_RETREATING)
        Ball.m_ucState = BALL_SETTLED;
}

void CChainLogic::UpdateLinks()
{
    for(CTrack& Track : m_pLevel->m_vTracks)
    {
        std::list<CBall*>& lstBalls = Track.m_lstBalls;
        if(lstBalls.empty())
            continue;
        lstBalls.front()->m_bLinkBack = false;
        for(auto itA = lstBalls.begin(), itB = std::next(itA); itB != lstBalls.end(); ++itA, ++itB)
        {
            const bool bTouch = IsNear(**itA, **itB, LINK_DISTANCE);
            (*itB)->m_bLinkBack = bTouch;
            (*itA)->m_bLinkAhead = bTouch;
        }
        lstBalls.back()->m_bLinkAhead = false;
    }
}
