// The small pieces of the menus: the mouse pointer, the track list's arrows, highlight and scroll bar, the
// volume knob and the in-game chat box.
#include "Catalogue.h"
#include "Filters.h"
#include "Gradients.h"
#include "Shapes.h"
#include "Theme.h"

namespace art
{
namespace
{
// The pointer's tip is the pixel at (0, 0): the game places the picture's corner at the mouse position.
CCanvas Cursor()
{
    CCanvas Canvas(32, 32);
    std::vector<CPoint> vArrow = {{0.6f, 0.6f},   {0.6f, 22.0f}, {6.0f, 17.2f}, {10.0f, 26.2f},
                                  {13.6f, 24.6f}, {9.8f, 15.8f}, {16.8f, 15.8f}};
    CShape Body = Polygon(vArrow);
    Canvas.Paint(Shifted(Blurred(Rasterize(Body), 2.5f), 2, 2), Solid({0, 0, 0, 0.55f}));
    Canvas.Paint(Rasterize(Body), Linear(0, 0, 12, 24, {{0.0f, Hex(0xffffff)}, {1.0f, theme::PaperShade()}}));
    Canvas.Paint(Rasterize(Outline(Body, 1.4f)), Solid(Hex(0x0b1230)));
    // A gold glint along the left edge ties the pointer to the buttons.
    Canvas.Paint(Rasterize(Capsule({2.6f, 5.0f}, {2.6f, 15.0f}, 0.7f)), Solid(WithAlpha(theme::Gold(), 0.9f)));
    return Canvas;
}

enum class EWay
{
    Up,
    Down,
    Left,
    Right
};

CCanvas ArrowButton(EWay eWay, bool bLit)
{
    CCanvas Canvas(16, 16);
    CShape Body = Circle(8, 8, 7.4f);
    CRgba Top = bLit ? theme::ButtonLitTop() : theme::ButtonTop(),
          Low = bLit ? theme::ButtonLitLow() : theme::ButtonLow();
    Canvas.Paint(Rasterize(Body), Vertical(0, 16, {{0.0f, Top}, {1.0f, Low}}));
    Canvas.Paint(Rasterize(Outline(Circle(8, 8, 6.9f), 1.2f)), Solid(bLit ? theme::GoldLight() : theme::Gold()));
    std::vector<CPoint> vTri;
    switch(eWay)
    {
    case EWay::Up: vTri = {{8, 4.2f}, {11.8f, 10.4f}, {4.2f, 10.4f}}; break;
    case EWay::Down: vTri = {{8, 11.8f}, {4.2f, 5.6f}, {11.8f, 5.6f}}; break;
    case EWay::Left: vTri = {{4.2f, 8}, {10.4f, 4.2f}, {10.4f, 11.8f}}; break;
    case EWay::Right: vTri = {{11.8f, 8}, {5.6f, 11.8f}, {5.6f, 4.2f}}; break;
    }
    Canvas.Paint(Rasterize(Polygon(vTri)), Solid(bLit ? CRgba{1, 1, 1, 1} : theme::Cream()));
    return Canvas;
}

// Lies under the row's black text in the track list: a warm band that reads as "this one".
CCanvas Highlight()
{
    CCanvas Canvas(161, 18);
    CShape Band = RoundRect(0.5f, 0.5f, 160, 17, 4);
    Canvas.Paint(Rasterize(Band), Linear(0, 0, 161, 0, {{0.0f, Hex(0xe8b94a, 0.75f)}, {1.0f, Hex(0xe8b94a, 0.25f)}}));
    Canvas.Paint(Rasterize(Outline(Inset(Band, 0.5f), 1.0f)), Solid(Hex(0xb0801f, 0.8f)));
    return Canvas;
}

// The trough between the list's arrows; the arrows are drawn over its ends.
CCanvas ScrollTrough()
{
    CCanvas Canvas(16, 297);
    CShape Trough = RoundRect(1, 0.5f, 14, 296, 7);
    Canvas.Paint(
        Rasterize(Trough),
        Linear(0, 0, 16, 0, {{0.0f, theme::PaperShade()}, {0.5f, theme::Paper()}, {1.0f, theme::PaperShade()}}));
    Canvas.Paint(Rasterize(Outline(Inset(Trough, 0.5f), 1.0f)), Solid(theme::PaperEdge()));
    Canvas.Paint(Rasterize(RoundRect(7, 20, 2, 257, 1)), Solid(WithAlpha(theme::PaperEdge(), 0.7f)));
    for(float fY = 40; fY < 270; fY += 24)
        Canvas.Paint(Rasterize(RoundRect(5, fY, 6, 1.2f, 0.6f)), Solid(WithAlpha(theme::PaperEdge(), 0.5f)));
    return Canvas;
}

// The volume knob. The game puts its left edge at the volume, so that edge is drawn as a bright line.
CCanvas SliderKnob()
{
    CCanvas Canvas(10, 16);
    CShape Body = RoundRect(0.5f, 0.5f, 9, 15, 3);
    Canvas.Paint(Rasterize(Body),
                 Vertical(0, 16, {{0.0f, theme::GoldLight()}, {0.5f, theme::Gold()}, {1.0f, theme::GoldDeep()}}));
    Canvas.Paint(Rasterize(Outline(Inset(Body, 0.3f), 1.0f)), Solid(Hex(0x3a2508)));
    for(float fY : {5.5f, 8.0f, 10.5f})
        Canvas.Paint(Rasterize(RoundRect(3, fY - 0.5f, 5, 1, 0.5f)), Solid(Hex(0x5a3a10, 0.8f)));
    Canvas.Paint(Rasterize(RoundRect(0.6f, 2, 1.4f, 12, 0.7f)), Solid({1, 1, 1, 0.95f}));
    return Canvas;
}

// Behind the line being typed in play: wide enough for the longest chat line.
CCanvas ChatBox()
{
    CCanvas Canvas(714, 36);
    CShape Body = RoundRect(0.5f, 0.5f, 713, 35, 8);
    Canvas.Paint(Rasterize(Body), Vertical(0, 36, {{0.0f, Hex(0x3a3f4c, 0.82f)}, {1.0f, Hex(0x20232c, 0.86f)}}));
    Canvas.Paint(Rasterize(Outline(Inset(Body, 0.6f), 1.2f)), Solid(Hex(0xc9cfdd, 0.7f)));
    Canvas.Paint(Rasterize(Outline(Inset(Body, 3.0f), 1.0f)), Solid(Hex(0x000000, 0.35f)));
    return Canvas;
}
} // namespace

CPictures SmallMenuPictures()
{
    return {
        InMenus("cursor.png", Cursor),
        InMenus("gray_box.png", ChatBox),
        InMenus("arrow_up1.png", [] { return ArrowButton(EWay::Up, false); }),
        InMenus("arrow_up2.png", [] { return ArrowButton(EWay::Up, true); }),
        InMenus("arrow_down1.png", [] { return ArrowButton(EWay::Down, false); }),
        InMenus("arrow_down2.png", [] { return ArrowButton(EWay::Down, true); }),
        InMenus("arrow_left.png", [] { return ArrowButton(EWay::Left, false); }),
        InMenus("arrow_left2.png", [] { return ArrowButton(EWay::Left, true); }),
        InMenus("arrow_right.png", [] { return ArrowButton(EWay::Right, false); }),
        InMenus("arrow_right2.png", [] { return ArrowButton(EWay::Right, true); }),
        InMenus("highlight.png", Highlight),
        InMenus("scroll.png", ScrollTrough),
        InMenus("slide_bar.png", SliderKnob),
    };
}
} // namespace art
