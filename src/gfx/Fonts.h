#pragma once
#include "platform/interfaces/RenderDevice.h"

#include <cstdint>
#include <memory>

// The three fonts of the game, made once after the engine is up and released when the window goes.
enum
{
    FONT_SMALL = 0,  // rows of the track list
    FONT_MEDIUM = 1, // nearly all text
    FONT_LARGE = 2,  // the letters of the powerup stack
};

// The colours the screens write in.
constexpr uint32_t TEXT_WHITE = 0xFFFFFFFF;
constexpr uint32_t TEXT_BLACK = 0xFF000000;
constexpr uint32_t TEXT_OWN_PLAYER = 0xFFEE11EE; // this player's name, label or score among the others

extern std::unique_ptr<IFont> g_pFontSmall;
extern std::unique_ptr<IFont> g_pFontMedium;
extern std::unique_ptr<IFont> g_pFontLarge;

// Makes the fonts on the engine's device, in order, stopping at the first that fails.
bool InitFonts();
void ReleaseFonts();
// The one text call: the text's cell starts at (x, y). The large font shows only the first character,
// centred between x and the right edge of the powerup letters' box.
void DrawGameText(const char* pText, int32_t iX, int32_t iY, uint32_t uiColour, int iFont);
// A number in base 10, with no leading zeros and no separators, as every screen shows numbers.
void DrawGameNumber(uint32_t uiValue, int32_t iX, int32_t iY, uint32_t uiColour, int iFont);
