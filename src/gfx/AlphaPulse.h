#pragma once
#include "app/Clocks.h"

// The slow swing of alpha that marks a ball carrying a powerup: one step of 0.01 every 25 ms of play frames,
// up to 0.9 and down to 0.5. It starts at 0, so the very first swing rises from nothing.
class CAlphaPulse
{
public:
    static constexpr uint32_t STEP_MS = 25;

    // At most one step a frame; time left over when the timer runs out is dropped.
    void Tick(uint32_t uiDelta);

    float m_fAlpha = 0.0f;
    bool m_bRising = true;
    CCountdown m_Timer{STEP_MS};
};
