#include "app/Game.h"
#include "platform/twins/RecordingRenderDevice.h"

#include <gtest/gtest.h>

TEST(Camera, TurnsWrapTheYawAndStopThePitchShortOfTheVertical)
{
    CGraphicsEngine Camera;
    Camera.TurnRight(-20.0f / 5.0f); // a mouse count of 20 is one degree, whatever the sign
    EXPECT_EQ(Camera.m_fYaw, 1.0f);
    Camera.TurnLeft(8.0f);
    EXPECT_EQ(Camera.m_fYaw, 359.0f);
    Camera.TurnRight(4.0f);
    EXPECT_EQ(Camera.m_fYaw, 360.0f) << "exactly 360 stays until the next turn";
    Camera.TurnLeft(0.0f);
    EXPECT_EQ(Camera.m_fYaw, 360.0f);
    for(int i = 0; i < 100; i++)
        Camera.TurnUp(20.0f);
    EXPECT_EQ(Camera.m_fPitch, -89.0f);
    Camera.TurnDown(1000.0f);
    EXPECT_EQ(Camera.m_fPitch, 89.0f);
}

TEST(Camera, TheLookAtPointLiesTenUnitsAlongTheSight)
{
    CGraphicsEngine Camera;
    Camera.m_vEye = CPoint3(1.0f, 2.0f, 3.0f);
    Camera.UpdateLookAt();
    EXPECT_EQ(Camera.m_vLookAt, CPoint3(1.0f, 2.0f, 13.0f)) << "yaw 0 looks along +z";
    Camera.m_fYaw = 90.0f;
    Camera.m_fPitch = 30.0f;
    Camera.UpdateLookAt();
    const CVector3 Sight = Camera.m_vLookAt - Camera.m_vEye;
    EXPECT_NEAR(Sight.x(), 8.660254f, 1e-5f) << "growing yaw turns towards +x";
    EXPECT_NEAR(Sight.y(), -5.0f, 1e-5f) << "growing pitch looks down";
    EXPECT_NEAR(Sight.z(), 0.0f, 1e-5f);
    for(float fYaw : {13.0f, 200.0f, 359.0f})
    {
        Camera.m_fYaw = fYaw;
        Camera.m_fPitch = -71.0f;
        Camera.UpdateLookAt();
        EXPECT_NEAR((Camera.m_vLookAt - Camera.m_vEye).Length(), 10.0f, 1e-5f);
    }
}

TEST(Camera, FlyKeysWalkLevelAndTheLeftIsMinusXLookingAlongZ)
{
    CGraphicsEngine Camera;
    Camera.m_fPitch = 45.0f; // walking ignores the pitch
    Camera.UpdateLookAt();
    Camera.MoveForward(1.1f);
    EXPECT_EQ(Camera.m_vEye, CPoint3(0.0f, 0.0f, 1.1f));
    Camera.UpdateLookAt(); // a move leaves the look-at point to the next frame
    Camera.MoveLeft(2.0f);
    EXPECT_EQ(Camera.m_vEye, CPoint3(-2.0f, 0.0f, 1.1f));
    for(auto pMove : {&CGraphicsEngine::MoveUp, &CGraphicsEngine::MoveRight, &CGraphicsEngine::MoveBack})
    {
        Camera.UpdateLookAt();
        (Camera.*pMove)(pMove == &CGraphicsEngine::MoveBack ? 1.1f : 2.0f);
    }
    Camera.MoveDown(1.0f);
    EXPECT_EQ(Camera.m_vEye, CPoint3(0.0f, 1.0f, 0.0f));
}

TEST(Camera, SetupPutsTheEyeOnThePathAndHandsTheMatricesToTheDevice)
{
    CGame Game;
    CRecordingRenderDevice Device;
    CGraphicsEngine& Camera = Game.m_Graphics;
    Camera.m_pDevice = &Device;
    CCameraPath& Path = Game.m_Level.m_vCameraPaths.emplace_back();
    Path.m_Spline.m_vPoints = {CPoint3(0, 5, 0), CPoint3(0, 5, 1), CPoint3(0, 5, 2)};
    Path.m_uiPosition = 2;
    Game.m_Level.m_ucNumCameraPaths = 1;
    Camera.MoveForward(50.0f); // the path wins over the fly keys
    Camera.SetupCamera(0.1f, 750.0f);
    EXPECT_EQ(Camera.m_vEye, CPoint3(0, 5, 2));
    EXPECT_EQ(Camera.m_vLookAt, CPoint3(0, 5, 12));
    ASSERT_EQ(Device.m_vTransforms.size(), 2u);
    EXPECT_EQ(Device.m_vTransforms[0].m_Kind, TRANSFORM_PROJECTION);
    EXPECT_EQ(Device.m_vTransforms[1].m_Kind, TRANSFORM_VIEW);
    const CMatrixData& P = Device.m_vTransforms[0].m_Matrix;
    EXPECT_NEAR(P[5], 2.4142137f, 1e-6f) << "45 degrees of vertical view";
    EXPECT_NEAR(P[0], 2.4142137f / 1.3333334f, 1e-6f);
    EXPECT_NEAR(P[10], 750.0f / 749.9f, 1e-6f);
    EXPECT_EQ(P[11], 1.0f) << "left-handed: depth grows along the sight";
    const CMatrixData& V = Device.m_vTransforms[1].m_Matrix;
    EXPECT_NEAR(V[13], -5.0f, 1e-6f) << "the eye's height moves the world down";
    EXPECT_NEAR(V[14], -2.0f, 1e-6f);
}
