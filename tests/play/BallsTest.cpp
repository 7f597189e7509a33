#include "PlayFixture.h"
#include "TestSupport.h"

using Balls = CPlayFixture;

TEST_F(Balls, LiveCountsCoverTheTracksOnlyAndStatisticsRunOnAcrossLevels)
{
    const CBall Fresh;
    EXPECT_EQ(Fresh.m_usLife, SHOT_LIFE);
    EXPECT_EQ(Fresh.m_ucState, BALL_NORMAL);

    CTrack& First = AddTrack();
    PlaceChain(First, 100, "RRB");
    CTrack& Second = AddTrack();
    PlaceChain(Second, 100, "Y");
    Second.m_vColourQueue = {PURPLE, PURPLE};
    m_Logic.CountLiveBalls();
    EXPECT_EQ(m_Level.m_uiLiveBalls, 4u);
    const uint32_t auiExpected[NUM_COLOURS] = {2, 0, 1, 1, 0, 0};
    for(int c = 0; c < NUM_COLOURS; c++)
        EXPECT_EQ(m_Level.m_auiLiveByColour[c], auiExpected[c]) << "queued balls are not live";

    m_Game.m_Stats.m_nTriples = 7;
    m_Game.m_nScore = 900;
    CTempFile File("Playtime: 1 min 0 sec\nTrack: 4 points, degree 3 balls 3 interval 500 : :\n0,0,0\n1,0,0\n2,0,0\n"
                   "3,0,0\nEnd\n");
    m_Game.StartLevel(File.Path());
    EXPECT_EQ(m_Level.m_vTracks.size(), 1u);
    EXPECT_TRUE(m_Logic.m_bActive);
    EXPECT_EQ(m_Game.m_Stats.m_nTriples, 7u) << "statistics and score run on from level to level";
    EXPECT_EQ(m_Game.m_nScore, 900u);
}
