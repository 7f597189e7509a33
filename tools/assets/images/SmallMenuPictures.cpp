// The small pieces of the menus: the mouse pointer, the track list's arrows, highlight and scroll bar, the
// volume knob and the in-game chat box.
#include "Catalogue.h"
#include "Filters.h"
#include "Gradients.h"
#include "Shapes.h"
#include "Theme.h"

namespace art {

namespace {

// The pointer's tip is the pixel at (0, 0): the game places the picture's corner at the mouse position.
Canvas cursor()
{
    Canvas c(32, 32);
    std::vector<Point> arrow = {{0.6f, 0.6f}, {0.6f, 22.0f}, {6.0f, 17.2f}, {10.0f, 26.2f},
                                {13.6f, 24.6f}, {9.8f, 15.8f}, {16.8f, 15.8f}};
    Shape body = polygon(arrow);
    c.paint(shifted(blurred(rasterize(body), 2.5f), 2, 2), solid({0, 0, 0, 0.55f}));
    c.paint(rasterize(body), linear(0, 0, 12, 24, {{0.0f, hex(0xffffff)}, {1.0f, theme::paperShade()}}));
    c.paint(rasterize(outline(body, 1.4f)), solid(hex(0x0b1230)));
    // A gold glint along the left edge ties the pointer to the buttons.
    c.paint(rasterize(capsule({2.6f, 5.0f}, {2.6f, 15.0f}, 0.7f)), solid(withAlpha(theme::gold(), 0.9f)));
    return c;
}

enum class Way { Up, Down, Left, Right };

Canvas arrowButton(Way way, bool lit)
{
    Canvas c(16, 16);
    Shape body = circle(8, 8, 7.4f);
    Rgba top = lit ? theme::buttonLitTop() : theme::buttonTop(), low = lit ? theme::buttonLitLow() : theme::buttonLow();
    c.paint(rasterize(body), vertical(0, 16, {{0.0f, top}, {1.0f, low}}));
    c.paint(rasterize(outline(circle(8, 8, 6.9f), 1.2f)), solid(lit ? theme::goldLight() : theme::gold()));
    std::vector<Point> tri;
    switch (way) {
    case Way::Up: tri = {{8, 4.2f}, {11.8f, 10.4f}, {4.2f, 10.4f}}; break;
    case Way::Down: tri = {{8, 11.8f}, {4.2f, 5.6f}, {11.8f, 5.6f}}; break;
    case Way::Left: tri = {{4.2f, 8}, {10.4f, 4.2f}, {10.4f, 11.8f}}; break;
    case Way::Right: tri = {{11.8f, 8}, {5.6f, 11.8f}, {5.6f, 4.2f}}; break;
    }
    c.paint(rasterize(polygon(tri)), solid(lit ? Rgba{1, 1, 1, 1} : theme::cream()));
    return c;
}

// Lies under the row's black text in the track list: a warm band that reads as "this one".
Canvas highlight()
{
    Canvas c(161, 18);
    Shape band = roundRect(0.5f, 0.5f, 160, 17, 4);
    c.paint(rasterize(band), linear(0, 0, 161, 0, {{0.0f, hex(0xe8b94a, 0.75f)}, {1.0f, hex(0xe8b94a, 0.25f)}}));
    c.paint(rasterize(outline(inset(band, 0.5f), 1.0f)), solid(hex(0xb0801f, 0.8f)));
    return c;
}

// The trough between the list's arrows; the arrows are drawn over its ends.
Canvas scrollTrough()
{
    Canvas c(16, 297);
    Shape trough = roundRect(1, 0.5f, 14, 296, 7);
    c.paint(rasterize(trough), linear(0, 0, 16, 0, {{0.0f, theme::paperShade()}, {0.5f, theme::paper()}, {1.0f, theme::paperShade()}}));
    c.paint(rasterize(outline(inset(trough, 0.5f), 1.0f)), solid(theme::paperEdge()));
    c.paint(rasterize(roundRect(7, 20, 2, 257, 1)), solid(withAlpha(theme::paperEdge(), 0.7f)));
    for (float y = 40; y < 270; y += 24)
        c.paint(rasterize(roundRect(5, y, 6, 1.2f, 0.6f)), solid(withAlpha(theme::paperEdge(), 0.5f)));
    return c;
}

// The volume knob. The game puts its left edge at the volume, so that edge is drawn as a bright line.
Canvas sliderKnob()
{
    Canvas c(10, 16);
    Shape body = roundRect(0.5f, 0.5f, 9, 15, 3);
    c.paint(rasterize(body), vertical(0, 16, {{0.0f, theme::goldLight()}, {0.5f, theme::gold()}, {1.0f, theme::goldDeep()}}));
    c.paint(rasterize(outline(inset(body, 0.3f), 1.0f)), solid(hex(0x3a2508)));
    for (float y : {5.5f, 8.0f, 10.5f})
        c.paint(rasterize(roundRect(3, y - 0.5f, 5, 1, 0.5f)), solid(hex(0x5a3a10, 0.8f)));
    c.paint(rasterize(roundRect(0.6f, 2, 1.4f, 12, 0.7f)), solid({1, 1, 1, 0.95f}));
    return c;
}

// Behind the line being typed in play: wide enough for the longest chat line.
Canvas chatBox()
{
    Canvas c(714, 36);
    Shape body = roundRect(0.5f, 0.5f, 713, 35, 8);
    c.paint(rasterize(body), vertical(0, 36, {{0.0f, hex(0x3a3f4c, 0.82f)}, {1.0f, hex(0x20232c, 0.86f)}}));
    c.paint(rasterize(outline(inset(body, 0.6f), 1.2f)), solid(hex(0xc9cfdd, 0.7f)));
    c.paint(rasterize(outline(inset(body, 3.0f), 1.0f)), solid(hex(0x000000, 0.35f)));
    return c;
}

} // namespace

Pictures smallMenuPictures()
{
    return {
        inMenus("cursor.png", cursor),
        inMenus("gray_box.png", chatBox),
        inMenus("arrow_up1.png", [] { return arrowButton(Way::Up, false); }),
        inMenus("arrow_up2.png", [] { return arrowButton(Way::Up, true); }),
        inMenus("arrow_down1.png", [] { return arrowButton(Way::Down, false); }),
        inMenus("arrow_down2.png", [] { return arrowButton(Way::Down, true); }),
        inMenus("arrow_left.png", [] { return arrowButton(Way::Left, false); }),
        inMenus("arrow_left2.png", [] { return arrowButton(Way::Left, true); }),
        inMenus("arrow_right.png", [] { return arrowButton(Way::Right, false); }),
        inMenus("arrow_right2.png", [] { return arrowButton(Way::Right, true); }),
        inMenus("highlight.png", highlight),
        inMenus("scroll.png", scrollTrough),
        inMenus("slide_bar.png", sliderKnob),
    };
}

} // namespace art
