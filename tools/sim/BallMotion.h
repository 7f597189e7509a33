#pragma once
#include "math/Vector.h"

#include <cstdint>
#include <unordered_map>

class CBall;
class CLevel;

// How fast each chain ball has been moving, watched frame by frame, so that a shot can be aimed where a ball
// will be when the shot arrives rather than where it stands now: at a hundred units a shot flies half a
// second, long enough for a chain to roll a good part of a ball's width.
class CBallMotion
{
public:
    // Notes where every ball stands now; uiDeltaMs is the time since the last call.
    void Observe(const CLevel& Level, uint32_t uiDeltaMs);
    // Where the ball will stand after that many milliseconds if it keeps its pace.
    CPoint3 PositionAfter(const CBall& Ball, float fMs) const;

private:
    struct CTrail
    {
        CPoint3 m_Position;
        CVector3 m_vVelocity; // units per millisecond, smoothed over the last frames
    };
    std::unordered_map<const CBall*, CTrail> m_Trails;
};
