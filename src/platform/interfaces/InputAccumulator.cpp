#include "platform/interfaces/InputAccumulator.h"

#include <cstring>

void CInputAccumulator::ReadKeyboard(uint8_t aState[NUM_KEYS])
{
    std::memcpy(aState, m_aKeys, NUM_KEYS);
}

void CInputAccumulator::ReadMouse(CMouseState& State)
{
    if(!m_bFocus)
        return;
    State = m_Mouse;
    m_Mouse.lX = 0;
    m_Mouse.lY = 0;
    m_Mouse.lZ = 0;
}

void CInputAccumulator::SetKey(uint8_t byKey, bool bDown)
{
    m_aKeys[byKey] = bDown ? INPUT_DOWN : 0;
}

void CInputAccumulator::SetButton(int iButton, bool bDown)
{
    if(m_bFocus && iButton >= 0 && iButton < NUM_MOUSE_BUTTONS)
        m_Mouse.rgbButtons[iButton] = bDown ? INPUT_DOWN : 0;
}

void CInputAccumulator::AddMotion(int32_t iDx, int32_t iDy)
{
    if(!m_bFocus)
        return;
    m_Mouse.lX += iDx;
    m_Mouse.lY += iDy;
}

void CInputAccumulator::AddWheel(int32_t iNotches)
{
    if(m_bFocus)
        m_Mouse.lZ += iNotches * WHEEL_NOTCH;
}

void CInputAccumulator::SetFocus(bool bFocus)
{
    if(!bFocus)
    {
        std::memset(m_aKeys, 0, sizeof(m_aKeys));
        m_Mouse = CMouseState();
    }
    m_bFocus = bFocus;
}
