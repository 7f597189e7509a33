// What the menu screens have in common: the night backdrop, a title at the top left (the return button
// stands at the top right), and a chain of marbles rolling along the foot of the screen.
#pragma once

#include "Canvas.h"
#include "Shapes.h"

#include <cstdint>
#include <string>
#include <vector>

namespace art
{
// Backdrop with the title; iTitleSize 40 suits most screens.
CCanvas TitledScreen(const std::string& Title, std::uint64_t ulSeed, int iTitleSize = 40);

// The game's name in large gold letters, centred on the screen's middle and on fCy.
void NameMark(CCanvas& Canvas, float fCy, int iSize);

// A chain through the given points (smoothed), ending in a pit at the last point.
void DecorativeChain(CCanvas& Canvas, const std::vector<CPoint>& vThrough, float fRadius, std::uint64_t ulSeed,
                     float fOpacity = 0.9f);

// A warm glow where the start button (603, 494, 173 by 78) stands.
void StartGlow(CCanvas& Canvas, float fStrength);

// A line of text with a marble as its bullet; returns the y below it.
float BulletLine(CCanvas& Canvas, const std::string& Text, float fX, float fY, int iWidth, int iColour);
} // namespace art
