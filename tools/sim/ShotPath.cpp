#include "sim/ShotPath.h"

#include "gfx/GraphicsEngine.h"
#include "play/ChainLogic.h"
#include "sim/BallMotion.h"
#include "tracks/Level.h"

namespace
{
// The rules test tracks in order and, on each, the balls from the rear: the first within reach is hit.
const CBall* FirstHit(const CLevel& Level, const CBall& Shot, const CBallMotion* pMotion, float fElapsedMs)
{
    for(const CTrack& Track : Level.m_vTracks)
    {
        for(const CBall* pBall : Track.m_lstBalls)
        {
            const bool bHit = pMotion
                                  ? Distance(Shot.m_Position, pMotion->PositionAfter(*pBall, fElapsedMs)) < HIT_DISTANCE
                                  : CChainLogic::IsHit(Shot, *pBall);
            if(bHit)
                return pBall;
        }
    }
    return nullptr;
}
} // namespace

const CBall* PredictHit(const CLevel& Level, const CGraphicsEngine& Camera, uint32_t uiDeltaMs, float fRange,
                        const CBallMotion* pMotion)
{
    // Launched as the rules launch it, and moved by the same float operations in the same order.
    CBall Shot;
    Shot.m_Position = Camera.m_vLookAt;
    Shot.m_vDirection = Camera.m_vLookAt - Camera.m_vEye;
    Shot.m_vDirection.Normalize();
    const float fStep = static_cast<float>(uiDeltaMs) * SHOT_SPEED;
    float fTravelled = 0.0f;
    float fElapsedMs = 0.0f;
    for(uint32_t uiLife = SHOT_LIFE; uiDeltaMs < uiLife && fTravelled <= fRange; uiLife -= uiDeltaMs)
    {
        Shot.m_Position += Shot.m_vDirection * static_cast<float>(uiDeltaMs) * SHOT_SPEED;
        fTravelled += fStep;
        fElapsedMs += static_cast<float>(uiDeltaMs);
        if(const CBall* pHit = FirstHit(Level, Shot, pMotion, fElapsedMs))
            return pHit;
    }
    return nullptr;
}
