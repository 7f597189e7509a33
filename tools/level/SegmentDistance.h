#pragma once
#include "math/Vector.h"

// How near two straight segments come, and a point midway between their nearest points.
struct CSegmentApproach
{
    float m_fDistance;
    CPoint3 m_Where;
};

// fEnough lets a pair that can't come nearer than that be skipped with a cheap test of their bounding spheres;
// its distance is then only known to be at least fEnough.
CSegmentApproach SegmentApproach(const CPoint3& a0, const CPoint3& a1, const CPoint3& b0, const CPoint3& b1,
                                 float fEnough);
