#include "sim/BallMotion.h"

#include "play/Ball.h"
#include "tracks/Level.h"

namespace
{
constexpr float SMOOTHING = 0.3f; // the share of the newest frame in the pace
}

// A ball that jumps more than its own width in one frame was put there (a shot joined or a gap closed); its
// old pace says nothing about its next move. Balls that have gone are forgotten.
void CBallMotion::Observe(const CLevel& Level, uint32_t uiDeltaMs)
{
    std::unordered_map<const CBall*, CTrail> Trails;
    const float fMs = static_cast<float>(uiDeltaMs);
    for(const CTrack& Track : Level.m_vTracks)
    {
        for(const CBall* pBall : Track.m_lstBalls)
        {
            CTrail Trail{pBall->m_Position, CVector3(0.0f, 0.0f, 0.0f)};
            const auto itOld = m_Trails.find(pBall);
            if(itOld != m_Trails.end() && fMs > 0.0f)
            {
                const CVector3 vStep = pBall->m_Position - itOld->second.m_Position;
                if(vStep.Length() <= BALL_DIAMETER)
                    Trail.m_vVelocity = itOld->second.m_vVelocity * (1.0f - SMOOTHING) + vStep * (SMOOTHING / fMs);
            }
            Trails.emplace(pBall, Trail);
        }
    }
    m_Trails.swap(Trails);
}

CPoint3 CBallMotion::PositionAfter(const CBall& Ball, float fMs) const
{
    const auto it = m_Trails.find(&Ball);
    return it == m_Trails.end() ? Ball.m_Position : Ball.m_Position + it->second.m_vVelocity * fMs;
}
