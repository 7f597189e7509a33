// The main menu, the single-player menu and the spline editor's screen. Buttons are separate pictures
// drawn over these; the backgrounds only prepare their places.
#include "Backdrop.h"
#include "Catalogue.h"
#include "Faces.h"
#include "Gradients.h"
#include "Marbles.h"
#include "ScreenFrame.h"
#include "Text.h"
#include "Theme.h"
#include "Widgets.h"

namespace art
{
namespace
{
void Tagline(CCanvas& Canvas, const std::string& Text, float fY)
{
    CTextStyle Style = Plain(EFace::Regular, 17, theme::Mist());
    Style.m_fShadow = 2.0f;
    DrawText(Canvas, Text, 400, fY, Style, EAlign::Centre);
}

// Buttons stand at x 268..512 from y 280 to 482; the credits button at the lower right corner.
CCanvas MainMenu()
{
    CCanvas Canvas = MenuBackdrop(11);
    DecorativeChain(Canvas, {{-30, 300}, {60, 250}, {150, 300}, {170, 420}, {110, 520}, {200, 575}, {330, 560}}, 13, 4);
    DecorativeChain(Canvas, {{830, 330}, {740, 290}, {650, 340}, {640, 450}, {720, 510}, {600, 540}}, 13, 9);
    NameMark(Canvas, 150, 92);
    Tagline(Canvas, "a marble shooter", 208);
    GlassPanel(Canvas, 246, 262, 288, 240, 0.85f);
    Rule(Canvas, 260, 520, 250, 0.5f);
    CTextStyle Hint = Plain(EFace::Regular, 12, WithAlpha(theme::Mist(), 0.8f));
    DrawText(Canvas, "Esc quits from any screen", 16, 580, Hint);
    return Canvas;
}

void HowToPlay(CCanvas& Canvas)
{
    GlassPanel(Canvas, 30, 96, 520, 330);
    Caption(Canvas, "HOW TO PLAY", 50, 110);
    const char* apLines[] = {
        "Chains of marbles roll along the tracks towards the end.",
        "Shoot a marble into a chain: three or more of one colour vanish, and the gap closes by itself.",
        "Aim with the mouse. The left button shoots, the right button swaps the two marbles ready to fire.",
        "The mouse wheel and the arrow keys move you along your path; the middle button takes the next path.",
        "Pulsing marbles give powerup letters. Press Space to use the oldest one.",
        "Clear every track before a marble reaches its end or the clock runs out.",
    };
    float fY = 136;
    int iColour = 0;
    for(const char* pLine : apLines)
        fY = BulletLine(Canvas, pLine, 50, fY, 480, iColour++);
}

void DangerLegend(CCanvas& Canvas)
{
    GlassPanel(Canvas, 570, 96, 200, 330);
    Caption(Canvas, "DANGER", 590, 110);
    const char* apMoods[] = {"All is well", "Watch the chain", "Hurry up!", "Almost gone!"};
    CTextStyle Style = Plain(EFace::Regular, 15, theme::Cream());
    for(int iMood = 0; iMood < FACE_COUNT; ++iMood)
    {
        float fY = 138 + iMood * 70.0f;
        Canvas.Draw(Face(iMood), 592, static_cast<int>(fY));
        DrawText(Canvas, apMoods[iMood], 634, LineTopFor(Style.m_eFace, Style.m_iSize, fY + 16), Style);
    }
}

CCanvas SinglePlayerMenu()
{
    CCanvas Canvas = TitledScreen("Single Player", 21);
    HowToPlay(Canvas);
    DangerLegend(Canvas);
    StartGlow(Canvas, 0.28f);
    Paragraph(Canvas, "The levels come one after another, and each round rolls a little faster than the last.", 40, 456,
              520, 15, theme::Mist());
    DecorativeChain(Canvas, {{-30, 540}, {130, 510}, {300, 560}, {470, 520}, {560, 545}}, 12, 29);
    return Canvas;
}

// Not shown by the game, but loaded with the rest: a quiet screen with a curve and its control points.
CCanvas SplineEditor()
{
    CCanvas Canvas = TitledScreen("Spline Editor", 31);
    GlassPanel(Canvas, 40, 100, 720, 450);
    std::vector<CPoint> vHull = {{110, 470}, {180, 200}, {330, 160}, {420, 420}, {560, 460}, {650, 180}, {700, 300}};
    Canvas.Paint(Rasterize(Polyline(vHull, 1.2f)), Solid(WithAlpha(theme::Mist(), 0.5f)));
    Canvas.Paint(Rasterize(Polyline(SmoothCurve(vHull, 24), 3.0f)), Solid(theme::Gold()));
    for(const CPoint& p : vHull)
        DrawMarble(Canvas, p.m_fX, p.m_fY, 7, theme::Balls()[2]);
    return Canvas;
}
} // namespace

CPictures MainScreens()
{
    return {InMenus("Main_Menu.png", MainMenu), InMenus("single_player_menu.png", SinglePlayerMenu),
            InMenus("spline_editor_menu.png", SplineEditor)};
}
} // namespace art
