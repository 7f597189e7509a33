#pragma once
#include "platform/interfaces/InputSource.h"

constexpr int32_t WHEEL_NOTCH = 120; // wheel counts for one notch

// Device state built up from single events: keys and buttons go down and up, motion and wheel counts add up
// until the next read. The real devices and the scripted ones both feed it, so both read alike.
class CInputAccumulator : public IInputSource
{
public:
    void ReadKeyboard(uint8_t aState[NUM_KEYS]) override;
    void ReadMouse(CMouseState& State) override;

    void SetKey(uint8_t byKey, bool bDown);
    // Buttons 0 left, 1 right, 2 middle, 3 the first side button.
    void SetButton(int iButton, bool bDown);
    void AddMotion(int32_t iDx, int32_t iDy);
    // Positive notches turn the wheel away from the player.
    void AddWheel(int32_t iNotches);
    // The releases of whatever is held while another window has the focus go to that window, so losing the
    // focus lets go of every key and button. The mouse is not the game's until the focus comes back.
    void SetFocus(bool bFocus);

private:
    uint8_t m_aKeys[NUM_KEYS] = {};
    CMouseState m_Mouse;
    bool m_bFocus = true;
};
