// The lobby and the connect screen. The game writes on these in black: the track list from (58, 71), chat
// lines from (260, 74), the typed line at (260, 235), player names from (620, 74), the address at (106, 218).
// Each of those places gets a paper panel; the captions stand beneath the panels, since the return button
// takes the top right corner.
#include "Backdrop.h"
#include "Catalogue.h"
#include "Filters.h"
#include "Gradients.h"
#include "ScreenFrame.h"
#include "Shapes.h"
#include "Text.h"
#include "Theme.h"
#include "Widgets.h"

namespace art {

namespace {

void hint(Canvas &c, const std::string &text, float x, float y, Align align = Align::Left)
{
    TextStyle st = plain(Face::Oblique, 13, theme::mist());
    st.shadow = 1.5f;
    st.shadowDy = 1;
    drawText(c, text, x, y, st, align);
}

// The list area is (51, 70) to (212, 358): 16 rows of 18 pixels. The scroll bar and its arrows stand in
// the column x 212..228 when there are more than 16 tracks.
void trackPanel(Canvas &c)
{
    paperPanel(c, 44, 63, 191, 311);
    for (int row = 1; row < 16; ++row)
        c.paint(rasterize(roundRect(54, 70.0f + row * 18 - 0.5f, 154, 1, 0.5f)), solid(withAlpha(theme::paperEdge(), 0.25f)));
    caption(c, "TRACKS", 50, 382);
    hint(c, "Click a track to choose it", 50, 400);
}

void chatPanel(Canvas &c)
{
    paperPanel(c, 252, 63, 350, 153);
    paperField(c, 252, 229, 350, 26);
    caption(c, "CHAT", 258, 264);
    hint(c, "Type a line and press Enter to send it", 602, 264, Align::Right);
}

void playerPanel(Canvas &c)
{
    paperPanel(c, 612, 63, 168, 153);
    caption(c, "PLAYERS", 618, 224);
}

void matchNotes(Canvas &c)
{
    glassPanel(c, 252, 296, 340, 226);
    caption(c, "HOW A MATCH RUNS", 270, 310);
    float y = 334;
    int colour = 0;
    for (const char *line : {"The host picks a track and presses Start.",
                             "Everyone plays the same level at the same time.",
                             "Powerups can be aimed: press a player's number, 1 to 8.",
                             "Each score shows on the results screen."})
        y = bulletLine(c, line, 270, y, 310, colour++);
}

Canvas lobby()
{
    Canvas c = titledScreen("Game Lobby", 41, 34);
    trackPanel(c);
    chatPanel(c);
    playerPanel(c);
    matchNotes(c);
    return c;
}

// The join button stands at (425, 203) to the right of the address field; the host button at (250, 383).
Canvas connectScreen()
{
    Canvas c = titledScreen("Multi Player", 51);
    glassPanel(c, 70, 150, 670, 145);
    caption(c, "JOIN A GAME", 92, 164);
    TextStyle label = plain(Face::Regular, 15, theme::cream());
    drawText(c, "Address of the host:", 98, 190, label);
    paperField(c, 98, 211, 300, 30);
    hint(c, "Leave it empty to join a game on this computer.", 98, 256);

    glassPanel(c, 70, 312, 670, 130);
    caption(c, "HOST A GAME", 92, 326);
    paragraph(c, "Start a game that others join: tell them this computer's address. The game talks on port 666.", 98, 344,
              600, 15, theme::cream());
    decorativeChain(c, {{-30, 560}, {120, 520}, {300, 570}, {480, 530}, {620, 560}}, 12, 17);
    return c;
}

} // namespace

Pictures networkScreens()
{
    return {inMenus("multi_player_menu.png", lobby), inMenus("connect_menu.png", connectScreen)};
}

} // namespace art
