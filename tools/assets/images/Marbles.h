// Glossy marbles, the game's one motif: the HUD's ball icons, the chains that wind through the menus, the
// logo's spiral.
#pragma once

#include "Canvas.h"
#include "Shapes.h"

#include <cstdint>
#include <vector>

namespace art {

// A lit sphere: colour, a soft shade to the lower right, a white highlight to the upper left.
void drawMarble(Canvas &canvas, float cx, float cy, float radius, Rgba colour, float opacity = 1.0f);

struct ChainLook {
    float radius = 12.0f;
    float opacity = 1.0f;
    float grooveOpacity = 0.5f; // the track under the balls; 0 for none
    std::uint64_t seed = 1;     // which colours, in runs of one to three as in play
};

// The track a chain rolls on: a dark channel with a thin gold line.
void drawGroove(Canvas &canvas, const std::vector<Point> &path, float ballRadius, float opacity);

// Balls touching one another along a path, with the track they roll on.
void drawChain(Canvas &canvas, const std::vector<Point> &path, const ChainLook &look);

// The pit at a track's end, where a chain must never arrive.
void drawPit(Canvas &canvas, float cx, float cy, float radius, float opacity = 1.0f);

} // namespace art
