#include "tracks/TrackFile.h"
#include "TestSupport.h"
#include "gfx/GraphicsEngine.h"
#include "tracks/Level.h"
#include "tracks/TrackList.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

namespace
{
std::string Points(int iCount, const char* pSeparator = ", ")
{
    std::ostringstream Text;
    for(int i = 0; i < iCount; i++)
        Text << i * 1.5f << pSeparator << (i % 3) * 0.5f << pSeparator << -i * 0.25f << "\n";
    return Text.str();
}

const std::string EXAMPLE = "Background: sky.png\n"
                            "Playtime: 3 min 30 sec\n"
                            "Initial camera yaw and pitch: 45.0 and -10.0\n"
                            "Camera: 12 points, degree 3 :\n" +
                            Points(12) + "Track: 20 points, degree 3 balls 60 interval 700 points follow\n" +
                            Points(20) + "End\n";

struct CLoaded
{
    CGraphicsEngine m_Graphics;
    CLevel m_Level;
    bool m_bResult;

    explicit CLoaded(const std::string& Text, uint32_t uiRound = 1)
    {
        m_Level.m_pGraphics = &m_Graphics;
        CTempFile File(Text);
        m_bResult = m_Level.Load(File.Path(), uiRound);
    }
};
} // namespace

TEST(TrackFile, ReadsEverySectionOfALevel)
{
    CErrorRecorder Errors;
    CLoaded L(EXAMPLE);
    EXPECT_TRUE(L.m_bResult);
    EXPECT_TRUE(Errors.Errors().empty());
    EXPECT_STREQ(L.m_Level.m_szBackground, "sky.png");
    EXPECT_EQ(L.m_Level.m_Countdown.m_nRemaining, 210000u);
    EXPECT_EQ(L.m_Graphics.m_fYaw, 45.0f);
    EXPECT_EQ(L.m_Graphics.m_fPitch, -10.0f);
    ASSERT_EQ(L.m_Level.m_ucNumCameraPaths, 1);
    ASSERT_EQ(L.m_Level.m_ucNumTracks, 1);
    const CTrack& Track = L.m_Level.m_vTracks[0];
    EXPECT_EQ(Track.m_Spline.m_vControlPoints.size(), 20u);
    EXPECT_EQ(Track.m_Spline.m_vControlPoints[3], CPoint3(4.5f, 0.0f, -0.75f));
    EXPECT_EQ(Track.m_Spline.m_uiDegree, 3u);
    EXPECT_EQ(Track.m_vColourQueue.size(), 60u);
    EXPECT_EQ(Track.m_uiInterval, 580u) << "700 * 0.83 in round 1";
    EXPECT_GT(Track.m_Spline.m_uiNumPoints, 2u);
    EXPECT_EQ(L.m_Graphics.m_vEye, L.m_Level.m_vCameraPaths[0].m_Spline.m_vPoints[0]);
    EXPECT_TRUE(L.m_Level.m_bColoursLeft);
}

TEST(TrackFile, TagsReadInEitherCaseButOnlyAnUpperCaseEEnds)
{
    std::string Lower = EXAMPLE;
    for(const char* pTag : {"Background", "Playtime", "Initial", "Camera", "Track"})
        Lower[Lower.find(pTag)] = static_cast<char>(std::tolower(pTag[0]));
    Lower.replace(Lower.find("End"), 3, "end\nTrack: 0 points, degree 3 balls 7 interval 100 : :\nEnd");
    CErrorRecorder Errors;
    CLoaded L(Lower);
    EXPECT_TRUE(L.m_bResult);
    EXPECT_STREQ(L.m_Level.m_szBackground, "sky.png");
    EXPECT_EQ(L.m_Level.m_Countdown.m_nRemaining, 210000u);
    EXPECT_EQ(L.m_Graphics.m_fYaw, 45.0f);
    EXPECT_EQ(L.m_Level.m_ucNumCameraPaths, 1);
    ASSERT_EQ(L.m_Level.m_ucNumTracks, 2) << "a lower-case e is skipped like any byte";
    EXPECT_TRUE(L.m_Level.m_vTracks[1].m_Spline.m_vPoints.empty()) << "a track of no points is kept";
    EXPECT_EQ(L.m_Level.m_vTracks[1].m_vColourQueue.size(), 7u);
}

TEST(TrackFile, SeparatorsAreAnySingleByte)
{
    const std::string Head = "P: 2 min 5 sec\nC: 5 points, degree 3 :\n";
    CLoaded Commas(Head + Points(5, ",") + "E");
    CLoaded Blanks(Head + Points(5, " ") + "E");
    CLoaded Semicolons(Head + Points(5, ";") + "E", 7);
    for(const CLoaded* pL : {&Commas, &Blanks, &Semicolons})
    {
        EXPECT_TRUE(pL->m_bResult);
        ASSERT_EQ(pL->m_Level.m_vCameraPaths.size(), 1u);
        EXPECT_EQ(pL->m_Level.m_vCameraPaths[0].m_Spline.m_vControlPoints,
                  Commas.m_Level.m_vCameraPaths[0].m_Spline.m_vControlPoints);
        EXPECT_EQ(pL->m_Level.m_Countdown.m_nRemaining, 125000u) << "the round scales only the interval";
    }
}

TEST(TrackFile, CountsOfZeroAndIndependentTracks)
{
    CLoaded L("C: 0 points, degree 3 :\n"
              "T: 0 points, degree 3 balls 0 interval 500 : :\n"
              "T: 4 points, degree 3 balls 200 interval 500 : :\n" +
              Points(4) + "E");
    EXPECT_EQ(L.m_Level.m_ucNumCameraPaths, 0) << "a camera path of no points is not kept";
    EXPECT_EQ(L.m_Graphics.m_vEye, CPoint3(0, 0, 0));
    ASSERT_EQ(L.m_Level.m_ucNumTracks, 2);
    const CTrack& Empty = L.m_Level.m_vTracks[0];
    EXPECT_TRUE(Empty.m_vColourQueue.empty());
    EXPECT_EQ(Empty.m_vColourCounts, std::vector<uint32_t>(6, 0));
    const CTrack& Full = L.m_Level.m_vTracks[1];
    uint32_t uiCounted = 0;
    for(int c = 0; c < 6; c++)
    {
        EXPECT_EQ(Full.m_vColourCounts[c], std::count(Full.m_vColourQueue.begin(), Full.m_vColourQueue.end(), c));
        uiCounted += Full.m_vColourCounts[c];
        EXPECT_EQ(L.m_Level.m_vColoursLeft[c], Full.m_vColourCounts[c]);
    }
    EXPECT_EQ(uiCounted, 200u);
    EXPECT_EQ(Full.m_uiInterval, 414u);
}

TEST(TrackFile, IntervalShrinksByThePowerOfTheRound)
{
    struct SRow
    {
        uint32_t m_uiRound, m_aui[4];
    };
    const SRow aTable[] = {{1, {82, 414, 829, 1659}}, {2, {68, 344, 688, 1377}}, {3, {57, 285, 571, 1143}},
                           {4, {47, 237, 474, 949}},  {5, {39, 196, 393, 787}},  {6, {32, 163, 326, 653}},
                           {8, {22, 112, 225, 450}},  {10, {15, 77, 155, 310}}};
    const uint32_t auiFileValues[4] = {100, 500, 1000, 2000};
    for(const SRow& Row : aTable)
    {
        for(int i = 0; i < 4; i++)
            EXPECT_EQ(ScaleInterval(auiFileValues[i], Row.m_uiRound), Row.m_aui[i]) << "round " << Row.m_uiRound;
    }
    EXPECT_EQ(ScaleInterval(0xFFFFFFFFu, 0), 0xFFFFFFFFu) << "no overflow past the 32 bits";
}

TEST(TrackFile, MissingFileLeavesTheLevelAsItWas)
{
    CErrorRecorder Errors;
    CLoaded L(EXAMPLE);
    ASSERT_EQ(L.m_Level.m_ucNumTracks, 1);
    EXPECT_FALSE(L.m_Level.Load("/nonexistent/level9.txt", 1));
    ASSERT_EQ(Errors.Errors().size(), 1u);
    EXPECT_EQ(Errors.Errors()[0], "ERROR: /nonexistent/level9.txt doesn't exist.");
    EXPECT_EQ(L.m_Level.m_ucNumTracks, 1);
    EXPECT_STREQ(L.m_Level.m_szBackground, "sky.png");
}

TEST(TrackFile, AFileCutShortKeepsItsWholeSectionsAndSaysSo)
{
    CErrorRecorder Errors;
    const std::string Cut = EXAMPLE.substr(0, EXAMPLE.find("Track:") + 90); // inside the track's points
    CTempFile File(Cut);
    CLevel Level;
    Level.m_ucCurrentPath = 9; // left over from a level with more paths
    EXPECT_FALSE(Level.Load(File.Path(), 1));
    ASSERT_EQ(Errors.Errors().size(), 1u);
    EXPECT_EQ(Errors.Errors()[0], std::string("ERROR: ") + File.Path() + " is damaged or ends before its E.");
    EXPECT_EQ(Level.m_ucNumCameraPaths, 1);
    EXPECT_EQ(Level.m_ucNumTracks, 0) << "the track broke off inside its points";
    EXPECT_EQ(Level.m_ucCurrentPath, 0) << "the path in use must be one the level has";
    EXPECT_EQ(Level.m_Countdown.m_nRemaining, 210000u);

    CLoaded BadNumber("P: x min 5 sec\nE");
    EXPECT_FALSE(BadNumber.m_bResult);
    EXPECT_EQ(BadNumber.m_Level.m_Countdown.m_nRemaining, 86400000u);
}

TEST(TrackFile, LongWordsAreCutNeverOverflow)
{
    const std::string LongLabel(500, 'x');
    CLoaded L("B" + LongLabel + " abcdefghijklmnopqrstuvwxyz0123456789.png\nP" + LongLabel + " 1 m 2 s .\nE");
    EXPECT_TRUE(L.m_bResult);
    EXPECT_STREQ(L.m_Level.m_szBackground, "abcdefghijklmnopqrstuvw") << "23 characters of the name";
    EXPECT_EQ(L.m_Level.m_Countdown.m_nRemaining, 62000u);
}

TEST(TrackFile, HostileCountsAreBounded)
{
    std::string Many;
    for(int i = 0; i < 300; i++)
        Many += "T: 0 points, degree 3 balls 1 interval 100 : :\nC: 4 points, degree 3 :\n" + Points(4);
    CLoaded L(Many + "T: 4 points, degree 3 balls 4000000000 interval 100 : :\n" + Points(4) + "E");
    EXPECT_EQ(L.m_Level.m_vTracks.size(), CLevel::MAX_CURVES);
    EXPECT_EQ(L.m_Level.m_ucNumTracks, 255);
    EXPECT_EQ(L.m_Level.m_vCameraPaths.size(), CLevel::MAX_CURVES);
    EXPECT_EQ(L.m_Level.m_ucNumCameraPaths, 255);

    CLoaded Flood("T: 4 points, degree 3 balls 4000000000 interval 100 : :\n" + Points(4) + "E");
    ASSERT_EQ(Flood.m_Level.m_ucNumTracks, 1);
    EXPECT_EQ(Flood.m_Level.m_vTracks[0].m_vColourQueue.size(), CTrackFileReader::MAX_BALLS_PER_TRACK);
}

TEST(TrackFile, EveryShippedLevelLoadsWhole)
{
    CErrorRecorder Errors;
    CTrackList List;
    ASSERT_TRUE(List.Load(TRACK_LIST_FILE));
    ASSERT_GE(List.m_uiNumFiles, 3u);
    for(const std::string& File : List.m_vFiles)
    {
        CGraphicsEngine Graphics;
        CLevel Level;
        Level.m_pGraphics = &Graphics;
        EXPECT_TRUE(Level.Load(File.c_str(), 1)) << File;
        EXPECT_NE(Level.m_szBackground[0], '\0') << File;
        EXPECT_LT(Level.m_Countdown.m_nRemaining, 86400000u) << File << " sets its play time";
        ASSERT_GE(Level.m_ucNumCameraPaths, 1) << File;
        ASSERT_GE(Level.m_ucNumTracks, 1) << File;

        for(const CTrack& Track : Level.m_vTracks)
        {
            ASSERT_GE(Track.m_Spline.m_uiNumPoints, 2u) << File;
            EXPECT_GT(Track.m_vColourQueue.size(), 0u) << File;
            EXPECT_GT(Track.m_uiInterval, 0u) << File;
        }
    }
    EXPECT_TRUE(Errors.Errors().empty()) << Errors.Errors().front();
}
