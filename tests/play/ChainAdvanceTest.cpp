#include "PlayFixture.h"

using ChainAdvance = CPlayFixture;

TEST_F(ChainAdvance, BallsEnterOneAnIntervalAndTheRearSlidesAlongTheFirstSegment)
{
    CTrack& Track = AddTrack();
    Track.m_vColourQueue = {RED, BLUE, GREEN};
    Frame(14);
    EXPECT_TRUE(Track.m_lstBalls.empty());
    for(int i = 0; i < 49; i++)
        Frame(14); // 700 ms: the first ball enters, taking the queue's last colour
    ASSERT_EQ(Track.m_lstBalls.size(), 1u);
    EXPECT_EQ(Colours(Track), "G");
    EXPECT_EQ(Track.m_uiElapsed, 0u);
    Frame(14);
    EXPECT_EQ(Track.m_lstBalls.front()->m_Position.x(), 14.0f / 700.0f * 2.76f) << "0.0552 a frame of 14 ms";
    EXPECT_EQ(Track.m_lstBalls.front()->m_uiPoint, 0u) << "a sliding ball keeps its point";

    // A long frame lets one ball in and leaves the rest for the next frames, one each; the push pass puts
    // each newcomer a diameter behind the one before.
    Frame(5000);
    Frame(1);
    ASSERT_EQ(Colours(Track), "RBG");
    const auto it = Track.m_lstBalls.begin();
    EXPECT_GE(Distance((*it)->m_Position, (*std::next(it))->m_Position), BALL_DIAMETER);
    EXPECT_EQ((*std::next(it))->m_uiPoint, 14u) << "pushed to the first point a diameter ahead";
}

TEST_F(ChainAdvance, ThePusherTakesOverOneIntervalAfterTheQueueRunsOut)
{
    AddTrack(10, 0.2f, 4000000000u).m_vColourQueue = {RED}; // keeps the level from being cleared
    CTrack& Track = AddTrack(1500, 0.1f, 1000);
    Frame(500);
    EXPECT_EQ(Track.m_pPusher, nullptr);
    Frame(500);
    ASSERT_NE(Track.m_pPusher, nullptr);
    EXPECT_FLOAT_EQ(Track.m_pPusher->m_vDirection.x(), 1.38f);
    // Its index is its distance over 0.2, whatever the real spacing: on points 0.1 apart it covers about half.
    Frame(1000);
    EXPECT_EQ(Track.m_pPusher->m_uiPoint, 20u);
    EXPECT_NEAR(Track.m_pPusher->m_Position.x(), 2.14f, 1e-5f);
    Frame(0);
    EXPECT_NEAR(Track.m_pPusher->m_Position.x(), 2.14f, 1e-5f) << "a frame of 0 ms moves nothing";

    for(int i = 0; i < 120; i++)
        Frame(1000);
    EXPECT_GT(Track.m_pPusher->m_uiPoint, 1498u);
    EXPECT_GT(Track.m_pPusher->m_Position.x(), 147.0f) << "it waits near the end, its distance growing on";
    EXPECT_LT(Track.m_pPusher->m_Position.x(), 149.9f);
    EXPECT_TRUE(m_Logic.m_bActive) << "nothing to push, nothing lost";
}

TEST_F(ChainAdvance, PushesKeepADiameterAndLinksDependOnTheSpacing)
{
    CTrack& Near = AddTrack(300, 0.2f);
    CBall& a = Place(Near, 0, RED);
    CBall& b = Place(Near, 14, RED);
    m_Logic.UpdateLinks();
    EXPECT_TRUE(a.m_bLinkAhead && b.m_bLinkBack) << "14 points of 0.2 are 2.8 units: touching";
    CTrack& Far = AddTrack(300, 0.171f);
    CBall& c = Place(Far, 0, RED);
    CBall& d = Place(Far, 10, RED);
    m_Logic.PushBall(Far, c.m_Position, d);
    EXPECT_EQ(d.m_uiPoint, 17u);
    m_Logic.UpdateLinks();
    EXPECT_FALSE(c.m_bLinkAhead) << "17 points of 0.171 are 2.907 units: no run can cross them";

    // Exactly a diameter apart is not pushed; exactly the link distance apart does not touch.
    CBall Rear, Front;
    Front.m_Position = CPoint3(BALL_DIAMETER, 0, 0);
    Front.m_uiPoint = 5;
    m_Logic.PushBall(Near, Rear.m_Position, Front);
    EXPECT_EQ(Front.m_uiPoint, 5u);
    Front.m_Position = CPoint3(LINK_DISTANCE, 0, 0);
    EXPECT_FALSE(CChainLogic::IsNear(Rear, Front, LINK_DISTANCE));
}

TEST_F(ChainAdvance, ABallPushedOffTheLastPointLosesTheLevelWithItsPoints)
{
    CTrack& Track = AddTrack(100);
    Track.m_vColourQueue = {GREEN};
    Place(Track, 90, RED);
    Place(Track, 99, BLUE); // on the last point
    Frame(10);
    EXPECT_FALSE(m_Logic.m_bActive);
    EXPECT_FALSE(m_Level.m_bWon);
    EXPECT_EQ(m_Game.m_Graphics.m_nScreenState, SCREEN_RESULTS);
    EXPECT_EQ(Colours(Track), "R") << "the ball that ran off is gone";
    EXPECT_EQ(m_Game.m_nScore, BALL_POINTS);
    EXPECT_EQ(m_Audio.m_vPlayed, std::vector<uint32_t>{SOUND_CHIMES});
}
