#include "play/PlayFixture.h"

#include <cstdlib>

class PowerupEffects : public CPlayFixture
{
protected:
    CPowerupManager& m_Powerups = m_Game.m_Powerups;
};

TEST_F(PowerupEffects, SpeedEffectsOverlapAndTheFirstToEndSetsEveryTrackTo300)
{
    CTrack& Rolling = AddTrack(1500, 0.2f, 581);
    PlaceChain(Rolling, 500, "RGB");
    CTrack& Empty = AddTrack(1500, 0.2f, 581);
    Empty.m_vColourQueue = {RED};
    Frame(10);
    m_Powerups.ApplyDecrease(); // at t = 10
    EXPECT_EQ(Rolling.m_uiInterval, 1000u);
    EXPECT_EQ(Empty.m_uiInterval, 581u) << "a track without balls keeps its speed";
    Frame(1000);
    m_Powerups.ApplyIncrease(); // at t = 1010: the later one sets the speed
    EXPECT_EQ(Rolling.m_uiInterval, 90u);
    Frame(6000); // t = 7010: DECREASE has run exactly 7000 ms
    EXPECT_TRUE(m_Powerups.m_bDecreaseOn);
    Frame(1);
    EXPECT_FALSE(m_Powerups.m_bDecreaseOn);
    EXPECT_TRUE(m_Powerups.m_bIncreaseOn);
    EXPECT_EQ(Rolling.m_uiInterval, 300u);
    EXPECT_EQ(Empty.m_uiInterval, 300u) << "every track, with balls or not";
    Frame(3000);
    EXPECT_FALSE(m_Powerups.m_bIncreaseOn);
}

TEST_F(PowerupEffects, HaltStopsTheChainsWhileTheClockAndShotsRunOn)
{
    CTrack& Track = AddTrack();
    Track.m_vColourQueue = {RED, RED};
    m_Level.m_Countdown.Set(60000);
    m_Powerups.ApplyHalt();
    FireAt(10.0f, BLUE);
    Frame(700);
    EXPECT_TRUE(Track.m_lstBalls.empty()) << "no ball enters";
    EXPECT_EQ(Track.m_uiElapsed, 0u);
    EXPECT_EQ(m_Level.m_Countdown.m_nRemaining, 59300u);
    ASSERT_EQ(m_Level.m_lstShots.size(), 1u);
    EXPECT_EQ(m_Level.m_lstShots.front()->m_Position.z(), 130.0f) << "the shot flew on for 700 ms";
    Frame(5301);
    EXPECT_FALSE(m_Powerups.m_bHaltOn);
    Frame(700);
    EXPECT_EQ(Track.m_lstBalls.size(), 1u);
}

TEST_F(PowerupEffects, ClearAndZeroPayEveryBallWithOneChime)
{
    CTrack& Track = AddTrack();
    PlaceChain(Track, 100, "RGBYOPRGBY");
    m_Powerups.PushLetter('C');
    m_Game.m_Flow.OnChar('0'); // spent by key before the tick: that tick's bursts are silent
    EXPECT_EQ(Colours(Track), "RGBYOPRGBY");
    Frame(10);
    EXPECT_EQ(Colours(Track), "ROPRGBY") << "balls 2, 3 and 4 of ten";
    EXPECT_EQ(m_Game.m_nScore, 3 * BALL_POINTS);
    EXPECT_EQ(m_Audio.m_vPlayed, (std::vector<uint32_t>{SOUND_POWER, SOUND_CHIMES}));
    EXPECT_FALSE(m_Powerups.m_bMuteBursts) << "the silence lasts one tick";

    m_Powerups.ApplyZero();
    Frame(10);
    EXPECT_EQ(Colours(Track), "R") << "the rear ball stays";
    EXPECT_EQ(m_Game.m_nScore, 9 * BALL_POINTS);
    m_Powerups.ApplyZero();
    m_Powerups.ApplyClear();
    Frame(10);
    EXPECT_EQ(Colours(Track), "R") << "a single ball is never touched";
}

TEST_F(PowerupEffects, ColourEffectsChangeColoursButNotTheCounts)
{
    CTrack& Track = AddTrack();
    PlaceChain(Track, 100, "RRGGBBYY");
    const std::vector<uint32_t> vCounts = Track.m_vColourCounts;
    for(int iSeed = 1; iSeed <= 50; iSeed++)
    {
        std::srand(static_cast<unsigned>(iSeed));
        const std::string Before = Colours(Track);
        m_Powerups.ApplyExchange();
        const std::string After = Colours(Track);
        int iChanged = 0;
        for(size_t i = 0; i < Before.size(); i++)
            iChanged += Before[i] != After[i];
        ASSERT_GE(iChanged, 1) << "EXCHANGE never keeps the colour";
        for(size_t i = 0; i < Before.size(); i++)
        {
            if(Before[i] != After[i])
            {
                ASSERT_EQ(After.find(Before[i]), std::string::npos) << "all of the old colour is replaced";
            }
        }
    }
    m_Powerups.ApplyRandom();
    EXPECT_EQ(Track.m_vColourCounts, vCounts) << "the counts are left alone";

    CTrack& Single = AddTrack();
    Place(Single, 10, RED);
    m_Powerups.ApplyMake();
    EXPECT_TRUE(Single.m_lstBalls.front()->m_bPowerup);
}
