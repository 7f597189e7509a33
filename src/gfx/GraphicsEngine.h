#pragma once
#include "math/Vector.h"

// The engine also holds the camera: where the eye stands and where it looks. A level load places the eye and
// may set the angles; changing camera paths swaps the angles.
class CGraphicsEngine
{
public:
    CPoint3 m_vEye{0.0f, 0.0f, 0.0f};
    CPoint3 m_vLookAt{0.0f, 0.0f, 0.0f};
    float m_fYaw = 0.0f;   // degrees about y; 0 looks along +z, growing turns towards +x
    float m_fPitch = 0.0f; // degrees; growing values look down
};
