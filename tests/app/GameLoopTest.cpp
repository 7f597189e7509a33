#include "TestSupport.h"
#include "app/Game.h"
#include "app/MainLoop.h"
#include "platform/Clock.h"
#include "platform/Window.h"

#include <gtest/gtest.h>

#include <filesystem>
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
    Window.m_iClosePass = 11;
    Window.m_fnEventWaits = [](int iPass) { return iPass >= 5 && iPass < 10; }; // a burst of five events
    EXPECT_EQ(RunMainLoop(Game, Window), 6u);                                     // passes 0 to 4, and 10
    EXPECT_EQ(Game.m_Clock.GetDelta(), 60u);
    EXPECT_EQ(Game.m_Clock.m_nTotal, 110u) << "every pass's time reaches the frame clock, none is lost";
    UseSystemClock();
}

// Starts the game binary in a folder, waits until it has started its frame loop, interrupts it, and gives
// everything it printed followed by its exit code.
CCommandResult RunHeadless(const std::string& Folder)
{
    const std::string Log = Folder + "/run.log";
    return RunCommand("cd '" + Folder + "' && ('" TRELVANE_BINARY "' > '" + Log + "' 2>&1 & pid=$!; "
                      "for i in $(seq 100); do grep -q 'Ctrl+C quits' '" + Log + "' && break; sleep 0.1; done; "
                      "kill -INT $pid; wait $pid; echo exit=$?; cat '" + Log + "')");
}

TEST(GameLoop, HeadlessBinaryReadsTheTrackListAndQuitsOnInterrupt)
{
    CTempFile List("level1.txt\nlevel2.txt", "data/tracks/Track List.txt");
    const std::string Folder = std::string(List.Path()).substr(0, std::string(List.Path()).find("/data/"));
    CCommandResult Run = RunHeadless(Folder);
    EXPECT_NE(Run.m_Output.find("exit=0"), std::string::npos) << Run.m_Output;
    EXPECT_NE(Run.m_Output.find("2 levels in the track list"), std::string::npos) << Run.m_Output;
    EXPECT_NE(Run.m_Output.find("frames run."), std::string::npos) << Run.m_Output;
    EXPECT_EQ(Run.m_Output.find("ERROR"), std::string::npos) << Run.m_Output;

    // Without a data folder the game says so once and goes on running with an empty list.
    std::filesystem::remove_all(Folder + "/data");
    Run = RunHeadless(Folder);
    EXPECT_NE(Run.m_Output.find("exit=0"), std::string::npos) << Run.m_Output;
    EXPECT_NE(Run.m_Output.find("ERROR: data//tracks//Track List.txt doesn't exist."), std::string::npos)
        << Run.m_Output;
    EXPECT_NE(Run.m_Output.find("0 levels in the track list"), std::string::npos) << Run.m_Output;
}
