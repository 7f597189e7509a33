#include "input/Input.h"
#include "input/KeyCodes.h"
#include "platform/twins/ScriptedInput.h"

#include <gtest/gtest.h>

namespace
{
// The module on a scripted keyboard and mouse, as the game has it after start-up; the first poll of each test
// replaces whatever state the test before left.
class CInputFixture : public ::testing::Test
{
protected:
    void SetUp() override
    {
        g_fMouseX = CURSOR_START;
        g_fMouseY = CURSOR_START;
        InitInput();
        CreateKeyboard(&m_Source);
        CreateMouse(&m_Source);
    }
    void TearDown() override
    {
        ReleaseMouse();
        ReleaseKeyboard();
        ReleaseInput();
    }
    // One pass of the main loop: both polls, then the caller's tests.
    void Poll()
    {
        PollKeyboard();
        PollMouse();
    }

    CScriptedInput m_Source;
};
} // namespace

using InputDevices = CInputFixture;

TEST_F(InputDevices, KeyPressedFiresOnceInThePassThatFirstSeesTheKeyUp)
{
    m_Source.SetKey(DIK_SPACE, true);
    for(int iPass = 0; iPass < 3; iPass++)
    {
        Poll();
        EXPECT_TRUE(KeyDown(DIK_SPACE));
        EXPECT_FALSE(KeyPressed(DIK_SPACE)) << "a held key fires nothing, pass " << iPass;
    }
    m_Source.SetKey(DIK_SPACE, false);
    Poll();
    EXPECT_TRUE(KeyUp(DIK_SPACE));
    EXPECT_TRUE(KeyPressed(DIK_SPACE));
    EXPECT_FALSE(KeyPressed(DIK_SPACE)) << "fires once";
    Poll();
    EXPECT_FALSE(KeyPressed(DIK_SPACE));
}

TEST_F(InputDevices, LatchesMoveOnlyWhenTheirOwnKeyIsTested)
{
    m_Source.SetKey(DIK_RETURN, true);
    Poll();
    EXPECT_FALSE(KeyPressed(DIK_RETURN));
    m_Source.SetKey(DIK_RETURN, false);
    m_Source.SetKey(DIK_ESCAPE, true);
    Poll();
    EXPECT_FALSE(KeyPressed(DIK_ESCAPE));
    EXPECT_EQ(g_aKeyLatch[DIK_RETURN], LATCH_DOWN) << "testing Escape moved the latch of Return";
    Poll();
    EXPECT_TRUE(KeyPressed(DIK_RETURN)) << "released two polls ago, reported at its first test since";

    // A press and release that both fall between two tests go unseen.
    m_Source.SetKey(DIK_A, true);
    Poll();
    m_Source.SetKey(DIK_A, false);
    Poll();
    EXPECT_FALSE(KeyPressed(DIK_A));
}

TEST_F(InputDevices, ButtonsHaveTheirOwnLatches)
{
    m_Source.SetButton(1, true);
    Poll();
    EXPECT_TRUE(MouseButtonDown(1));
    EXPECT_TRUE(MouseButtonUp(0));
    EXPECT_FALSE(MouseButtonPressed(1));
    m_Source.SetButton(1, false);
    Poll();
    EXPECT_FALSE(MouseButtonPressed(0) || MouseButtonPressed(2));
    EXPECT_TRUE(MouseButtonPressed(1));
    EXPECT_FALSE(MouseButtonPressed(1));
}

TEST_F(InputDevices, ActivationForgetsWhatTheLatchesSaw)
{
    m_Source.SetButton(0, true);
    m_Source.SetKey(DIK_SPACE, true);
    Poll();
    EXPECT_FALSE(MouseButtonPressed(0) || KeyPressed(DIK_SPACE));
    InitInput(); // the devices are made again whenever the game gains or loses the focus
    CreateKeyboard(&m_Source);
    CreateMouse(&m_Source);
    m_Source.SetButton(0, false);
    m_Source.SetKey(DIK_SPACE, false);
    Poll();
    EXPECT_FALSE(MouseButtonPressed(0));
    EXPECT_FALSE(KeyPressed(DIK_SPACE));
}

TEST_F(InputDevices, CursorMovesAtEachReadingAndStaysOnTheScreen)
{
    m_Source.AddMotion(-30, 7);
    Poll();
    EXPECT_FLOAT_EQ(GetMouseX(), 70.0f);
    EXPECT_FLOAT_EQ(GetMouseX(), 40.0f) << "a second reading in the same pass adds the counts again";
    EXPECT_FLOAT_EQ(GetMouseY(), 107.0f);
    EXPECT_FLOAT_EQ(GetMouseX(), 10.0f);
    EXPECT_FLOAT_EQ(GetMouseX(), 0.0f);
    m_Source.AddMotion(5, 0);
    Poll();
    EXPECT_FLOAT_EQ(GetMouseX(), 5.0f) << "no wind-up beyond the left edge";

    m_Source.AddMotion(900, 600);
    Poll();
    EXPECT_FLOAT_EQ(GetMouseX(), 800.0f);
    EXPECT_FLOAT_EQ(GetMouseY(), 600.0f);
    m_Source.AddMotion(-1, -1);
    Poll();
    EXPECT_FLOAT_EQ(GetMouseX(), 799.0f);
    EXPECT_FLOAT_EQ(GetMouseY(), 599.0f);
}

TEST_F(InputDevices, MotionAndWheelAreTheCountsOfTheLastPoll)
{
    m_Source.AddMotion(3, -4);
    m_Source.AddMotion(2, 1);
    m_Source.AddWheel(-2);
    Poll();
    float fDx = 0.0f;
    float fDy = 0.0f;
    GetMouseMotion(fDx, fDy);
    EXPECT_EQ(fDx, 5.0f);
    EXPECT_EQ(fDy, -3.0f);
    EXPECT_EQ(GetMouseWheel(), -240.0f);
    Poll();
    GetMouseMotion(fDx, fDy);
    EXPECT_EQ(fDx + fDy + GetMouseWheel(), 0.0f) << "each read starts the counts afresh";
    EXPECT_EQ(m_Source.m_uiKeyboardReads + m_Source.m_uiMouseReads, 4u) << "one read of each device a poll";
}

TEST_F(InputDevices, MissingDevicesLeaveTheStateAsItWas)
{
    m_Source.SetKey(DIK_LEFT, true);
    m_Source.AddMotion(4, 0);
    Poll();
    EXPECT_FALSE(CreateKeyboard(nullptr));
    ReleaseMouse();
    m_Source.SetKey(DIK_LEFT, false);
    m_Source.AddMotion(9, 0);
    EXPECT_FALSE(PollKeyboard());
    EXPECT_FALSE(PollMouse());
    EXPECT_TRUE(KeyDown(DIK_LEFT));
    EXPECT_FLOAT_EQ(GetMouseX(), 104.0f);

    ReleaseInput();
    EXPECT_FALSE(CreateKeyboard(&m_Source)) << "devices come only from an opened input";
    EXPECT_TRUE(InitInput());
    EXPECT_TRUE(CreateKeyboard(&m_Source));
    EXPECT_TRUE(PollKeyboard());
    EXPECT_TRUE(KeyUp(DIK_LEFT));
}

TEST_F(InputDevices, LosingTheFocusLetsGoAndKeepsTheLastMouseCounts)
{
    m_Source.SetKey(DIK_RIGHT, true);
    m_Source.SetButton(0, true);
    m_Source.AddMotion(10, 0);
    Poll();
    MouseButtonPressed(0);
    m_Source.SetFocus(false);
    m_Source.AddMotion(50, 0);
    Poll();
    EXPECT_TRUE(KeyUp(DIK_RIGHT));
    EXPECT_TRUE(MouseButtonDown(0)) << "the mouse is another window's: its state stays as the game last had it";
    EXPECT_FLOAT_EQ(GetMouseX(), 110.0f);
    EXPECT_FLOAT_EQ(GetMouseX(), 120.0f);

    m_Source.SetFocus(true);
    m_Source.SetKey(DIK_RIGHT, true);
    Poll();
    EXPECT_TRUE(KeyDown(DIK_RIGHT));
    EXPECT_TRUE(MouseButtonUp(0));
    EXPECT_TRUE(MouseButtonPressed(0)) << "a button held into the focus change is reported once it is back";
    EXPECT_FLOAT_EQ(GetMouseX(), 120.0f) << "motion made elsewhere does not reach the game";
}
