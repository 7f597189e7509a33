// Paints that vary over the picture: colour ramps along a line or out from a centre.
#pragma once

#include "Canvas.h"

#include <vector>

namespace art {

struct Stop {
    float at; // 0..1 along the ramp
    Rgba colour;
};

using Ramp = std::vector<Stop>;

Rgba sample(const Ramp &ramp, float t);

Paint linear(float x0, float y0, float x1, float y1, Ramp ramp);
Paint vertical(float top, float bottom, Ramp ramp);
Paint radial(float cx, float cy, float radius, Ramp ramp);
// Radial with separate horizontal and vertical reach: for wide, flat glows.
Paint oval(float cx, float cy, float rx, float ry, Ramp ramp);

} // namespace art
