#include "gfx/GraphicsEngine.h"
#include "tracks/Level.h"

#include <cmath>

namespace
{
constexpr float TURN_FACTOR = 0.25f; // degrees for each unit of turn amount
constexpr float PITCH_LIMIT = 89.0f; // not 90, so that the view never flips
constexpr float LOOK_DISTANCE = 10.0f;
constexpr float FIELD_OF_VIEW = 0.7853982f; // vertical, a quarter of pi
constexpr float ASPECT_RATIO = 1.3333334f;
constexpr double DEGREES_TO_RADIANS = 0.017453292519943295;
const CVector3 UP(0.0f, 1.0f, 0.0f);

float Radians(float fDegrees)
{
    return static_cast<float>(fDegrees * DEGREES_TO_RADIANS);
}
} // namespace

void CGraphicsEngine::TurnLeft(float fAmount)
{
    m_fYaw -= TURN_FACTOR * std::fabs(fAmount);
    if(m_fYaw < 0.0f)
        m_fYaw += 360.0f;
}

void CGraphicsEngine::TurnRight(float fAmount)
{
    m_fYaw += TURN_FACTOR * std::fabs(fAmount);
    if(m_fYaw > 360.0f)
        m_fYaw -= 360.0f;
}

void CGraphicsEngine::TurnUp(float fAmount)
{
    m_fPitch -= TURN_FACTOR * std::fabs(fAmount);
    if(m_fPitch <= -PITCH_LIMIT)
        m_fPitch = -PITCH_LIMIT;
}

void CGraphicsEngine::TurnDown(float fAmount)
{
    m_fPitch += TURN_FACTOR * std::fabs(fAmount);
    if(m_fPitch >= PITCH_LIMIT)
        m_fPitch = PITCH_LIMIT;
}

// Walking ignores the pitch: the look-at point is taken at the eye's height.
CVector3 CGraphicsEngine::WalkForward() const
{
    CVector3 vForward = m_vLookAt - m_vEye;
    vForward.y() = 0.0f;
    return vForward.Normalize();
}

void CGraphicsEngine::MoveForward(float fAmount)
{
    m_vEye += WalkForward() * fAmount;
}

void CGraphicsEngine::MoveBack(float fAmount)
{
    m_vEye -= WalkForward() * fAmount;
}

// Forward times up points to the left in this left-handed world: -x when looking along +z.
void CGraphicsEngine::MoveLeft(float fAmount)
{
    m_vEye += Cross(WalkForward(), UP) * fAmount;
}

void CGraphicsEngine::MoveRight(float fAmount)
{
    m_vEye -= Cross(WalkForward(), UP) * fAmount;
}

void CGraphicsEngine::MoveUp(float fAmount)
{
    m_vEye += UP * fAmount;
}

void CGraphicsEngine::MoveDown(float fAmount)
{
    m_vEye -= UP * fAmount;
}

// (0, 0, 10) turned about x by the pitch, then about y by the yaw, as row vectors on rotation matrices.
void CGraphicsEngine::UpdateLookAt()
{
    const float fPitch = Radians(m_fPitch), fYaw = Radians(m_fYaw);
    const float fCosP = std::cos(fPitch), fSinP = std::sin(fPitch);
    const CVector3 vPitched(0.0f, -LOOK_DISTANCE * fSinP, LOOK_DISTANCE * fCosP);
    const float fCosY = std::cos(fYaw), fSinY = std::sin(fYaw);
    const CVector3 vLook(vPitched.z() * fSinY, vPitched.y(), vPitched.z() * fCosY);
    m_vLookAt = m_vEye + vLook;
}

void CGraphicsEngine::SetupCamera(float fNear, float fFar)
{
    // On a level with a camera path the eye always goes back to the path; the fly keys move it only where
    // there is none.
    if(m_pLevel && m_pLevel->m_ucNumCameraPaths != 0 && m_pLevel->m_ucCurrentPath < m_pLevel->m_vCameraPaths.size())
    {
        const CCameraPath& Path = m_pLevel->m_vCameraPaths[m_pLevel->m_ucCurrentPath];
        if(Path.m_uiPosition < Path.m_Spline.m_vPoints.size())
            m_vEye = Path.m_Spline.m_vPoints[Path.m_uiPosition];
    }
    UpdateLookAt();
    m_matProjection = PerspectiveFovLH(FIELD_OF_VIEW, ASPECT_RATIO, fNear, fFar);
    m_matView = LookAtLH(m_vEye, m_vLookAt, UP);
    if(m_pDevice)
    {
        m_pDevice->SetTransform(TRANSFORM_PROJECTION, m_matProjection);
        m_pDevice->SetTransform(TRANSFORM_VIEW, m_matView);
    }
}

CMatrixData PerspectiveFovLH(float fFovY, float fAspect, float fNear, float fFar)
{
    const float fYScale = 1.0f / std::tan(fFovY / 2.0f);
    const float fXScale = fYScale / fAspect;
    const float fDepth = fFar / (fFar - fNear);
    return {fXScale, 0, 0, 0, 0, fYScale, 0, 0, 0, 0, fDepth, 1, 0, 0, -fNear * fDepth, 0};
}

CMatrixData LookAtLH(const CPoint3& Eye, const CPoint3& At, const CVector3& Up)
{
    CVector3 z = At - Eye;
    z.Normalize();
    CVector3 x = Cross(Up, z);
    x.Normalize();
    const CVector3 y = Cross(z, x);
    const CVector3 e = Eye - CPoint3(0.0f, 0.0f, 0.0f);
    return {x.x(), y.x(), z.x(), 0, x.y(),      y.y(),      z.y(),      0,
            x.z(), y.z(), z.z(), 0, -Dot(x, e), -Dot(y, e), -Dot(z, e), 1};
}
