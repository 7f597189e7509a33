#pragma once
#include "platform/interfaces/InputSource.h"

#include <cstdint>

// The polled keyboard and mouse. The main loop polls both once in each pass, keyboard first; everybody else
// asks about the state that the last poll left.

constexpr int NUM_LATCHED_BUTTONS = 3;
constexpr float CURSOR_START = 100.0f;
constexpr float CURSOR_MAX_X = 800.0f;
constexpr float CURSOR_MAX_Y = 600.0f;

// A latch of the press-and-release tests.
enum
{
    LATCH_IDLE = 0,
    LATCH_DOWN = 1,     // seen down
    LATCH_RELEASED = 2, // let go, not yet reported
};

extern uint8_t g_aKeyState[NUM_KEYS];
extern uint8_t g_aKeyLatch[NUM_KEYS];
extern CMouseState g_MouseState;
extern uint8_t g_aButtonLatch[NUM_LATCHED_BUTTONS];
extern float g_fMouseX; // the game's own cursor, 0 to 800
extern float g_fMouseY; // 0 to 600

// Set-up and tear-down, each true on success. A device is created on a source, which may be null: a device
// that could not be had. Creating again replaces the source.
bool InitInput();
bool CreateKeyboard(IInputSource* pSource);
bool CreateMouse(IInputSource* pSource);
bool ReleaseKeyboard();
bool ReleaseMouse();
bool ReleaseInput();

// Once in each pass of the main loop. False, with the state left as it was, when there is no device.
bool PollKeyboard();
bool PollMouse();

// Keys by the game's key code (input/KeyCodes.h); buttons 0 left, 1 right, 2 middle.
bool KeyDown(uint8_t byKey);
bool KeyUp(uint8_t byKey);
// True once when the key is let go. The latch only moves when this is called, so a caller sees a key only if it
// tests in each pass, and a key held before the first test still fires when let go.
bool KeyPressed(uint8_t byKey);
bool MouseButtonDown(int iButton);
bool MouseButtonUp(int iButton);
bool MouseButtonPressed(int iButton);

// The counts of the last poll.
void GetMouseMotion(float& fDx, float& fDy);
float GetMouseWheel();
// Each reading moves the cursor by the last poll's counts once more and clamps it to the screen, so the
// cursor speed depends on how often it is read in a pass.
float GetMouseX();
float GetMouseY();
