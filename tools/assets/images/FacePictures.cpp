// The four danger faces, from calm to panic. They are small (32 pixels) and seen from the corner of the
// eye during play, so each mood is told three ways at once: colour, eyes and mouth.
#include "Faces.h"

#include "Catalogue.h"
#include "Filters.h"
#include "Gradients.h"
#include "Shapes.h"

#include <string>

namespace art
{
namespace
{
constexpr float CENTRE = 16.0f; // centre of the face
const CRgba INK = Hex(0x1a0e08);

void Head(CCanvas& Canvas, CRgba Light, CRgba Dark)
{
    Canvas.Paint(Shifted(Blurred(Rasterize(Circle(CENTRE, CENTRE, 13.5f)), 2.0f), 1, 1), Solid({0, 0, 0, 0.5f}));
    Canvas.Paint(Rasterize(Circle(CENTRE, CENTRE, 14.0f)),
                 Radial(CENTRE - 4, CENTRE - 5, 19, {{0.0f, Light}, {1.0f, Dark}}));
    Canvas.Paint(Rasterize(Outline(Circle(CENTRE, CENTRE, 13.6f), 1.4f)), Solid(INK));
    Canvas.Paint(Rasterize(Ellipse(CENTRE - 4.5f, CENTRE - 8.5f, 5.0f, 2.4f)), Solid({1, 1, 1, 0.35f}));
}

void DotEyes(CCanvas& Canvas, float fY, float fR)
{
    for(float fX : {CENTRE - 5.0f, CENTRE + 5.0f})
        Canvas.Paint(Rasterize(Ellipse(fX, fY, fR * 0.85f, fR * 1.15f)), Solid(INK));
}

void Stroke(CCanvas& Canvas, std::vector<CPoint> vPoints, float fWidth)
{
    Canvas.Paint(Rasterize(Polyline(std::move(vPoints), fWidth)), Solid(INK));
}

// Calm: closed, smiling eyes and a wide smile.
CCanvas Calm()
{
    CCanvas Canvas(32, 32);
    Head(Canvas, Hex(0x9af0b0), Hex(0x2f9e58));
    for(float fX : {CENTRE - 5.0f, CENTRE + 5.0f})
        Canvas.Paint(Rasterize(Arc(fX, CENTRE - 2.5f, 2.8f, PI * 1.15f, PI * 1.85f, 1.6f)), Solid(INK));
    Canvas.Paint(Rasterize(Arc(CENTRE, CENTRE + 1.0f, 7.0f, PI * 0.2f, PI * 0.8f, 1.9f)), Solid(INK));
    return Canvas;
}

// Watchful: open eyes and a straight mouth.
CCanvas Watchful()
{
    CCanvas Canvas(32, 32);
    Head(Canvas, Hex(0xfff09a), Hex(0xc9a21c));
    DotEyes(Canvas, CENTRE - 3.0f, 2.0f);
    Stroke(Canvas, {{CENTRE - 5.5f, CENTRE + 6.0f}, {CENTRE + 5.5f, CENTRE + 6.0f}}, 1.8f);
    return Canvas;
}

// Worried: raised brows, a wavering frown.
CCanvas Worried()
{
    CCanvas Canvas(32, 32);
    Head(Canvas, Hex(0xffc27a), Hex(0xd2641c));
    Stroke(Canvas, {{CENTRE - 8.0f, CENTRE - 6.0f}, {CENTRE - 3.0f, CENTRE - 8.5f}}, 1.5f);
    Stroke(Canvas, {{CENTRE + 8.0f, CENTRE - 6.0f}, {CENTRE + 3.0f, CENTRE - 8.5f}}, 1.5f);
    DotEyes(Canvas, CENTRE - 2.0f, 2.2f);
    Stroke(Canvas,
           {{CENTRE - 6.0f, CENTRE + 8.0f},
            {CENTRE - 3.0f, CENTRE + 5.5f},
            {CENTRE, CENTRE + 7.0f},
            {CENTRE + 3.0f, CENTRE + 5.5f},
            {CENTRE + 6.0f, CENTRE + 8.0f}},
           1.6f);
    return Canvas;
}

// Panic: white staring eyes, a wide-open mouth, a bead of sweat.
CCanvas Panic()
{
    CCanvas Canvas(32, 32);
    Head(Canvas, Hex(0xff8a7a), Hex(0xb01818));
    for(float fX : {CENTRE - 5.5f, CENTRE + 5.5f})
    {
        Canvas.Paint(Rasterize(Circle(fX, CENTRE - 3.0f, 3.8f)), Solid({1, 1, 1, 1}));
        Canvas.Paint(Rasterize(Outline(Circle(fX, CENTRE - 3.0f, 3.8f), 1.0f)), Solid(INK));
        Canvas.Paint(Rasterize(Circle(fX, CENTRE - 3.0f, 1.3f)), Solid(INK));
    }
    Canvas.Paint(Rasterize(Ellipse(CENTRE, CENTRE + 7.0f, 3.6f, 4.4f)), Solid(Hex(0x3a0808)));
    Canvas.Paint(Rasterize(Outline(Ellipse(CENTRE, CENTRE + 7.0f, 3.6f, 4.4f), 1.2f)), Solid(INK));
    CShape Drop = Unite(
        Circle(CENTRE + 11.5f, CENTRE - 4.0f, 2.4f),
        Polygon({{CENTRE + 9.3f, CENTRE - 4.6f}, {CENTRE + 11.5f, CENTRE - 10.0f}, {CENTRE + 13.7f, CENTRE - 4.6f}}));
    Canvas.Paint(Rasterize(Drop), Solid(Hex(0x8fd8ff)));
    Canvas.Paint(Rasterize(Outline(Drop, 0.9f)), Solid(Hex(0x1b4a7a)));
    return Canvas;
}
} // namespace

CCanvas Face(int iMood)
{
    switch(iMood)
    {
    case 0: return Calm();
    case 1: return Watchful();
    case 2: return Worried();
    default: return Panic();
    }
}

CPictures FacePictures()
{
    CPictures vOut;
    for(int iMood = 0; iMood < FACE_COUNT; ++iMood)
        vOut.push_back(InHud("face" + std::to_string(iMood + 1) + ".png", [iMood] { return Face(iMood); }));
    return vOut;
}
} // namespace art
