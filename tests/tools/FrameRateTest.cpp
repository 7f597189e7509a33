#include "bot/FrameRate.h"

#include <gtest/gtest.h>

namespace
{
// Frames every uiStepMs from uiFromMs on, up to but not including uiToMs.
void RunFrames(CFrameRate& Rate, uint32_t uiFromMs, uint32_t uiToMs, uint32_t uiStepMs)
{
    for(uint32_t uiNow = uiFromMs; uiNow < uiToMs; uiNow += uiStepMs)
        Rate.OnFrame(uiNow);
}
} // namespace

TEST(FrameRate, ARunShorterThanASecondGivesItsFrameCount)
{
    CFrameRate Rate;
    EXPECT_EQ(Rate.SlowestSecond(0), 0u);
    RunFrames(Rate, 5000, 5500, 10);
    EXPECT_EQ(Rate.Frames(), 50u);
    EXPECT_EQ(Rate.SlowestSecond(5999), 50u);
}

TEST(FrameRate, TheSlowestWholeSecondCountsAndTheUnfinishedLastOneDoesNot)
{
    CFrameRate Rate;
    RunFrames(Rate, 0, 1000, 10);    // 100
    RunFrames(Rate, 1000, 2000, 25); // 40
    RunFrames(Rate, 2000, 3000, 10); // 100
    RunFrames(Rate, 3000, 3100, 10); // 10 so far in a second that has not ended
    EXPECT_EQ(Rate.Frames(), 250u);
    EXPECT_EQ(Rate.SlowestSecond(3100), 40u);
    EXPECT_EQ(Rate.SlowestSecond(4000), 10u) << "the fourth second has ended by now";
}

TEST(FrameRate, AStallOfMoreThanASecondLeavesASecondWithoutFrames)
{
    CFrameRate Rate;
    RunFrames(Rate, 0, 1000, 10);
    RunFrames(Rate, 3500, 4000, 10);
    EXPECT_EQ(Rate.SlowestSecond(4000), 0u);
}

TEST(FrameRate, SecondsAreCountedAcrossTheWrapOfTheClock)
{
    CFrameRate Rate;
    RunFrames(Rate, UINT32_MAX - 999, UINT32_MAX - 9, 10);
    RunFrames(Rate, 0, 1000, 20);
    EXPECT_EQ(Rate.SlowestSecond(1000), 50u);
}
