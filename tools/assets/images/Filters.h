// Operations on coverage masks: the blur behind glows and shadows, growing and moving masks, and the smooth
// noise that gives clouds, mist and nebulae their texture.
#pragma once

#include "Canvas.h"

#include <cstdint>

namespace art {

Mask blurred(const Mask &mask, float radius);    // Gaussian-like (three box passes), grows by the radius
Mask dilated(const Mask &mask, float radius);    // every edge pushed out by the radius
Mask shifted(const Mask &mask, int dx, int dy);
Mask scaledCover(const Mask &mask, float factor); // coverage times factor, clamped
Mask multiplied(const Mask &a, const Mask &b);    // coverage of a kept where b covers
Mask united(const Mask &a, const Mask &b);        // the larger coverage of the two
Mask fullMask(int width, int height);             // a whole picture, fully covered

// Smooth value noise, about 0..1, with features near `scale` pixels; octaves add finer detail.
class Noise {
public:
    explicit Noise(std::uint32_t seed);
    float at(float x, float y) const;
    float fractal(float x, float y, float scale, int octaves) const;

private:
    float lattice(int x, int y) const;
    std::uint32_t seed_;
};

} // namespace art
