// What the menu screens have in common: the night backdrop, a title at the top left (the return button
// stands at the top right), and a chain of marbles rolling along the foot of the screen.
#pragma once

#include "Canvas.h"
#include "Shapes.h"

#include <cstdint>
#include <string>
#include <vector>

namespace art {

// Backdrop with the title; titleSize 40 suits most screens.
Canvas titledScreen(const std::string &title, std::uint64_t seed, int titleSize = 40);

// The game's name in large gold letters, centred on the screen's middle and on cy.
void nameMark(Canvas &canvas, float cy, int size);

// A chain through the given points (smoothed), ending in a pit at the last point.
void decorativeChain(Canvas &canvas, const std::vector<Point> &through, float radius, std::uint64_t seed,
                     float opacity = 0.9f);

// A warm glow where the start button (603, 494, 173 by 78) stands.
void startGlow(Canvas &canvas, float strength);

// A line of text with a marble as its bullet; returns the y below it.
float bulletLine(Canvas &canvas, const std::string &text, float x, float y, int width, int colour);

} // namespace art
