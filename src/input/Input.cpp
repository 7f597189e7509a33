#include "input/Input.h"

#include <cstring>

uint8_t g_aKeyState[NUM_KEYS] = {};
uint8_t g_aKeyLatch[NUM_KEYS] = {};
CMouseState g_MouseState;
uint8_t g_aButtonLatch[NUM_LATCHED_BUTTONS] = {};
float g_fMouseX = CURSOR_START;
float g_fMouseY = CURSOR_START;

namespace
{
bool g_bInputOpen = false; // devices can only be created between InitInput and ReleaseInput
IInputSource* g_pKeyboard = nullptr;
IInputSource* g_pMouse = nullptr;

bool IsDown(uint8_t byState)
{
    return (byState & INPUT_DOWN) != 0;
}

// Down arms the latch, up after down makes it pending, and the test after that reports it and disarms it.
bool StepLatch(uint8_t& byLatch, uint8_t byState)
{
    if(IsDown(byState))
        byLatch = LATCH_DOWN;
    if(byLatch == LATCH_DOWN && !IsDown(byState))
        byLatch = LATCH_RELEASED;
    if(byLatch != LATCH_RELEASED)
        return false;
    byLatch = LATCH_IDLE;
    return true;
}

float MoveCursor(float& fPosition, int32_t lCounts, float fMax)
{
    fPosition += static_cast<float>(lCounts);
    if(fPosition < 0.0f)
        fPosition = 0.0f;
    if(fPosition > fMax)
        fPosition = fMax;
    return fPosition;
}
} // namespace

bool InitInput()
{
    g_bInputOpen = true;
    std::memset(g_aKeyLatch, LATCH_IDLE, sizeof(g_aKeyLatch));
    return true;
}

bool CreateKeyboard(IInputSource* pSource)
{
    if(!g_bInputOpen)
        return false;
    g_pKeyboard = pSource;
    return g_pKeyboard != nullptr;
}

bool CreateMouse(IInputSource* pSource)
{
    std::memset(g_aButtonLatch, LATCH_IDLE, sizeof(g_aButtonLatch));
    if(!g_bInputOpen)
        return false;
    g_pMouse = pSource;
    return g_pMouse != nullptr;
}

bool ReleaseKeyboard()
{
    g_pKeyboard = nullptr;
    return true;
}

bool ReleaseMouse()
{
    g_pMouse = nullptr;
    return true;
}

bool ReleaseInput()
{
    g_bInputOpen = false;
    return true;
}

bool PollKeyboard()
{
    if(!g_pKeyboard)
        return false;
    g_pKeyboard->ReadKeyboard(g_aKeyState);
    return true;
}

bool PollMouse()
{
    if(!g_pMouse)
        return false;
    g_pMouse->ReadMouse(g_MouseState);
    return true;
}

bool KeyDown(uint8_t byKey)
{
    return IsDown(g_aKeyState[byKey]);
}

bool KeyUp(uint8_t byKey)
{
    return !KeyDown(byKey);
}

bool KeyPressed(uint8_t byKey)
{
    return StepLatch(g_aKeyLatch[byKey], g_aKeyState[byKey]);
}

bool MouseButtonDown(int iButton)
{
    return IsDown(g_MouseState.rgbButtons[iButton]);
}

bool MouseButtonUp(int iButton)
{
    return !MouseButtonDown(iButton);
}

bool MouseButtonPressed(int iButton)
{
    return StepLatch(g_aButtonLatch[iButton], g_MouseState.rgbButtons[iButton]);
}

void GetMouseMotion(float& fDx, float& fDy)
{
    fDx = static_cast<float>(g_MouseState.lX);
    fDy = static_cast<float>(g_MouseState.lY);
}

float GetMouseWheel()
{
    return static_cast<float>(g_MouseState.lZ);
}

float GetMouseX()
{
    return MoveCursor(g_fMouseX, g_MouseState.lX, CURSOR_MAX_X);
}

float GetMouseY()
{
    return MoveCursor(g_fMouseY, g_MouseState.lY, CURSOR_MAX_Y);
}
