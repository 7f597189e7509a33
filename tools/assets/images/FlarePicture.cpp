// The particle flare. Bursts are added onto the picture, so the glow's colour fades to black together with
// its alpha: the point sprite then has no visible square edge.
#include "Catalogue.h"

#include <algorithm>
#include <cmath>

namespace art {

namespace {

constexpr int kSize = 64;

Canvas flare()
{
    Canvas c(kSize, kSize);
    float centre = kSize / 2.0f;
    c.fill([centre](float x, float y) {
        float d = std::sqrt((x - centre) * (x - centre) + (y - centre) * (y - centre)) / centre;
        float core = std::exp(-d * d * 18.0f);
        float halo = std::exp(-d * d * 4.0f) * 0.55f;
        float edge = std::max(0.0f, 1.0f - d); // exactly nothing at the rim and beyond
        float v = std::min(1.0f, (core + halo) * edge * edge);
        return Rgba{v, v, v, v};
    });
    return c;
}

} // namespace

Pictures flarePictures() { return {inHud("flare.tga", flare)}; }

} // namespace art
