#include "PlayFixture.h"

class Insertion : public CPlayFixture
{
protected:
    Insertion() { m_Game.m_Powerups.m_bHaltOn = true; } // the chains stand still while shots land

    // Fires along +z at x and runs frames until the shot has landed.
    void ShootAt(float fX, uint8_t ucColour)
    {
        FireAt(fX, ucColour);
        for(int i = 0; i < 10 && m_Level.m_lstShots.front()->m_ucState != BALL_BURST; i++)
            Frame(10);
        ASSERT_EQ(m_Level.m_lstShots.front()->m_ucState, BALL_BURST) << "the shot never landed";
    }
};

// Balls at points 100, 114, 128, 142 stand at x = 20, 22.8, 25.6 and 28.4.
TEST_F(Insertion, AShotJoinsWhereItLandsAndTheColoursShiftTowardsTheFront)
{
    CTrack& Track = AddTrack();
    PlaceChain(Track, 100, "RGBY");
    ShootAt(22.6f, PURPLE); // just behind the green ball
    EXPECT_EQ(Colours(Track), "RPGBY");
    const CBall& Fresh = *Track.m_lstBalls.back();
    EXPECT_EQ(Fresh.m_uiPoint, 156u) << "a new ball one diameter ahead of the lead";
    uint32_t uiPoint = 86;
    for(const CBall* pBall : Track.m_lstBalls)
        EXPECT_EQ(pBall->m_uiPoint, uiPoint += 14) << "no ball moved to make room";
    EXPECT_EQ(Track.m_vColourCounts[PURPLE], 1u);
    EXPECT_EQ(m_Audio.m_vPlayed, std::vector<uint32_t>{SOUND_STICK});
    EXPECT_EQ(m_Game.m_nScore, 0u);
}

TEST_F(Insertion, AShotAheadOfTheLeadJoinsAtTheFrontWithNoShift)
{
    CTrack& Track = AddTrack();
    PlaceChain(Track, 100, "RGBY");
    ShootAt(28.6f, PURPLE);
    EXPECT_EQ(Colours(Track), "RGBYP");
}

TEST_F(Insertion, AShotBehindTheRearGrowsTheChainAtItsFrontButNotAcrossAGap)
{
    CTrack& Track = AddTrack();
    PlaceChain(Track, 100, "RGB");
    PlaceChain(Track, 200, "OO"); // far enough ahead to leave room for a ball
    ShootAt(19.8f, YELLOW);
    EXPECT_EQ(Colours(Track), "YRGBOO");
    EXPECT_EQ((*std::next(Track.m_lstBalls.begin(), 3))->m_uiPoint, 142u);
}

TEST_F(Insertion, AShotThatCompletesARunNeverJoins)
{
    CTrack& Track = AddTrack();
    PlaceChain(Track, 100, "BRRRRB");
    ShootAt(25.6f, RED);
    for(int i = 1; i <= 4; i++)
        EXPECT_EQ((*std::next(Track.m_lstBalls.begin(), i))->m_ucState, BALL_BURST);
    EXPECT_EQ(m_Game.m_Stats.m_nChains, 1u);
    EXPECT_EQ(m_Game.m_Stats.m_nMaxChain, 5u) << "the shot counts as one ball of the run";
    Frame(10);
    EXPECT_EQ(Colours(Track), "BB");
    EXPECT_EQ(m_Game.m_nScore, 4 * BALL_POINTS);

    // A red shot beside a lone red ball between blues joins it: two reds stand together and stay.
    CTrack& Lone = AddTrack();
    PlaceChain(Lone, 100, "BRB");
    ShootAt(22.9f, RED);
    EXPECT_EQ(Colours(Lone), "BRRB");
}
