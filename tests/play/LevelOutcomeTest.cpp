#include "PlayFixture.h"

using LevelOutcome = CPlayFixture;

TEST_F(LevelOutcome, ALevelWithoutBallsIsWonInItsFirstFrame)
{
    AddTrack();
    Frame(10);
    EXPECT_FALSE(m_Logic.m_bActive);
    EXPECT_TRUE(m_Level.m_bWon);
    EXPECT_FALSE(m_Game.m_bInGame);
    EXPECT_EQ(m_Game.m_Graphics.m_nScreenState, SCREEN_RESULTS);
}

TEST_F(LevelOutcome, ThePlayTimeRunsOutOnItsFrameAndNothingRunsAfter)
{
    AddTrack(100, 0.2f, 4000000000u).m_vColourQueue = {RED};
    m_Level.m_Countdown.Set(1000);
    FireAt(10.0f, RED);
    for(int i = 0; i < 99; i++)
        Frame(10);
    EXPECT_TRUE(m_Logic.m_bActive);
    Frame(10);
    EXPECT_FALSE(m_Logic.m_bActive);
    EXPECT_FALSE(m_Level.m_bWon);
    const CPoint3 ShotAt = m_Level.m_lstShots.front()->m_Position;
    Frame(10);
    EXPECT_EQ(m_Level.m_lstShots.front()->m_Position, ShotAt) << "no rule runs once the level is over";
}

TEST_F(LevelOutcome, AnIdlePlayerLosesWithExactlyTheOneBallThatRanOff)
{
    CTrack& Track = AddTrack(300, 0.2f, 100);
    Track.m_vColourQueue.assign(40, GREEN);
    int iFrames = 0;
    while(m_Logic.m_bActive && iFrames++ < 100000)
        Frame(10);
    EXPECT_FALSE(m_Level.m_bWon);
    EXPECT_EQ(m_Game.m_nScore, BALL_POINTS);
    EXPECT_EQ(m_Game.m_Stats.m_nTriples + m_Game.m_Stats.m_nChains, 0u)
        << "a chain of one colour makes no run by itself";
    EXPECT_FALSE(Track.m_lstBalls.empty());
}

TEST_F(LevelOutcome, ALaterStepOverrulesAnEarlierOneInTheFrameTheLevelEnds)
{
    // The clock runs out in the frame in which the last ball vanishes: the level is won.
    CTrack& Track = AddTrack();
    Place(Track, 500, RED).m_ucState = BALL_BURST;
    m_Level.m_Countdown.Set(10);
    Frame(10);
    EXPECT_TRUE(m_Level.m_bWon);

    // The very last ball pushed off the end of its track: lost in the push pass, then cleared.
    CTrack& Short = m_Level.m_vTracks.emplace_back();
    Short.m_Spline = Track.m_Spline;
    Short.m_Spline.m_vPoints.resize(120);
    Short.m_Spline.m_uiNumPoints = 120;
    Short.m_vColourCounts.assign(NUM_COLOURS, 0);
    Short.m_uiInterval = 700;
    Place(Short, 119, BLUE);
    Short.m_pPusher = new CBall;
    Short.m_pPusher->m_Position = Short.m_Spline.m_vPoints[118];
    m_Level.m_Countdown.Set(60000);
    m_Logic.m_bActive = true;
    Frame(10);
    EXPECT_TRUE(m_Level.m_bWon);
    EXPECT_TRUE(Short.m_lstBalls.empty());
}
