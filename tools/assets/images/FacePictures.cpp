// The four danger faces, from calm to panic. They are small (32 pixels) and seen from the corner of the
// eye during play, so each mood is told three ways at once: colour, eyes and mouth.
#include "Faces.h"

#include "Catalogue.h"
#include "Filters.h"
#include "Gradients.h"
#include "Shapes.h"

#include <string>

namespace art {

namespace {

constexpr float kPi = 3.14159265f;
constexpr float kC = 16.0f; // centre of the face
const Rgba kInk = hex(0x1a0e08);

void head(Canvas &c, Rgba light, Rgba dark)
{
    c.paint(shifted(blurred(rasterize(circle(kC, kC, 13.5f)), 2.0f), 1, 1), solid({0, 0, 0, 0.5f}));
    c.paint(rasterize(circle(kC, kC, 14.0f)), radial(kC - 4, kC - 5, 19, {{0.0f, light}, {1.0f, dark}}));
    c.paint(rasterize(outline(circle(kC, kC, 13.6f), 1.4f)), solid(kInk));
    c.paint(rasterize(ellipse(kC - 4.5f, kC - 8.5f, 5.0f, 2.4f)), solid({1, 1, 1, 0.35f}));
}

void dotEyes(Canvas &c, float y, float r)
{
    for (float x : {kC - 5.0f, kC + 5.0f})
        c.paint(rasterize(ellipse(x, y, r * 0.85f, r * 1.15f)), solid(kInk));
}

void stroke(Canvas &c, std::vector<Point> pts, float width) { c.paint(rasterize(polyline(std::move(pts), width)), solid(kInk)); }

// Calm: closed, smiling eyes and a wide smile.
Canvas calm()
{
    Canvas c(32, 32);
    head(c, hex(0x9af0b0), hex(0x2f9e58));
    for (float x : {kC - 5.0f, kC + 5.0f})
        c.paint(rasterize(arc(x, kC - 2.5f, 2.8f, kPi * 1.15f, kPi * 1.85f, 1.6f)), solid(kInk));
    c.paint(rasterize(arc(kC, kC + 1.0f, 7.0f, kPi * 0.2f, kPi * 0.8f, 1.9f)), solid(kInk));
    return c;
}

// Watchful: open eyes and a straight mouth.
Canvas watchful()
{
    Canvas c(32, 32);
    head(c, hex(0xfff09a), hex(0xc9a21c));
    dotEyes(c, kC - 3.0f, 2.0f);
    stroke(c, {{kC - 5.5f, kC + 6.0f}, {kC + 5.5f, kC + 6.0f}}, 1.8f);
    return c;
}

// Worried: raised brows, a wavering frown.
Canvas worried()
{
    Canvas c(32, 32);
    head(c, hex(0xffc27a), hex(0xd2641c));
    stroke(c, {{kC - 8.0f, kC - 6.0f}, {kC - 3.0f, kC - 8.5f}}, 1.5f);
    stroke(c, {{kC + 8.0f, kC - 6.0f}, {kC + 3.0f, kC - 8.5f}}, 1.5f);
    dotEyes(c, kC - 2.0f, 2.2f);
    stroke(c, {{kC - 6.0f, kC + 8.0f}, {kC - 3.0f, kC + 5.5f}, {kC, kC + 7.0f}, {kC + 3.0f, kC + 5.5f}, {kC + 6.0f, kC + 8.0f}},
           1.6f);
    return c;
}

// Panic: white staring eyes, a wide-open mouth, a bead of sweat.
Canvas panic()
{
    Canvas c(32, 32);
    head(c, hex(0xff8a7a), hex(0xb01818));
    for (float x : {kC - 5.5f, kC + 5.5f}) {
        c.paint(rasterize(circle(x, kC - 3.0f, 3.8f)), solid({1, 1, 1, 1}));
        c.paint(rasterize(outline(circle(x, kC - 3.0f, 3.8f), 1.0f)), solid(kInk));
        c.paint(rasterize(circle(x, kC - 3.0f, 1.3f)), solid(kInk));
    }
    c.paint(rasterize(ellipse(kC, kC + 7.0f, 3.6f, 4.4f)), solid(hex(0x3a0808)));
    c.paint(rasterize(outline(ellipse(kC, kC + 7.0f, 3.6f, 4.4f), 1.2f)), solid(kInk));
    Shape drop = unite(circle(kC + 11.5f, kC - 4.0f, 2.4f),
                       polygon({{kC + 9.3f, kC - 4.6f}, {kC + 11.5f, kC - 10.0f}, {kC + 13.7f, kC - 4.6f}}));
    c.paint(rasterize(drop), solid(hex(0x8fd8ff)));
    c.paint(rasterize(outline(drop, 0.9f)), solid(hex(0x1b4a7a)));
    return c;
}

} // namespace

Canvas face(int mood)
{
    switch (mood) {
    case 0: return calm();
    case 1: return watchful();
    case 2: return worried();
    default: return panic();
    }
}

Pictures facePictures()
{
    Pictures out;
    for (int mood = 0; mood < kFaceCount; ++mood)
        out.push_back(inHud("face" + std::to_string(mood + 1) + ".png", [mood] { return face(mood); }));
    return out;
}

} // namespace art
