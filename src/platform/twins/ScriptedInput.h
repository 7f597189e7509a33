#pragma once
#include "platform/interfaces/InputAccumulator.h"

// Keyboard and mouse driven by a test or a headless tool instead of a player, which also counts how often the
// game reads each device.
class CScriptedInput : public CInputAccumulator
{
public:
    void ReadKeyboard(uint8_t aState[NUM_KEYS]) override
    {
        m_uiKeyboardReads++;
        CInputAccumulator::ReadKeyboard(aState);
    }
    void ReadMouse(CMouseState& State) override
    {
        m_uiMouseReads++;
        CInputAccumulator::ReadMouse(State);
    }

    uint32_t m_uiKeyboardReads = 0;
    uint32_t m_uiMouseReads = 0;
};
