#include "TestSupport.h"
#include "app/Game.h"
#include "app/MainLoop.h"
#include "platform/Clock.h"
#include "platform/Window.h"

#include <gtest/gtest.h>

#include <functional>

namespace
{
// A window driven by a script: each pass of the loop moves the clock on by 10 ms, and the script says on
// which passes an event waits and when the window closes.
class CScriptedWindow : public IWindow
{
public:
    std::function<bool(int)> m_fnEventWaits = [](int) { return false; };
    int m_iClosePass = 0;
    int m_iPass = 0;
    bool m_bOpen = true;

    bool IsOpen() const override { return m_bOpen; }
    bool HandleOneEvent() override
    {
        AdvanceManualClock(10);
        const int iPass = m_iPass++;
        if(iPass + 1 >= m_iClosePass)
            m_bOpen = false;
        return m_fnEventWaits(iPass);
    }
    void Destroy() override { m_bOpen = false; }
};
} // namespace

TEST(GameLoop, ConstructionReadsTheCounterAndWiresTheLevel)
{
    SetManualClock(5000);
    CGame Game;
    EXPECT_EQ(Game.m_nStartTime, 5000u);
    EXPECT_EQ(Game.m_Clock.m_nLastTime, 5000u);
    EXPECT_EQ(Game.m_Level.m_pGraphics, &Game.m_Graphics);
    EXPECT_EQ(Game.m_Tracks.m_uiRound, 1u);
    EXPECT_FALSE(Game.m_bInGame);
    EXPECT_EQ(Game.m_Level.m_Countdown.m_nRemaining, 86400000u);
    UseSystemClock();
}

TEST(GameLoop, FireDelayCountsDownOnTheFrameDeltaAndStopsAtZero)
{
    SetManualClock(0);
    CGame Game;
    Game.m_nFireDelay = 100;
    const uint32_t auiExpected[] = {70, 40, 10, 0, 0};
    for(uint32_t uiExpected : auiExpected)
    {
        AdvanceManualClock(30);
        Game.Tick();
        EXPECT_EQ(Game.m_Clock.GetDelta(), 30u);
        EXPECT_EQ(Game.m_nFireDelay, uiExpected);
    }
    UseSystemClock();
}

TEST(GameLoop, PassesThatHandleAnEventRunNoFrameAndTheNextFrameSeesTheLongDelta)
{
    SetManualClock(0);
    CGame Game;
    CScriptedWindow Window;
    Window.m_iClosePass = 20;
    Window.m_fnEventWaits = [](int iPass) { return iPass >= 5 && iPass < 10; }; // a burst of five events
    const uint64_t ulFrames = RunMainLoop(Game, Window);
    EXPECT_EQ(ulFrames, 15u);
    EXPECT_EQ(Game.m_Clock.m_nTotal, 200u) << "every pass's time reaches the frame clock, none is lost";
    UseSystemClock();
}

TEST(GameLoop, BurstOfEventsGivesOneLongDelta)
{
    SetManualClock(0);
    CGame Game;
    CScriptedWindow Window;
    Window.m_iClosePass = 10;
    Window.m_fnEventWaits = [](int iPass) { return iPass >= 2 && iPass < 9; };
    RunMainLoop(Game, Window); // frames on passes 0, 1 and 9
    EXPECT_EQ(Game.m_Clock.GetDelta(), 80u);
    UseSystemClock();
}

TEST(GameLoop, HeadlessBinaryReadsTheShippedTrackListAndQuitsOnInterrupt)
{
    const std::string Binary = TRELVANE_BINARY;
    CCommandResult Run = RunCommand("cd '" TRELVANE_SOURCE_DIR "' && timeout --preserve-status -s INT 1 '" + Binary +
                                    "'; echo exit=$?");
    EXPECT_NE(Run.m_Output.find("levels in the track list"), std::string::npos) << Run.m_Output;
    EXPECT_EQ(Run.m_Output.find("ERROR"), std::string::npos) << Run.m_Output;
    EXPECT_NE(Run.m_Output.find("frames run.\nexit=0"), std::string::npos) << Run.m_Output;

    // Without a data folder the game says so once and goes on running with an empty list.
    CTempFile Empty("", "unused");
    Run = RunCommand("cd \"$(dirname '" + std::string(Empty.Path()) + "')\" && timeout -s INT 1 '" + Binary + "'");
    EXPECT_NE(Run.m_Output.find("ERROR: data//tracks//Track List.txt doesn't exist."), std::string::npos)
        << Run.m_Output;
    EXPECT_NE(Run.m_Output.find("0 levels in the track list"), std::string::npos) << Run.m_Output;
    EXPECT_NE(Run.m_Output.find("frames run."), std::string::npos) << Run.m_Output;
}
