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

namespace art {

namespace {

void tagline(Canvas &c, const std::string &text, float y)
{
    TextStyle st = plain(Face::Regular, 17, theme::mist());
    st.shadow = 2.0f;
    drawText(c, text, 400, y, st, Align::Centre);
}

// Buttons stand at x 268..512 from y 280 to 482; the credits button at the lower right corner.
Canvas mainMenu()
{
    Canvas c = menuBackdrop(11);
    decorativeChain(c, {{-30, 300}, {60, 250}, {150, 300}, {170, 420}, {110, 520}, {200, 575}, {330, 560}}, 13, 4);
    decorativeChain(c, {{830, 330}, {740, 290}, {650, 340}, {640, 450}, {720, 510}, {600, 540}}, 13, 9);
    nameMark(c, 150, 92);
    tagline(c, "a marble shooter", 208);
    glassPanel(c, 246, 262, 288, 240, 0.85f);
    rule(c, 260, 520, 250, 0.5f);
    TextStyle hint = plain(Face::Regular, 12, withAlpha(theme::mist(), 0.8f));
    drawText(c, "Esc quits from any screen", 16, 580, hint);
    return c;
}

void howToPlay(Canvas &c)
{
    glassPanel(c, 30, 96, 520, 330);
    caption(c, "HOW TO PLAY", 50, 110);
    const char *lines[] = {
        "Chains of marbles roll along the tracks towards the end.",
        "Shoot a marble into a chain: three or more of one colour vanish, and the gap closes by itself.",
        "Aim with the mouse. The left button shoots, the right button swaps the two marbles ready to fire.",
        "The mouse wheel and the arrow keys move you along your path; the middle button takes the next path.",
        "Pulsing marbles give powerup letters. Press Space to use the oldest one.",
        "Clear every track before a marble reaches its end or the clock runs out.",
    };
    float y = 136;
    int colour = 0;
    for (const char *line : lines)
        y = bulletLine(c, line, 50, y, 480, colour++);
}

void dangerLegend(Canvas &c)
{
    glassPanel(c, 570, 96, 200, 330);
    caption(c, "DANGER", 590, 110);
    const char *moods[] = {"All is well", "Watch the chain", "Hurry up!", "Almost gone!"};
    TextStyle st = plain(Face::Regular, 15, theme::cream());
    for (int mood = 0; mood < kFaceCount; ++mood) {
        float y = 138 + mood * 70.0f;
        c.draw(face(mood), 592, static_cast<int>(y));
        drawText(c, moods[mood], 634, lineTopFor(st.face, st.size, y + 16), st);
    }
}

Canvas singlePlayerMenu()
{
    Canvas c = titledScreen("Single Player", 21);
    howToPlay(c);
    dangerLegend(c);
    startGlow(c, 0.28f);
    paragraph(c, "The levels come one after another, and each round rolls a little faster than the last.", 40, 456, 520,
              15, theme::mist());
    decorativeChain(c, {{-30, 540}, {130, 510}, {300, 560}, {470, 520}, {560, 545}}, 12, 29);
    return c;
}

// Not shown by the game, but loaded with the rest: a quiet screen with a curve and its control points.
Canvas splineEditor()
{
    Canvas c = titledScreen("Spline Editor", 31);
    glassPanel(c, 40, 100, 720, 450);
    std::vector<Point> hull = {{110, 470}, {180, 200}, {330, 160}, {420, 420}, {560, 460}, {650, 180}, {700, 300}};
    c.paint(rasterize(polyline(hull, 1.2f)), solid(withAlpha(theme::mist(), 0.5f)));
    c.paint(rasterize(polyline(smoothCurve(hull, 24), 3.0f)), solid(theme::gold()));
    for (const Point &p : hull)
        drawMarble(c, p.x, p.y, 7, theme::balls()[2]);
    return c;
}

} // namespace

Pictures mainScreens()
{
    return {inMenus("Main_Menu.png", mainMenu), inMenus("single_player_menu.png", singlePlayerMenu),
            inMenus("spline_editor_menu.png", splineEditor)};
}

} // namespace art
