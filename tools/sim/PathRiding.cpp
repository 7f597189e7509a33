#include "sim/PathRiding.h"

#include "app/Game.h"

#include <limits>

namespace
{
constexpr uint32_t ARROW_POINTS_PER_FRAME = 20; // how far a held arrow key moves the eye in each frame
constexpr float PATH_CHANGE_MARGIN = 50.0f;     // another path must be this much nearer to be worth the change

struct CNearest
{
    uint32_t m_uiPoint = 0;
    float m_fDistance = std::numeric_limits<float>::max();
};

CNearest NearestPoint(const CCameraPath& Path, const CPoint3& Target)
{
    CNearest Nearest;
    const std::vector<CPoint3>& vPoints = Path.m_Spline.m_vPoints;
    for(uint32_t i = 0; i < vPoints.size(); i++)
    {
        const float fDistance = Distance(vPoints[i], Target);
        if(fDistance < Nearest.m_fDistance)
            Nearest = {i, fDistance};
    }
    return Nearest;
}

// The middle button steps through the paths in order; it is pressed once for each path passed.
void ChangeToNearerPath(CLevel& Level, const CPoint3& Target)
{
    const uint8_t ucCurrent = Level.m_ucCurrentPath;
    const float fHere = NearestPoint(Level.m_vCameraPaths[ucCurrent], Target).m_fDistance;
    uint8_t ucBest = ucCurrent;
    float fBest = fHere - PATH_CHANGE_MARGIN;
    for(uint8_t i = 0; i < Level.m_ucNumCameraPaths; i++)
    {
        const float fDistance = NearestPoint(Level.m_vCameraPaths[i], Target).m_fDistance;
        if(fDistance < fBest)
        {
            ucBest = i;
            fBest = fDistance;
        }
    }
    while(Level.m_ucCurrentPath != ucBest)
        Level.NextCameraPath();
}
} // namespace

CFurthestLead FurthestLead(const CLevel& Level)
{
    CFurthestLead Furthest;
    for(const CTrack& Track : Level.m_vTracks)
    {
        if(Track.m_lstBalls.empty() || Track.m_Spline.m_uiNumPoints == 0)
            continue;
        const float fAlong =
            static_cast<float>(Track.m_lstBalls.back()->m_uiPoint) / static_cast<float>(Track.m_Spline.m_uiNumPoints);
        if(Furthest.m_pBall == nullptr || fAlong > Furthest.m_fAlong)
            Furthest = {Track.m_lstBalls.back(), fAlong};
    }
    return Furthest;
}

void RideTowardsDanger(CGame& Game)
{
    CLevel& Level = Game.m_Level;
    const CBall* pLead = FurthestLead(Level).m_pBall;
    if(pLead == nullptr || Level.m_ucNumCameraPaths == 0 || Level.m_ucCurrentPath >= Level.m_ucNumCameraPaths)
        return;
    if(Level.m_ucNumCameraPaths > 1)
        ChangeToNearerPath(Level, pLead->m_Position);
    const CCameraPath& Path = Level.m_vCameraPaths[Level.m_ucCurrentPath];
    const uint32_t uiGoal = NearestPoint(Path, pLead->m_Position).m_uiPoint;
    if(uiGoal > Path.m_uiPosition)
        Level.MoveForward(std::min(uiGoal - Path.m_uiPosition, ARROW_POINTS_PER_FRAME));
    else
        Level.MoveBack(std::min(Path.m_uiPosition - uiGoal, ARROW_POINTS_PER_FRAME));
}
