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

namespace art
{
namespace
{
constexpr int SLOTS = 5;
constexpr float SLOT_PITCH = 33.0f; // the game writes letter i at y 12 + 33 i

// Stands at (10, 10); the game centres each letter between x 10 and 42, from y 12 + 33 i.
CCanvas PowerupColumn()
{
    CCanvas Canvas(34, 170);
    CShape Column = RoundRect(0.5f, 0.5f, 32, 168, 8);
    Canvas.Paint(Rasterize(Column), Vertical(0, 170, {{0.0f, Hex(0x131c44, 0.7f)}, {1.0f, Hex(0x080c22, 0.7f)}}));
    Canvas.Paint(Rasterize(Outline(Inset(Column, 0.5f), 1.0f)), Solid(WithAlpha(theme::Gold(), 0.45f)));
    for(int i = 0; i < SLOTS; ++i)
    {
        float fTop = 3.0f + SLOT_PITCH * i;
        CShape Slot = RoundRect(3, fTop, 27, 29, 5);
        bool bNext = i == 0; // slot 0 is the one the next use takes
        Canvas.Paint(Rasterize(Slot), Vertical(fTop, fTop + 29,
                                               {{0.0f, Hex(bNext ? 0x2b4f7a : 0x1a2a4a, 0.85f)},
                                                {1.0f, Hex(bNext ? 0x16304f : 0x0e1830, 0.85f)}}));
        Canvas.Paint(Rasterize(Outline(Inset(Slot, 0.5f), bNext ? 1.4f : 1.0f)),
                     Solid(bNext ? theme::Gold() : WithAlpha(theme::Teal(), 0.45f)));
    }
    return Canvas;
}

// The body of a HUD panel that the game writes on from its left edge: no rim there, a soft fade instead.
void HudGlass(CCanvas& Canvas)
{
    float fW = static_cast<float>(Canvas.Width()), fH = static_cast<float>(Canvas.Height());
    CShape Body = RoundRect(-20, 0.5f, fW + 19.5f, fH - 1, 12);
    CPaint fnFadeIn = [fH](float fX, float fY) {
        float fEdge = std::min(1.0f, fX / 26.0f);
        CRgba Tone = Mix(Hex(0x131c44), Hex(0x080c22), fY / fH);
        return WithAlpha(Tone, 0.72f * (0.35f + 0.65f * fEdge));
    };
    Canvas.Paint(Rasterize(Body), fnFadeIn);
    CPaint fnRimFade =
        Linear(0, 0, 70, 0, {{0.0f, WithAlpha(theme::Gold(), 0.0f)}, {1.0f, WithAlpha(theme::Gold(), 0.6f)}});
    Canvas.Paint(Rasterize(Outline(Inset(Body, 0.5f), 1.2f)), fnRimFade);
}

// Stands at (500, 10). The game writes the score at (640, 12), "Next:" at (500, 40), the next ball's icon
// at (555, 47), "Balls remaining:" at (500, 60) and "Time:" at (500, 80); the word "Score:" is ours.
CCanvas ScorePanel()
{
    CCanvas Canvas(290, 104);
    HudGlass(Canvas);
    CTextStyle Label = Plain(EFace::Regular, theme::GAME_TEXT_SIZE, {1, 1, 1, 1});
    Label.m_fShadow = 1.5f;
    Label.m_iShadowDy = 1;
    DrawText(Canvas, "Score:", 0, 2, Label);
    CRgba Clear = WithAlpha(theme::Gold(), 0.0f);
    Canvas.Paint(Rasterize(RoundRect(0, 30.4f, 280, 1.0f, 0.5f)),
                 Linear(0, 0, 280, 0, {{0.0f, WithAlpha(theme::Gold(), 0.5f)}, {1.0f, Clear}}));
    // A socket for the next ball, centred under its icon.
    Canvas.Paint(Rasterize(Circle(63, 45, 10.5f)), Solid(Hex(0x02030a, 0.8f)));
    Canvas.Paint(Rasterize(Outline(Circle(63, 45, 10.5f), 1.2f)), Solid(WithAlpha(theme::Gold(), 0.8f)));
    return Canvas;
}

// Stands at (144, 550); the face's left edge moves from 144 to 624 as the worst chain nears its end, so the
// face's centre runs along this bar from x 16 to x 496.
CCanvas DangerBar()
{
    CCanvas Canvas(512, 32);
    CShape Groove = RoundRect(4, 9, 504, 14, 7);
    Canvas.Paint(Blurred(Rasterize(Groove), 4.0f), Solid({0, 0, 0, 0.6f}));
    Canvas.Paint(Rasterize(Groove), Solid(Hex(0x060914, 0.85f)));
    CShape Lane = RoundRect(8, 12.5f, 496, 7, 3.5f);
    Canvas.Paint(Rasterize(Lane),
                 Linear(16, 0, 496, 0,
                        {{0.0f, Hex(0x2fae5a)}, {0.3f, Hex(0xd8c43a)}, {0.62f, Hex(0xe8822c)}, {1.0f, Hex(0xd8322a)}}));
    Canvas.Paint(Rasterize(RoundRect(10, 13.5f, 492, 2, 1)), Solid({1, 1, 1, 0.25f}));
    Canvas.Paint(Rasterize(Outline(Inset(Groove, 0.5f), 1.0f)), Solid(WithAlpha(theme::Gold(), 0.7f)));
    // Ticks where the face changes its mood.
    for(float fD : {0.25f, 0.5f, 0.9f})
    {
        float fX = 16.0f + fD * 480.0f;
        Canvas.Paint(Rasterize(Capsule({fX, 5}, {fX, 27}, 1.1f)), Solid(WithAlpha(theme::Cream(), 0.85f)));
    }
    DrawPit(Canvas, 496, 16, 9);
    return Canvas;
}

CCanvas BallIcon(CRgba Colour)
{
    CCanvas Canvas(16, 16);
    DrawMarble(Canvas, 7.8f, 7.6f, 7.0f, Colour);
    return Canvas;
}
} // namespace

CPictures HudPictures()
{
    CPictures vOut = {InHud("power_ups.png", PowerupColumn), InHud("score.png", ScorePanel),
                      InHud("linear_track.png", DangerBar)};
    const char* apNames[] = {"red", "green", "blue", "yellow", "orange", "purple"};
    auto aColours = theme::Balls();
    for(std::size_t i = 0; i < aColours.size(); ++i)
    {
        CRgba Colour = aColours[i];
        vOut.push_back(InHud(std::string(apNames[i]) + ".png", [Colour] { return BallIcon(Colour); }));
    }
    return vOut;
}
} // namespace art
