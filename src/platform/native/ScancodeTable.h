#pragma once
#include <cstdint>

// The game's key code (input/KeyCodes.h) of an SDL scancode; 0, which no key has, for a key the game has no
// code for.
uint8_t DikFromScancode(int iScancode);
