#pragma once
#include "math/BSpline.h"
#include "tracks/CurveLines.h"

#include <cstdint>

// A curve the player's eye rides on, with the place and the view angles the player left it with.
class CCameraPath
{
public:
    CCurveLines m_Lines;
    CBSpline m_Spline;
    uint32_t m_uiPosition = 0; // index into m_Spline.m_vPoints
    float m_fYaw = 0.0f;
    float m_fPitch = 0.0f;
};
