#include "EngineFixture.h"

#include "platform/interfaces/SphereGeometry.h"

#include <cmath>
#include <cstring>

class WorldRender : public CEngineFixture
{
protected:
    // Level 1 after two seconds of play, when its chain has rolled in; then a clean record of one frame.
    void PlayLevelOne()
    {
        Start();
        m_Game.StartLevel("tests/data/level1.txt");
        for(int i = 0; i < 200; i++)
            Frame();
        m_Device.ClearRecords();
    }
    static CPoint3 Translation(const CMatrixData& m) { return CPoint3(m[12], m[13], m[14]); }
};

TEST_F(WorldRender, APlayFrameDrawsLinesShotsChainsBackgroundAndTheAimBallInThatOrder)
{
    PlayLevelOne();
    m_Game.m_Logic.Fire();
    const CTrack& Track = m_Game.m_Level.m_vTracks[0];
    ASSERT_GE(Track.m_lstBalls.size(), 3u);
    ASSERT_EQ(m_Game.m_Level.m_lstShots.size(), 1u);
    m_Engine.RenderPlayFrame();

    EXPECT_EQ(m_Device.m_uiClearColour, 0xFF006478u);
    const std::vector<CDraw>& vDraws = m_Device.m_vDraws;
    const size_t uHudSprites = 5; // panels, danger face, next ball
    ASSERT_EQ(vDraws.size(), 1 + 1 + Track.m_lstBalls.size() + 1 + uHudSprites + 1);
    const CDraw& Lines = vDraws.front();
    EXPECT_EQ(Lines.m_Type, PT_LINELIST);
    EXPECT_EQ(Lines.m_uiCount, Track.m_Spline.m_uiNumSamples - 1);
    EXPECT_EQ(Lines.m_auiStates[RS_LIGHTING], 0u) << "lines carry their own colour";
    EXPECT_FALSE(Lines.m_bOutsideBuffer);
    uint32_t uiColour;
    std::memcpy(&uiColour, Lines.m_vVertices.data() + 12, 4);
    EXPECT_EQ(uiColour, 0x7F00FFFFu);

    const CBall& Shot = *m_Game.m_Level.m_lstShots.front();
    EXPECT_EQ(vDraws[1].m_Type, PT_MESH);
    EXPECT_EQ(Translation(vDraws[1].m_World), Shot.m_Position) << "shots before chains";
    EXPECT_EQ(vDraws[1].m_auiStates[RS_LIGHTING], 1u);
    size_t i = 2;
    for(const CBall* pBall : Track.m_lstBalls)
    {
        EXPECT_EQ(Translation(vDraws[i].m_World), pBall->m_Position);
        EXPECT_FLOAT_EQ(vDraws[i].m_World[0], 1.38f);
        EXPECT_FLOAT_EQ(vDraws[i].m_Material.m_Diffuse.r, m_Engine.m_aMaterials[pBall->m_ucColour].m_Diffuse.r);
        i++;
    }
    EXPECT_EQ(vDraws[i].m_Type, PT_TRIANGLESTRIP) << "the level's picture after the world";
    EXPECT_EQ(vDraws[i].m_Texture, "data\\hud\\images\\bg_dawn.png");
    const CDraw& Aim = vDraws.back();
    EXPECT_EQ(Translation(Aim.m_World), m_Engine.m_vLookAt);
    EXPECT_FLOAT_EQ(Aim.m_World[10], 0.1f);
    EXPECT_EQ(Aim.m_Material.m_Diffuse.g, m_Engine.m_aMaterials[m_Game.m_Level.m_ucShotColour].m_Diffuse.g);
}

TEST_F(WorldRender, PowerupBallsPulseEachInItsOwnColour)
{
    PlayLevelOne();
    auto It = m_Game.m_Level.m_vTracks[0].m_lstBalls.begin();
    CBall& First = **It++;
    CBall& Second = **It;
    First.m_ucColour = 0;
    Second.m_ucColour = 2;
    First.m_bPowerup = Second.m_bPowerup = true;
    m_Engine.RenderPlayFrame();
    const std::vector<CDraw> vBalls = DrawsOf(PT_MESH);
    const float fAlpha = m_Engine.m_Pulse.m_fAlpha;
    EXPECT_GT(fAlpha, 0.0f);
    EXPECT_EQ(vBalls[0].m_Material.m_Diffuse.a, fAlpha);
    EXPECT_FLOAT_EQ(vBalls[0].m_Material.m_Diffuse.r, 0.8f);
    EXPECT_EQ(vBalls[1].m_Material.m_Diffuse.a, fAlpha);
    EXPECT_FLOAT_EQ(vBalls[1].m_Material.m_Diffuse.b, 0.8f);
    EXPECT_EQ(vBalls[1].m_Material.m_Diffuse.r, 0.0f);
    EXPECT_EQ(vBalls.back().m_Material.m_Diffuse.a, 1.0f) << "the aim ball never pulses";
}

TEST_F(WorldRender, ALevelWithoutTracksShowsOnlyTheAimBallAndTheAxesAreBuiltNotShown)
{
    Start();
    CTempFile File("Playtime: 1 min 0 sec\nEnd\n");
    m_Game.StartLevel(File.Path());
    m_Device.ClearRecords();
    m_Engine.RenderPlayFrame();
    const std::vector<CDraw> vBalls = DrawsOf(PT_MESH);
    ASSERT_EQ(vBalls.size(), 1u);
    EXPECT_FLOAT_EQ(vBalls[0].m_World[0], 0.1f);
    EXPECT_TRUE(DrawsOf(PT_LINELIST).empty());

    ASSERT_EQ(m_Engine.m_lstLineSets.size(), 1u);
    m_Device.ClearRecords();
    m_Engine.DrawLineSets();
    ASSERT_EQ(m_Device.m_vDraws.size(), 1u);
    EXPECT_EQ(m_Device.m_vDraws[0].m_uiCount, 6u);
    uint32_t auiColours[12];
    for(size_t i = 0; i < 12; i++)
        std::memcpy(&auiColours[i], m_Device.m_vDraws[0].m_vVertices.data() + 16 * i + 12, 4);
    EXPECT_EQ(auiColours[3], 0xFF640000u) << "towards -x in dark red";
    EXPECT_EQ(auiColours[9], 0xFF0000FFu);
}

TEST_F(WorldRender, TheSphereIsTenByTenAndWoundClockwiseSeenFromOutside)
{
    const CSphereGeometry Sphere = BuildSphere(1.0f, 10, 10);
    EXPECT_EQ(Sphere.m_vVertices.size(), 92u);
    ASSERT_EQ(Sphere.m_vIndices.size(), 3u * 180u);
    for(const CMeshVertex& v : Sphere.m_vVertices)
    {
        EXPECT_NEAR(std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z), 1.0f, 1e-6f);
        EXPECT_NEAR(v.nx, v.x, 1e-6f);
    }
    for(size_t i = 0; i < Sphere.m_vIndices.size(); i += 3)
    {
        const CMeshVertex& a = Sphere.m_vVertices[Sphere.m_vIndices[i]];
        const CMeshVertex& b = Sphere.m_vVertices[Sphere.m_vIndices[i + 1]];
        const CMeshVertex& c = Sphere.m_vVertices[Sphere.m_vIndices[i + 2]];
        const CVector3 Normal =
            Cross(CVector3(b.x - a.x, b.y - a.y, b.z - a.z), CVector3(c.x - a.x, c.y - a.y, c.z - a.z));
        // In a left-handed world a face seen clockwise has its cross product towards the viewer.
        EXPECT_GT(Dot(Normal, CVector3(a.x + b.x + c.x, a.y + b.y + c.y, a.z + b.z + c.z)), 0.0f)
            << "triangle " << i / 3;
    }
}
