// Grounds for whole screens: skies, haze, stars and the darkened corners that hold the eye in the middle.
// The menus share one night backdrop; the level pictures build their own from the same pieces.
#pragma once

#include "Canvas.h"
#include "Gradients.h"

#include <cstdint>

namespace art {

constexpr int kScreenWidth = 800;
constexpr int kScreenHeight = 600;

// Soft clouds: noise shaped into wisps of the colour, strongest where the noise is high.
struct HazeLook {
    std::uint32_t seed = 1;
    Rgba colour{1, 1, 1, 1};
    float scale = 160.0f;    // feature size in pixels
    float strength = 0.3f;   // the most alpha a wisp reaches
    float threshold = 0.45f; // noise below this leaves the sky clear
    float top = 0.0f, bottom = kScreenHeight; // the band the haze fades in and out of
};
void haze(Canvas &canvas, const HazeLook &look);

// Scattered stars between top and bottom; the brightest get a small halo.
void stars(Canvas &canvas, std::uint64_t seed, int count, float top, float bottom, float brightness);

// Darkens the corners and edges.
void vignette(Canvas &canvas, float strength);

// The night ground of every menu screen.
Canvas menuBackdrop(std::uint64_t seed);

} // namespace art
