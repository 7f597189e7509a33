#include "TestSupport.h"
#include "app/Game.h"
#include "app/MainLoop.h"
#include "input/Input.h"
#include "platform/interfaces/Clock.h"
#include "platform/interfaces/Window.h"
#include "platform/native/SocketEvents.h"
#include "platform/twins/ScriptedInput.h"

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
    g_pGame = &Game; // the screen flow steps in every pass
    CScriptedWindow Window;
    CSocketEvents Sockets;
    Window.m_iClosePass = 11;
    Window.m_fnEventWaits = [](int iPass) { return iPass >= 5 && iPass < 10; }; // a burst of five events
    EXPECT_EQ(RunMainLoop(Game, Window, Sockets), 6u);                          // passes 0 to 4, and 10
    EXPECT_EQ(Game.m_Clock.GetDelta(), 60u);
    EXPECT_EQ(Game.m_Clock.m_nTotal, 110u) << "every pass's time reaches the frame clock, none is lost";
    g_pGame = nullptr;
    UseSystemClock();
}

TEST(GameLoop, QuitOnTheMainMenuClosesTheWindowInThePassThatSeesTheClick)
{
    SetManualClock(0);
    CGame Game;
    g_pGame = &Game;
    Game.m_Graphics.m_nScreenState = SCREEN_MAIN_MENU;
    Game.m_Graphics.m_nHotSpot = HOT_QUIT;
    CScriptedInput Mouse;
    InitInput();
    CreateMouse(&Mouse);
    Mouse.SetButton(0, true);
    CScriptedWindow Window;
    CSocketEvents Sockets;
    Window.m_iClosePass = 100;
    Window.m_fnEventWaits = [&Mouse](int iPass) {
        Mouse.SetButton(0, iPass != 2); // let go during the third pass, seen by the fourth
        return false;
    };
    EXPECT_EQ(RunMainLoop(Game, Window, Sockets), 4u) << "the closing pass still runs its frame";
    EXPECT_FALSE(Window.m_bOpen);
    ReleaseMouse();
    ReleaseInput();
    g_pGame = nullptr;
    UseSystemClock();
}
