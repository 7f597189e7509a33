// The particle flare. Bursts are added onto the picture, so the glow's colour fades to black together with
// its alpha: the point sprite then has no visible square edge.
#include "Catalogue.h"

#include <algorithm>
#include <cmath>

namespace art
{
namespace
{
constexpr int SIZE = 64;

CCanvas Flare()
{
    CCanvas Canvas(SIZE, SIZE);
    float fCentre = SIZE / 2.0f;
    Canvas.Fill([fCentre](float fX, float fY) {
        float fD = std::sqrt((fX - fCentre) * (fX - fCentre) + (fY - fCentre) * (fY - fCentre)) / fCentre;
        float fCore = std::exp(-fD * fD * 18.0f);
        float fHalo = std::exp(-fD * fD * 4.0f) * 0.55f;
        float fEdge = std::max(0.0f, 1.0f - fD); // exactly nothing at the rim and beyond
        float fV = std::min(1.0f, (fCore + fHalo) * fEdge * fEdge);
        return CRgba{fV, fV, fV, fV};
    });
    return Canvas;
}
} // namespace

CPictures FlarePictures()
{
    return {InHud("flare.tga", Flare)};
}
} // namespace art
