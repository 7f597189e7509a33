#include "EngineFixture.h"

#include <cmath>

class GraphicsEngine : public CEngineFixture
{
};

TEST_F(GraphicsEngine, FramesDrawNothingUntilInitAndInitFailsWithoutADevice)
{
    m_Engine.RenderMenuFrame();
    m_Engine.RenderPlayFrame();
    EXPECT_TRUE(m_Device.m_vLog.empty());
    m_Engine.m_fnOpenDevice = []() -> IRenderDevice* { return nullptr; };
    EXPECT_FALSE(m_Game.Init());
    ASSERT_EQ(m_Errors.Errors().size(), 1u);
    EXPECT_EQ(m_Errors.Errors()[0], "Failed to initialize Graphics Engine");
    EXPECT_TRUE(m_Game.m_Tracks.m_vFiles.empty()) << "no sound or track list without graphics";
}

TEST_F(GraphicsEngine, InitSetsTheStatesTheLightAndTheSixMaterials)
{
    Start();
    EXPECT_EQ(m_Engine.m_nScreenState, SCREEN_LOGO);
    EXPECT_EQ(m_Device.m_auiStates[RS_AMBIENT], 0xFFD2D2D2u);
    EXPECT_EQ(m_Device.m_auiStates[RS_LIGHTING], 1u);
    EXPECT_EQ(m_Device.m_auiStates[RS_ALPHABLENDENABLE], 1u);
    EXPECT_EQ(m_Device.m_auiStates[RS_SRCBLEND], BLEND_SRCALPHA);
    EXPECT_EQ(m_Device.m_auiStates[RS_DESTBLEND], BLEND_INVSRCALPHA);
    EXPECT_EQ(m_Device.m_auiStageStates[TSS_ALPHAOP], TOP_MODULATE);
    ASSERT_EQ(m_Device.m_mapLights.size(), 1u);
    EXPECT_TRUE(m_Device.m_mapLightsOn[2]) << "the one light is number 2";
    const CLight& Light = m_Device.m_mapLights[2];
    for(float f : Light.m_afDirection)
        EXPECT_NEAR(f, 0.57735f, 1e-5f);
    EXPECT_FLOAT_EQ(Light.m_Diffuse.r, 0.8f);

    const CMaterial* pYellow = m_Engine.GetBallMaterial(3, false);
    ASSERT_NE(pYellow, nullptr);
    EXPECT_FLOAT_EQ(pYellow->m_Ambient.r, 0.5f);
    EXPECT_FLOAT_EQ(pYellow->m_Emissive.g, 0.1f);
    EXPECT_FLOAT_EQ(pYellow->m_fPower, 8.0f);
    EXPECT_FLOAT_EQ(m_Engine.GetBallMaterial(4, false)->m_Diffuse.b, 0.25f);
    EXPECT_FLOAT_EQ(m_Engine.GetBallMaterial(5, false)->m_Diffuse.r, 0.65f);
    EXPECT_EQ(m_Engine.GetBallMaterial(6, false), nullptr);
    EXPECT_EQ(m_Engine.GetBallMaterial(255, true), nullptr);
    EXPECT_TRUE(m_Errors.Errors().empty());
}

TEST_F(GraphicsEngine, MenuFrameIsWhiteWithTheScreenAndTheCursorOnTop)
{
    Start();
    Frame();
    EXPECT_EQ(m_Device.m_uiClearColour, 0xFFFFFFFFu);
    ASSERT_EQ(m_Device.m_vDraws.size(), 2u);
    EXPECT_EQ(m_Device.m_vDraws[0].m_Texture, "data\\menus\\images\\kestrun.png");
    EXPECT_EQ(m_Device.m_vDraws[1].m_Texture, "data\\menus\\images\\cursor.png");
    EXPECT_EQ(m_Device.m_vLog.front(), "Clear ffffffff");
    EXPECT_EQ(m_Device.m_vLog.back(), "Present");

    for(int iState : {int(SCREEN_SPLINE_EDITOR), int(SCREEN_RESERVED), 99})
    {
        m_Engine.m_nScreenState = iState;
        m_Device.ClearRecords();
        Frame();
        ASSERT_EQ(m_Device.m_vDraws.size(), 1u) << "state " << iState;
        EXPECT_EQ(m_Device.m_vDraws[0].m_Texture, "data\\menus\\images\\cursor.png");
    }
}

TEST_F(GraphicsEngine, PowerupAlphaSwingsOneStepAFrameAtMost)
{
    Start();
    CAlphaPulse& Pulse = m_Engine.m_Pulse;
    EXPECT_EQ(m_Engine.GetBallMaterial(0, true)->m_Diffuse.a, 0.0f) << "the first swing starts from nothing";
    for(int i = 0; i < 91; i++)
        Pulse.Tick(100); // long frames: still one step each; the 91st passes 0.9 and stops there
    EXPECT_EQ(Pulse.m_fAlpha, 0.9f);
    EXPECT_FALSE(Pulse.m_bRising);
    for(int i = 0; i < 3 * 41; i++)
        Pulse.Tick(10); // 25 ms a step, the 5 ms left at each step dropped: one step every three frames
    EXPECT_EQ(Pulse.m_fAlpha, 0.5f);
    EXPECT_TRUE(Pulse.m_bRising);

    const CMaterial* pRed = m_Engine.GetBallMaterial(0, true);
    EXPECT_NEAR(pRed->m_Diffuse.a, 0.5f, 1e-5f);
    EXPECT_FLOAT_EQ(pRed->m_Diffuse.r, 0.8f);
    EXPECT_EQ(m_Engine.GetBallMaterial(0, false)->m_Diffuse.a, 1.0f) << "the table itself is untouched";
}

TEST_F(GraphicsEngine, ReleasingTwiceLetsGoOfEverythingOnceAndStopsTheFrames)
{
    Start();
    m_Engine.LoadBackground("level1.png");
    EXPECT_GT(m_Device.m_uiLiveTextures, 60u);
    m_Engine.ReleaseResources();
    EXPECT_EQ(m_Device.m_uiLiveTextures, 0u);
    EXPECT_EQ(m_Device.m_uiLiveBuffers, 0u);
    EXPECT_TRUE(m_Engine.m_lstLineSets.empty());
    m_Engine.ReleaseResources();
    m_Device.ClearRecords();
    m_Engine.RenderMenuFrame();
    EXPECT_TRUE(m_Device.m_vLog.empty());
}

// Flares live two seconds; once the last is out the list is empty again, however many bursts there were.
TEST_F(GraphicsEngine, BurstsThatHaveGoneOutLeaveNothingBehind)
{
    Start();
    CParticleSystem& Particles = m_Game.m_Particles;
    Particles.StartBurst(CPoint3(0.0f, 0.0f, 0.0f));
    Particles.StartBurst(CPoint3(1.0f, 0.0f, 0.0f));
    m_Game.m_Clock.m_nDelta = 2000;
    m_Engine.RenderPlayFrame();
    EXPECT_TRUE(Particles.m_bActive);
    EXPECT_EQ(Particles.m_lstParticles.size(), 60u);
    m_Game.m_Clock.m_nDelta = 1;
    m_Engine.RenderPlayFrame();
    EXPECT_FALSE(Particles.m_bActive);
    EXPECT_TRUE(Particles.m_lstParticles.empty());
}
