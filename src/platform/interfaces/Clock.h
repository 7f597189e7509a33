#pragma once
#include <cstdint>

// The one millisecond counter of the game. It runs freely and wraps at 2^32 like the counter it stands for.
uint32_t timeGetTime();

// Tests and headless tools drive time by hand: once set, the counter returns the set value until it is set,
// advanced or handed back to the system clock.
void SetManualClock(uint32_t uiNow);
void AdvanceManualClock(uint32_t uiMs);
void UseSystemClock();
