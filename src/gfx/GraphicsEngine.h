#pragma once
#include "math/Vector.h"
#include "platform/RenderDevice.h"

class CLevel;

enum
{
    SCREEN_MAIN_MENU = 14,
    SCREEN_SINGLE_PLAYER = 15,
    SCREEN_LOBBY = 16,
    SCREEN_CONNECT = 17,
    SCREEN_SPLINE_EDITOR = 18,
    SCREEN_OPTIONS = 19,
    SCREEN_RESERVED = 20,
    SCREEN_PLAY = 21,
    SCREEN_CREDITS = 22,
    SCREEN_LOGO = 23,
    SCREEN_RESULTS = 24,
};

// Everything on the screen. It also holds the camera, which is the player's gun sight as well: a shot leaves
// from the point looked at, along the line of sight.
class CGraphicsEngine
{
public:
    static constexpr float NEAR_PLANE = 0.1f;
    static constexpr float FAR_PLANE = 750.0f;

    // The turns take a positive amount whatever its sign, so that the name alone says the direction.
    void TurnLeft(float fAmount);
    void TurnRight(float fAmount);
    void TurnUp(float fAmount);
    void TurnDown(float fAmount);
    void MoveForward(float fAmount);
    void MoveBack(float fAmount);
    void MoveLeft(float fAmount);
    void MoveRight(float fAmount);
    void MoveUp(float fAmount);
    void MoveDown(float fAmount);
    void UpdateLookAt();
    // Puts the eye on the camera path in use, looks along the angles and hands view and projection to the
    // device. Runs in each play frame.
    void SetupCamera(float fNear, float fFar);

    int m_nScreenState = 0;
    CPoint3 m_vEye{0.0f, 0.0f, 0.0f};
    CPoint3 m_vLookAt{0.0f, 0.0f, 0.0f}; // 10 units ahead of the eye; worked out in each play frame
    float m_fYaw = 0.0f;                 // degrees about y; 0 looks along +z, growing turns towards +x
    float m_fPitch = 0.0f;               // degrees; growing values look down; within -89 and 89
    CMatrixData m_matView{};
    CMatrixData m_matProjection{};

    CLevel* m_pLevel = nullptr; // the level whose camera path the eye rides
    IRenderDevice* m_pDevice = nullptr;

private:
    CVector3 WalkForward() const;
};

// The view and projection matrices of a left-handed world, as the game was first drawn with.
CMatrixData PerspectiveFovLH(float fFovY, float fAspect, float fNear, float fFar);
CMatrixData LookAtLH(const CPoint3& Eye, const CPoint3& At, const CVector3& Up);
