// The start-up picture: the game's name over a chain of marbles rolling towards its pit.
#include "Backdrop.h"
#include "Catalogue.h"
#include "Filters.h"
#include "Gradients.h"
#include "ScreenFrame.h"
#include "Text.h"
#include "Theme.h"
#include "Widgets.h"

namespace art
{
namespace
{
CCanvas Logo()
{
    CCanvas Canvas = MenuBackdrop(3);
    Canvas.Paint(FullMask(SCREEN_WIDTH, SCREEN_HEIGHT),
                 Oval(400, 250, 380, 140, {{0.0f, Hex(0x6a4aa0, 0.45f)}, {1.0f, Hex(0, 0)}}));
    DecorativeChain(Canvas, {{-30, 330}, {120, 420}, {300, 455}, {500, 440}, {660, 400}, {735, 345}}, 16, 5, 1.0f);
    NameMark(Canvas, 250, 120);
    CTextStyle Tag = Plain(EFace::Light, 24, theme::Cream());
    Tag.m_fShadow = 2.0f;
    DrawText(Canvas, "a  marble  shooter", 400, 318, Tag, EAlign::Centre);
    CTextStyle Hint = Plain(EFace::Regular, 13, theme::Mist());
    DrawText(Canvas, "Click to continue", 400, 560, Hint, EAlign::Centre);
    return Canvas;
}
} // namespace

// The game loads its start-up picture under this file name.
CPictures LogoPictures()
{
    return {InMenus("kestrun.png", Logo)};
}
} // namespace art
