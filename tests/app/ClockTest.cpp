#include "platform/interfaces/Clock.h"
#include "app/Clocks.h"

#include <gtest/gtest.h>

TEST(Clock, DeltaIsTheCounterDifferenceAcrossTheWrap)
{
    SetManualClock(0xFFFFFFF0u);
    CGameClock Clock;
    EXPECT_EQ(Clock.GetDelta(), 0u);
    Clock.Update(16);
    EXPECT_EQ(Clock.GetDelta(), 32u);
    EXPECT_EQ(Clock.m_nTotal, 32u);
    Clock.Update(16); // two updates in one counter tick
    EXPECT_EQ(Clock.GetDelta(), 0u);
    Clock.Update(16 + 90061001); // 1 day is 86,400,000 ms: 1 h 1 min 1 s 1 ms past it
    EXPECT_EQ(Clock.m_nTotal, 32u + 90061001u);
    EXPECT_EQ(Clock.m_Split.m_byDays, 1);
    EXPECT_EQ(Clock.m_Split.m_byHours, 1);
    EXPECT_EQ(Clock.m_Split.m_byMinutes, 1);
    EXPECT_EQ(Clock.m_Split.m_bySeconds, 1);
    UseSystemClock();
}

TEST(Clock, CountdownSplitsAndStopsAtZero)
{
    CCountdown Limit(90000);
    Limit.Update(0); // refreshes the split only
    EXPECT_EQ(Limit.m_nRemaining, 90000u);
    EXPECT_EQ(Limit.GetMinutes(), 1);
    EXPECT_EQ(Limit.GetSeconds(), 30);
    Limit.Update(1);
    EXPECT_EQ(Limit.GetMinutes(), 1);
    EXPECT_EQ(Limit.GetSeconds(), 29);

    Limit.Set(500);
    EXPECT_EQ(Limit.GetSeconds(), 29) << "the split lags behind Set until the next Update";
    Limit.Update(500);
    EXPECT_TRUE(Limit.IsExpired());
    EXPECT_EQ(Limit.GetSeconds(), 0);
    Limit.Update(0xFFFFFFFFu);
    EXPECT_EQ(Limit.m_nRemaining, 0u);
    EXPECT_TRUE(Limit.IsExpired());

    CCountdown LevelStart(86400000);
    EXPECT_FALSE(LevelStart.IsExpired());
    LevelStart.Update(1);
    EXPECT_EQ(LevelStart.m_Split.m_byHours, 23);
    EXPECT_EQ(LevelStart.GetMinutes(), 59);
    EXPECT_EQ(LevelStart.GetSeconds(), 59);
}
