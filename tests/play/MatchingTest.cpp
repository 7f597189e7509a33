#include "PlayFixture.h"

class Matching : public CPlayFixture
{
protected:
    Matching() { m_Game.m_Powerups.m_bHaltOn = true; }

    int CountState(const CTrack& Track, uint8_t ucState) const
    {
        int iCount = 0;
        for(const CBall* pBall : Track.m_lstBalls)
            iCount += pBall->m_ucState == ucState;
        return iCount;
    }
};

// From a click to a closed gap and a combo, frame by frame.
TEST_F(Matching, AHitBurstsTheGapClosesAndTheContactMakesACombo)
{
    CTrack& Track = AddTrack();
    PlaceChain(Track, 100, "BRRYYRB"); // yellows at x = 28.4 and 31.2
    FireAt(28.4f, YELLOW);
    int iFrame = 0;
    while(m_Level.m_lstShots.front()->m_ucState != BALL_BURST && iFrame < 10)
        Frame(10), iFrame++;
    // The hit: the two yellows and the shot are a triple set, still drawn in this frame.
    EXPECT_EQ(CountState(Track, BALL_BURST), 2);
    EXPECT_EQ(m_Game.m_Stats.m_nTriples, 1u);
    EXPECT_EQ(m_Game.m_nScore, 0u);

    Frame(10); // the next frame frees the shot and the marked balls; the red beyond the hole turns back
    EXPECT_TRUE(m_Level.m_lstShots.empty());
    EXPECT_EQ(Colours(Track), "BRRRB");
    EXPECT_EQ(m_Game.m_nScore, 2 * BALL_POINTS);
    EXPECT_EQ(m_Audio.m_vPlayed, (std::vector<uint32_t>{SOUND_CHIMES, SOUND_CHIMES}));
    CBall& Retreating = **std::next(Track.m_lstBalls.begin(), 3);
    EXPECT_EQ(Retreating.m_ucState, BALL_RETREATING);
    EXPECT_EQ(Retreating.m_uiPoint, 170u);
    EXPECT_FALSE(Retreating.m_bLinkBack) << "the hole cuts the links";

    Frame(10); // 10 ms at a quarter point a millisecond: the stretch rolls back two points, as one
    EXPECT_EQ(Retreating.m_uiPoint, 168u);
    EXPECT_EQ(Track.m_lstBalls.back()->m_uiPoint, 182u);
    Frame(15);
    EXPECT_EQ(Retreating.m_uiPoint, 165u) << "3.75 points are truncated to 3";

    int iGuard = 0;
    while(Retreating.m_ucState == BALL_RETREATING && iGuard++ < 50)
        Frame(10);
    // Contact: the push pass meets the stretch with the one behind and settles its first ball.
    EXPECT_EQ(Retreating.m_ucState, BALL_SETTLED);
    EXPECT_EQ(Retreating.m_uiPoint, 142u);
    EXPECT_EQ(m_Game.m_Stats.m_nCombos, 0u);

    Frame(10); // the settled ball finds three reds: a combo, removed in this same frame
    EXPECT_EQ(Colours(Track), "BB");
    EXPECT_EQ(m_Game.m_nScore, 5 * BALL_POINTS);
    EXPECT_EQ(m_Game.m_Stats.m_nCombos, 1u);
    EXPECT_EQ(m_Game.m_Stats.m_nComboRun, 1u);
    EXPECT_EQ(m_Game.m_Stats.m_nTriples, 2u);
    EXPECT_EQ(m_Game.m_Stats.m_nMaxCombo, 0u) << "a series of combos counts when a direct hit ends it";
    bool bMarked = m_Game.m_Powerups.m_nStackCount == 1;
    for(const CBall* pBall : Track.m_lstBalls)
        bMarked = bMarked || pBall->m_bPowerup;
    EXPECT_TRUE(bMarked) << "a combo gives one ball a powerup, paid out if that ball burst";
    EXPECT_EQ(CountState(Track, BALL_RETREATING), 0) << "only the list's first ball stood behind the hole";
}

TEST_F(Matching, ADirectHitEndsASeriesOfCombos)
{
    CTrack& Track = AddTrack();
    PlaceChain(Track, 100, "GGRR");
    m_Game.m_Stats.m_nComboRun = 3;
    FireAt(23.0f, GREEN); // into the greens' side: a triple set of two balls and the shot
    for(int i = 0; i < 6; i++)
        Frame(10);
    EXPECT_EQ(m_Game.m_Stats.m_nMaxCombo, 3u);
    EXPECT_EQ(m_Game.m_Stats.m_nComboRun, 0u);
    EXPECT_EQ(m_Game.m_nScore, 2 * BALL_POINTS);
    EXPECT_EQ(Colours(Track), "RR");
}
