#include "TestSupport.h"
#include "gfx/GraphicsEngine.h"
#include "tracks/Level.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace
{
// A level of camera paths along the x axis, each built from ten control points one unit apart.
void AddPaths(CLevel& Level, int iCount)
{
    for(int i = 0; i < iCount; i++)
    {
        CCameraPath Path;
        Path.m_Spline.m_uiDegree = 3;
        for(int k = 0; k < 10; k++)
            Path.m_Spline.m_vControlPoints.emplace_back(k, i, 0);
        Level.m_vCameraPaths.push_back(Path);
        Level.m_vCameraPaths.back().m_Spline.Build();
    }
    Level.FinishLoad();
}
} // namespace

TEST(LevelObject, TheEyeStopsAtTheEndsOfItsPath)
{
    CLevel Level;
    Level.MoveForward(5); // no path: nothing to move along
    Level.MoveBack(5);
    Level.NextCameraPath();
    EXPECT_EQ(Level.m_ucCurrentPath, 0);

    AddPaths(Level, 1);
    CCameraPath& Path = Level.m_vCameraPaths[0];
    const uint32_t uiLast = Path.m_Spline.m_uiNumPoints - 1;
    Level.MoveForward(10);
    Level.MoveForward(20);
    EXPECT_EQ(Path.m_uiPosition, 30u);
    Level.MoveBack(20);
    EXPECT_EQ(Path.m_uiPosition, 10u);
    Level.MoveBack(30);
    EXPECT_EQ(Path.m_uiPosition, 0u);
    Level.MoveForward(uiLast + 7);
    EXPECT_EQ(Path.m_uiPosition, uiLast);
    Level.MoveForward(0xFFFFFFFFu);
    EXPECT_EQ(Path.m_uiPosition, uiLast) << "a huge step must not wrap round";
}

TEST(LevelObject, ChangingPathsCyclesAndRestoresEachPathsView)
{
    CGraphicsEngine Graphics;
    CLevel Level;
    Level.m_pGraphics = &Graphics;
    AddPaths(Level, 3);
    EXPECT_EQ(Graphics.m_vEye, Level.m_vCameraPaths[0].m_Spline.m_vPoints[0]);

    Graphics.m_fYaw = 30.0f;
    Graphics.m_fPitch = 12.0f;
    Level.MoveForward(4);
    Level.NextCameraPath();
    EXPECT_EQ(Level.m_ucCurrentPath, 1);
    EXPECT_EQ(Graphics.m_fYaw, 0.0f) << "a path not used yet turns the view to 0, 0";
    EXPECT_EQ(Graphics.m_fPitch, 0.0f);
    Graphics.m_fYaw = 200.0f;
    Level.NextCameraPath();
    EXPECT_EQ(Level.m_ucCurrentPath, 2);
    Level.NextCameraPath();
    EXPECT_EQ(Level.m_ucCurrentPath, 0);
    EXPECT_EQ(Graphics.m_fYaw, 30.0f);
    EXPECT_EQ(Graphics.m_fPitch, 12.0f);
    EXPECT_EQ(Level.m_vCameraPaths[0].m_uiPosition, 4u);
    Level.NextCameraPath();
    EXPECT_EQ(Graphics.m_fYaw, 200.0f);
}

TEST(LevelObject, ColourQueuesAndCounts)
{
    CLevel Level;
    Level.CountColours();
    EXPECT_EQ(Level.m_vColoursLeft, std::vector<uint32_t>(6, 0));
    EXPECT_FALSE(Level.m_bColoursLeft);

    CTrack Empty;
    Empty.FillColourQueue(0);
    EXPECT_TRUE(Empty.m_vColourQueue.empty());
    EXPECT_EQ(Empty.m_vColourCounts, std::vector<uint32_t>(6, 0));

    // Colours fall in stretches: a ball repeats its predecessor with 0.48 + 0.52 / 6, about 0.567.
    std::srand(7);
    CTrack Long;
    Long.FillColourQueue(200000);
    size_t Repeats = 0;
    for(size_t i = 1; i < Long.m_vColourQueue.size(); i++)
        Repeats += Long.m_vColourQueue[i] == Long.m_vColourQueue[i - 1];
    EXPECT_NEAR(static_cast<double>(Repeats) / 199999.0, 0.48 + 0.52 / 6, 0.01);
    EXPECT_EQ(Long.m_ucLastColour, Long.m_vColourQueue.back());

    Level.m_vTracks.push_back(Long);
    Level.m_vTracks.push_back(Long);
    Level.CountColours();
    EXPECT_TRUE(Level.m_bColoursLeft);
    for(int c = 0; c < 6; c++)
        EXPECT_EQ(Level.m_vColoursLeft[c], 2 * Long.m_vColourCounts[c]);
}

TEST(LevelObject, LinesFollowTheRawSamples)
{
    CLevel Level;
    AddPaths(Level, 1);
    const CCameraPath& Path = Level.m_vCameraPaths[0];
    const CBSpline& Spline = Path.m_Spline;
    ASSERT_EQ(Path.m_Lines.m_uiNumLines, Spline.m_uiNumSamples - 1);
    ASSERT_EQ(Path.m_Lines.m_vVertices.size(), 2u * Path.m_Lines.m_uiNumLines);
    for(size_t i = 0; i < Path.m_Lines.m_vVertices.size(); i++)
    {
        const CLineVertex& V = Path.m_Lines.m_vVertices[i];
        const CPoint3& Sample = Spline.m_vSamples[i / 2 + i % 2];
        EXPECT_EQ(CPoint3(V.m_fX, V.m_fY, V.m_fZ), Sample);
        EXPECT_EQ(V.m_uiColour, 0x7F00FFFFu);
    }

    CCurveLines Lines = Path.m_Lines;
    BuildLines(CBSpline(), Lines);
    EXPECT_TRUE(Lines.m_vVertices.empty()) << "a curve without samples drops its old lines and gets none";
}

TEST(LevelObject, ClearFreesTheChainsAndKeepsWhatRunsOn)
{
    CLevel Level;
    AddPaths(Level, 2);
    Level.m_vTracks.emplace_back();
    Level.m_vTracks[0].m_lstBalls.push_back(new CBall);
    Level.m_vTracks[0].m_pPusher = new CBall;
    Level.m_lstShots.push_back(new CBall);
    Level.m_ucCurrentPath = 1;
    Level.m_bWon = true;

    // A copy of a track record is the record alone: each ball keeps its one holder.
    const CTrack Copy = Level.m_vTracks[0];
    EXPECT_TRUE(Copy.m_lstBalls.empty());
    EXPECT_EQ(Copy.m_pPusher, nullptr);

    Level.Clear(); // the sanitizer build reports any ball left behind
    EXPECT_TRUE(Level.m_vTracks.empty());
    EXPECT_TRUE(Level.m_vCameraPaths.empty());
    EXPECT_EQ(Level.m_ucNumCameraPaths, 0);
    EXPECT_EQ(Level.m_lstShots.size(), 1u);
    EXPECT_EQ(Level.m_ucCurrentPath, 1);
    EXPECT_TRUE(Level.m_bWon);
}
