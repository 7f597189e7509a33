#include "PlayFixture.h"

using Shots = CPlayFixture;

TEST_F(Shots, TheFireDelayLetsOneShotInEvery500Ms)
{
    CTrack& Track = AddTrack();
    PlaceChain(Track, 1000, "RGB"); // far from where the shots fly
    FireAt(10.0f, RED);
    ASSERT_EQ(m_Level.m_lstShots.size(), 1u);
    EXPECT_EQ(m_Game.m_nFireDelay, FIRE_DELAY);
    Frame(499);
    m_Logic.Fire();
    EXPECT_EQ(m_Level.m_lstShots.size(), 1u) << "499 ms after a shot the launcher is not ready";
    Frame(1);
    m_Logic.Fire();
    EXPECT_EQ(m_Level.m_lstShots.size(), 2u);

    CBall& Newest = *m_Level.m_lstShots.front();
    EXPECT_EQ(Newest.m_Position, CPoint3(10.0f, 0.0f, -10.0f)) << "a shot leaves from the point looked at";
    Frame(10);
    EXPECT_EQ(Newest.m_Position, CPoint3(10.0f, 0.0f, -8.0f)) << "0.2 units a millisecond along the sight";
    EXPECT_EQ(Newest.m_usLife, SHOT_LIFE - 10);
}

TEST_F(Shots, AShotDiesWhenItsLifeRunsOut)
{
    PlaceChain(AddTrack(), 1000, "R");
    FireAt(10.0f, RED);
    Frame(2999);
    ASSERT_EQ(m_Level.m_lstShots.size(), 1u);
    EXPECT_EQ(m_Level.m_lstShots.front()->m_usLife, 1u);
    Frame(1);
    EXPECT_TRUE(m_Level.m_lstShots.empty());

    FireAt(10.0f, RED);
    Frame(3000);
    EXPECT_TRUE(m_Level.m_lstShots.empty()) << "a frame of 3000 ms ends every shot in flight";
    EXPECT_EQ(m_Audio.m_vPlayed.size(), 0u) << "a shot that dies makes no sound";
}

TEST_F(Shots, TheColourSlotsFollowTheColoursInPlay)
{
    CTrack& Track = AddTrack();
    PlaceChain(Track, 1000, "GGB");
    m_Level.CountColours();
    m_Level.m_ucNextColour = BLUE;
    FireAt(10.0f, RED);
    EXPECT_EQ(m_Level.m_lstShots.front()->m_ucColour, RED);
    EXPECT_EQ(m_Level.m_ucShotColour, BLUE) << "the next colour moves up";
    EXPECT_TRUE(m_Level.m_ucNextColour == GREEN || m_Level.m_ucNextColour == BLUE)
        << "and a new one is drawn from the colours the level has";

    m_Logic.SwapColours();
    const uint8_t ucShot = m_Level.m_ucShotColour;
    m_Logic.SwapColours();
    m_Logic.SwapColours();
    EXPECT_EQ(m_Level.m_ucShotColour, ucShot) << "swapping twice restores the slots, even during the delay";

    // When the last blue ball leaves the track, a blue slot changes at the end of that frame.
    m_Level.m_ucShotColour = BLUE;
    m_Level.m_ucNextColour = BLUE;
    Track.m_lstBalls.back()->m_ucState = BALL_BURST;
    Frame(10);
    EXPECT_EQ(m_Level.m_ucShotColour, GREEN);
    EXPECT_EQ(m_Level.m_ucNextColour, GREEN);
}
