// The play overlay: the column behind the powerup letters, the panel behind score, next ball, balls left
// and time, the danger bar along which the face slides, and the six ball icons.
#include "Catalogue.h"
#include "Filters.h"
#include "Gradients.h"
#include "Marbles.h"
#include "Shapes.h"
#include "Text.h"
#include "Theme.h"

#include <algorithm>

namespace art {

namespace {

constexpr int kSlots = 5;
constexpr float kSlotPitch = 33.0f; // the game writes letter i at y 12 + 33 i

// Stands at (10, 10); the game centres each letter between x 10 and 42, from y 12 + 33 i.
Canvas powerupColumn()
{
    Canvas c(34, 170);
    Shape column = roundRect(0.5f, 0.5f, 32, 168, 8);
    c.paint(rasterize(column), vertical(0, 170, {{0.0f, hex(0x131c44, 0.7f)}, {1.0f, hex(0x080c22, 0.7f)}}));
    c.paint(rasterize(outline(inset(column, 0.5f), 1.0f)), solid(withAlpha(theme::gold(), 0.45f)));
    for (int i = 0; i < kSlots; ++i) {
        float top = 3.0f + kSlotPitch * i;
        Shape slot = roundRect(3, top, 27, 29, 5);
        bool next = i == 0; // slot 0 is the one the next use takes
        c.paint(rasterize(slot), vertical(top, top + 29, {{0.0f, hex(next ? 0x2b4f7a : 0x1a2a4a, 0.85f)},
                                                          {1.0f, hex(next ? 0x16304f : 0x0e1830, 0.85f)}}));
        c.paint(rasterize(outline(inset(slot, 0.5f), next ? 1.4f : 1.0f)),
                solid(next ? theme::gold() : withAlpha(theme::teal(), 0.45f)));
    }
    return c;
}

// The body of a HUD panel that the game writes on from its left edge: no rim there, a soft fade instead.
void hudGlass(Canvas &c)
{
    float w = static_cast<float>(c.width()), h = static_cast<float>(c.height());
    Shape body = roundRect(-20, 0.5f, w + 19.5f, h - 1, 12);
    Paint fadeIn = [h](float x, float y) {
        float edge = std::min(1.0f, x / 26.0f);
        Rgba tone = mix(hex(0x131c44), hex(0x080c22), y / h);
        return withAlpha(tone, 0.72f * (0.35f + 0.65f * edge));
    };
    c.paint(rasterize(body), fadeIn);
    Paint rimFade = linear(0, 0, 70, 0, {{0.0f, withAlpha(theme::gold(), 0.0f)}, {1.0f, withAlpha(theme::gold(), 0.6f)}});
    c.paint(rasterize(outline(inset(body, 0.5f), 1.2f)), rimFade);
}

// Stands at (500, 10). The game writes the score at (640, 12), "Next:" at (500, 40), the next ball's icon
// at (555, 47), "Balls remaining:" at (500, 60) and "Time:" at (500, 80); the word "Score:" is ours.
Canvas scorePanel()
{
    Canvas c(290, 104);
    hudGlass(c);
    TextStyle label = plain(Face::Regular, theme::kGameTextSize, {1, 1, 1, 1});
    label.shadow = 1.5f;
    label.shadowDy = 1;
    drawText(c, "Score:", 0, 2, label);
    Rgba clear = withAlpha(theme::gold(), 0.0f);
    c.paint(rasterize(roundRect(0, 30.4f, 280, 1.0f, 0.5f)),
            linear(0, 0, 280, 0, {{0.0f, withAlpha(theme::gold(), 0.5f)}, {1.0f, clear}}));
    // A socket for the next ball, centred under its icon.
    c.paint(rasterize(circle(63, 45, 10.5f)), solid(hex(0x02030a, 0.8f)));
    c.paint(rasterize(outline(circle(63, 45, 10.5f), 1.2f)), solid(withAlpha(theme::gold(), 0.8f)));
    return c;
}

// Stands at (144, 550); the face's left edge moves from 144 to 624 as the worst chain nears its end, so the
// face's centre runs along this bar from x 16 to x 496.
Canvas dangerBar()
{
    Canvas c(512, 32);
    Shape groove = roundRect(4, 9, 504, 14, 7);
    c.paint(blurred(rasterize(groove), 4.0f), solid({0, 0, 0, 0.6f}));
    c.paint(rasterize(groove), solid(hex(0x060914, 0.85f)));
    Shape lane = roundRect(8, 12.5f, 496, 7, 3.5f);
    c.paint(rasterize(lane), linear(16, 0, 496, 0, {{0.0f, hex(0x2fae5a)}, {0.3f, hex(0xd8c43a)},
                                                   {0.62f, hex(0xe8822c)}, {1.0f, hex(0xd8322a)}}));
    c.paint(rasterize(roundRect(10, 13.5f, 492, 2, 1)), solid({1, 1, 1, 0.25f}));
    c.paint(rasterize(outline(inset(groove, 0.5f), 1.0f)), solid(withAlpha(theme::gold(), 0.7f)));
    // Ticks where the face changes its mood.
    for (float d : {0.25f, 0.5f, 0.9f}) {
        float x = 16.0f + d * 480.0f;
        c.paint(rasterize(capsule({x, 5}, {x, 27}, 1.1f)), solid(withAlpha(theme::cream(), 0.85f)));
    }
    drawPit(c, 496, 16, 9);
    return c;
}

Canvas ballIcon(Rgba colour)
{
    Canvas c(16, 16);
    drawMarble(c, 7.8f, 7.6f, 7.0f, colour);
    return c;
}

} // namespace

Pictures hudPictures()
{
    Pictures out = {inHud("power_ups.png", powerupColumn), inHud("score.png", scorePanel), inHud("linear_track.png", dangerBar)};
    const char *names[] = {"red", "green", "blue", "yellow", "orange", "purple"};
    auto colours = theme::balls();
    for (std::size_t i = 0; i < colours.size(); ++i) {
        Rgba colour = colours[i];
        out.push_back(inHud(std::string(names[i]) + ".png", [colour] { return ballIcon(colour); }));
    }
    return out;
}

} // namespace art
