#include "platform/native/SdlInput.h"
#include "input/KeyCodes.h"
#include "platform/native/ScancodeTable.h"

#include <SDL.h>
#include <gtest/gtest.h>

namespace
{
SDL_Event KeyEvent(Uint32 uiType, SDL_Scancode eScancode)
{
    SDL_Event Event = {};
    Event.type = uiType;
    Event.key.keysym.scancode = eScancode;
    return Event;
}

SDL_Event ButtonEvent(Uint32 uiType, Uint8 bySdlButton)
{
    SDL_Event Event = {};
    Event.type = uiType;
    Event.button.button = bySdlButton;
    return Event;
}
} // namespace

TEST(InputDevices, ScancodesMapToTheGamesKeyCodes)
{
    const int aPairs[][2] = {
        {SDL_SCANCODE_ESCAPE, 1},  {SDL_SCANCODE_RETURN, 28}, {SDL_SCANCODE_SPACE, 57},  {SDL_SCANCODE_LEFT, 203},
        {SDL_SCANCODE_RIGHT, 205}, {SDL_SCANCODE_LSHIFT, 42}, {SDL_SCANCODE_RSHIFT, 54}, {SDL_SCANCODE_A, 30},
        {SDL_SCANCODE_Q, 16},      {SDL_SCANCODE_Z, 44},      {SDL_SCANCODE_M, 50},      {SDL_SCANCODE_1, 2},
        {SDL_SCANCODE_0, 11},      {SDL_SCANCODE_PERIOD, 52}, {SDL_SCANCODE_KP_7, 71},   {SDL_SCANCODE_KP_ENTER, 156},
    };
    for(const auto& aPair : aPairs)
        EXPECT_EQ(DikFromScancode(aPair[0]), aPair[1]) << "scancode " << aPair[0];
    EXPECT_EQ(DikFromScancode(SDL_SCANCODE_UNKNOWN), 0);
    EXPECT_EQ(DikFromScancode(SDL_NUM_SCANCODES), 0);

    // No two keys share a code, or one would hold down the other.
    int aUses[NUM_KEYS] = {};
    for(int iScancode = 0; iScancode < SDL_NUM_SCANCODES; iScancode++)
        aUses[DikFromScancode(iScancode)]++;
    for(int iKey = 1; iKey < NUM_KEYS; iKey++)
        EXPECT_LE(aUses[iKey], 1) << "key code " << iKey;
}

TEST(InputDevices, SdlEventsBuildTheDeviceState)
{
    CSdlInput Input;
    Input.OnEvent(KeyEvent(SDL_KEYDOWN, SDL_SCANCODE_LEFT));
    Input.OnEvent(KeyEvent(SDL_KEYDOWN, SDL_SCANCODE_A));
    Input.OnEvent(KeyEvent(SDL_KEYUP, SDL_SCANCODE_A));
    Input.OnEvent(ButtonEvent(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_RIGHT));
    Input.OnEvent(ButtonEvent(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_MIDDLE));
    SDL_Event Event = {};
    Event.type = SDL_MOUSEMOTION;
    Event.motion.xrel = -3;
    Event.motion.yrel = 4;
    Input.OnEvent(Event);
    Input.OnEvent(Event);
    Event = {};
    Event.type = SDL_MOUSEWHEEL;
    Event.wheel.y = 1;
    Input.OnEvent(Event);
    Event.wheel.direction = SDL_MOUSEWHEEL_FLIPPED;
    Event.wheel.y = -3; // reported reversed: the wheel turned three notches away from the player
    Input.OnEvent(Event);

    uint8_t aKeys[NUM_KEYS] = {};
    Input.ReadKeyboard(aKeys);
    EXPECT_EQ(aKeys[DIK_LEFT], INPUT_DOWN);
    EXPECT_EQ(aKeys[DIK_A], 0);
    CMouseState Mouse;
    Input.ReadMouse(Mouse);
    EXPECT_EQ(Mouse.lX, -6);
    EXPECT_EQ(Mouse.lY, 8);
    EXPECT_EQ(Mouse.lZ, 4 * WHEEL_NOTCH);
    EXPECT_EQ(Mouse.rgbButtons[0], 0);
    EXPECT_EQ(Mouse.rgbButtons[1], INPUT_DOWN);
    EXPECT_EQ(Mouse.rgbButtons[2], INPUT_DOWN);

    Event = {};
    Event.type = SDL_WINDOWEVENT;
    Event.window.event = SDL_WINDOWEVENT_FOCUS_LOST;
    Input.OnEvent(Event);
    Input.ReadKeyboard(aKeys);
    EXPECT_EQ(aKeys[DIK_LEFT], 0) << "its release will go to the window that has the focus now";
}
