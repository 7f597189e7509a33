#include "Gradients.h"

#include <algorithm>
#include <cmath>

namespace art {

Rgba sample(const Ramp &ramp, float t)
{
    if (t <= ramp.front().at)
        return ramp.front().colour;
    for (std::size_t i = 1; i < ramp.size(); ++i)
        if (t <= ramp[i].at) {
            float span = ramp[i].at - ramp[i - 1].at;
            float f = span > 0.0f ? (t - ramp[i - 1].at) / span : 1.0f;
            // Smooth the steps between stops so that no band edges show.
            f = f * f * (3.0f - 2.0f * f);
            return mix(ramp[i - 1].colour, ramp[i].colour, f);
        }
    return ramp.back().colour;
}

Paint linear(float x0, float y0, float x1, float y1, Ramp ramp)
{
    float dx = x1 - x0, dy = y1 - y0, len2 = dx * dx + dy * dy;
    return [=](float x, float y) { return sample(ramp, ((x - x0) * dx + (y - y0) * dy) / len2); };
}

Paint vertical(float top, float bottom, Ramp ramp) { return linear(0, top, 0, bottom, std::move(ramp)); }

Paint radial(float cx, float cy, float radius, Ramp ramp) { return oval(cx, cy, radius, radius, std::move(ramp)); }

Paint oval(float cx, float cy, float rx, float ry, Ramp ramp)
{
    return [=](float x, float y) {
        float u = (x - cx) / rx, v = (y - cy) / ry;
        return sample(ramp, std::sqrt(u * u + v * v));
    };
}

} // namespace art
