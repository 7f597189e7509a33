// The pictures behind the results screen. The game writes over them in white, teal and red: the score list of
// a network game at y 70..180 (x 200..640), and the statistics with the prompt at x 200, y 350..550. The
// titles stand in the band between, and the grounds stay dark wherever text goes.
#include "Backdrop.h"
#include "Catalogue.h"
#include "Filters.h"
#include "Gradients.h"
#include "Marbles.h"
#include "Random.h"
#include "ScreenFrame.h"
#include "Shapes.h"
#include "Text.h"
#include "Theme.h"
#include "Widgets.h"

#include <cmath>

namespace art
{
namespace
{
constexpr float TITLE_CENTRE = 262; // middle of the band between the two blocks of text

void Subtitle(CCanvas& Canvas, const std::string& Text)
{
    CTextStyle Style = Plain(EFace::Regular, 17, theme::Mist());
    Style.m_fShadow = 2.0f;
    DrawText(Canvas, Text, 400, 302, Style, EAlign::Centre);
}

void StatsPanel(CCanvas& Canvas)
{
    GlassPanel(Canvas, 182, 338, 598, 222, 0.9f);
}

// Where the game writes: the score list, the statistics, and our own title.
bool KeepsClear(float fX, float fY)
{
    bool bList = fY < 196 && fX > 180 && fX < 660;
    bool bStats = fY > 326 && fX > 170;
    bool bTitle = fY > 206 && fY < 326 && fX > 130 && fX < 670;
    return !(bList || bStats || bTitle);
}

// Marbles flung out in a ring, as a chain bursts, with sparks between them.
void Burst(CCanvas& Canvas)
{
    CRandom Rng(404);
    auto aPalette = theme::Balls();
    for(int i = 0; i < 44; ++i)
    {
        float fAngle = 2 * PI * i / 44 + Rng.Range(-0.05f, 0.05f), fReach = Rng.Range(0.8f, 1.2f);
        float fX = 400 + std::cos(fAngle) * 330 * fReach, fY = TITLE_CENTRE + std::sin(fAngle) * 150 * fReach;
        if(!KeepsClear(fX, fY))
            continue;
        DrawMarble(Canvas, fX, fY, Rng.Range(6, 11), aPalette[static_cast<std::size_t>(i % 6)], Rng.Range(0.75f, 1.0f));
    }
    for(int i = 0; i < 30; ++i)
    {
        float fX = Rng.Range(20, 780), fY = Rng.Range(20, 580), fR = Rng.Range(3, 7);
        if(!KeepsClear(fX, fY))
            continue;
        CShape Spark = Polygon({{fX, fY - fR}, {fX + fR * 0.22f, fY}, {fX, fY + fR}, {fX - fR * 0.22f, fY}});
        Canvas.Paint(Rasterize(Unite(
                         Spark, Polygon({{fX - fR, fY}, {fX, fY - fR * 0.22f}, {fX + fR, fY}, {fX, fY + fR * 0.22f}}))),
                     Solid(WithAlpha(theme::GoldLight(), 0.8f)), EBlend::Add);
    }
}

CCanvas WinPicture()
{
    CCanvas Canvas = MenuBackdrop(81);
    // Warm light rising behind the title.
    Canvas.Paint(FullMask(SCREEN_WIDTH, SCREEN_HEIGHT),
                 Oval(400, TITLE_CENTRE, 420, 130,
                      {{0.0f, Hex(0xe8b94a, 0.38f)}, {0.6f, Hex(0xa04a6a, 0.12f)}, {1.0f, Hex(0, 0)}}));
    for(int i = 0; i < 14; ++i)
    {
        float fA = PI * (i / 14.0f) * 2.0f;
        CPoint Tip{400 + std::cos(fA) * 520, TITLE_CENTRE + std::sin(fA) * 230};
        Canvas.Paint(
            Blurred(Rasterize(Polygon(
                        {{400, TITLE_CENTRE}, Tip, {Tip.m_fX + 40 * std::sin(fA), Tip.m_fY - 40 * std::cos(fA)}})),
                    6),
            Solid(Hex(0xffe7a3, 0.05f)), EBlend::Add);
    }
    Burst(Canvas);
    // The same picture greets a cleared level and a network race won on points, so it says only who won.
    ScreenTitle(Canvas, "You Win!", 400, TITLE_CENTRE - 40, 54, true);
    Subtitle(Canvas, "Well played!");
    StatsPanel(Canvas);
    return Canvas;
}

CCanvas LosePicture()
{
    CCanvas Canvas = MenuBackdrop(91);
    Canvas.Paint(FullMask(SCREEN_WIDTH, SCREEN_HEIGHT),
                 Oval(400, TITLE_CENTRE, 420, 120, {{0.0f, Hex(0x8a2a3a, 0.32f)}, {1.0f, Hex(0, 0)}}));
    // A chain that made it all the way down to its pit.
    DecorativeChain(Canvas, {{40, -20}, {120, 120}, {60, 260}, {120, 380}, {90, 470}}, 12, 37);
    ScreenTitle(Canvas, "Level Lost", 400, TITLE_CENTRE - 40, 54, true);
    Subtitle(Canvas, "Better luck next time!");
    StatsPanel(Canvas);
    return Canvas;
}
} // namespace

CPictures ResultPictures()
{
    return {InMenus("win.png", WinPicture), InMenus("lose.png", LosePicture)};
}
} // namespace art
