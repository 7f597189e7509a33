// Pieces of landscape for the level backgrounds: ridges, pine woods, a moon, a reflection on water.
#pragma once

#include "Canvas.h"

#include <cstdint>
#include <functional>

namespace art {

// Everything below the ridge line ridgeY(x), with an antialiased top edge.
Mask belowRidge(int width, int height, const std::function<float(float x)> &ridgeY);

// A ridge line: a base height with rolling noise of the given height and feature width.
std::function<float(float)> rollingRidge(std::uint32_t seed, float base, float amplitude, float featureWidth);

// A row of pine silhouettes standing on the given ground line.
struct WoodLook {
    std::uint64_t seed = 1;
    float ground = 500;          // foot of the trees
    float minHeight = 60, maxHeight = 120;
    float spacing = 30;          // mean distance between trunks
    Rgba colour;
};
void pineWood(Canvas &canvas, const WoodLook &look);

// A pale disc with a halo.
void moon(Canvas &canvas, float cx, float cy, float radius, Rgba tint, float glow);

// Horizontal glints on water below a light at x, from the horizon downwards.
void waterGlints(Canvas &canvas, std::uint64_t seed, float x, float horizon, float width, Rgba tint);

// Small warm-green glows drifting between top and bottom.
void fireflies(Canvas &canvas, std::uint64_t seed, int count, float top, float bottom);

} // namespace art
