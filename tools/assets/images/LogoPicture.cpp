// The start-up picture: the game's name over a chain of marbles rolling towards its pit.
#include "Backdrop.h"
#include "Catalogue.h"
#include "Filters.h"
#include "Gradients.h"
#include "ScreenFrame.h"
#include "Text.h"
#include "Theme.h"
#include "Widgets.h"

namespace art {

namespace {

Canvas logo()
{
    Canvas c = menuBackdrop(3);
    c.paint(fullMask(kScreenWidth, kScreenHeight),
            oval(400, 250, 380, 140, {{0.0f, hex(0x6a4aa0, 0.45f)}, {1.0f, hex(0, 0)}}));
    decorativeChain(c, {{-30, 330}, {120, 420}, {300, 455}, {500, 440}, {660, 400}, {735, 345}}, 16, 5, 1.0f);
    nameMark(c, 250, 120);
    TextStyle tag = plain(Face::Light, 24, theme::cream());
    tag.shadow = 2.0f;
    drawText(c, "a  marble  shooter", 400, 318, tag, Align::Centre);
    TextStyle hint = plain(Face::Regular, 13, theme::mist());
    drawText(c, "Click to continue", 400, 560, hint, Align::Centre);
    return c;
}

} // namespace

// The game loads its start-up picture under this file name.
Pictures logoPictures() { return {inMenus("kestrun.png", logo)}; }

} // namespace art
