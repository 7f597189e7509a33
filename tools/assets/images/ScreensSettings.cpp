// The options screen with its two volume bars, and the credits.
#include "Catalogue.h"
#include "Gradients.h"
#include "ScreenFrame.h"
#include "Shapes.h"
#include "Text.h"
#include "Theme.h"
#include "Widgets.h"

namespace art {

namespace {

// A click from x 356 to 609 sets the volume to x - 355, and the knob's left edge stands at 355 + volume,
// so the bar runs from 356 to the knob's right edge at full volume.
constexpr float kBarLeft = 352, kBarRight = 624;

// One volume bar, centred on the knob's middle line; the clickable row is the band around it.
void volumeBar(Canvas &c, const std::string &label, float centreY)
{
    TextStyle st = plain(Face::Bold, 18, theme::cream());
    st.shadow = 2.0f;
    drawText(c, label, 330, lineTopFor(st.face, st.size, centreY), st, Align::Right);
    // Bars that rise towards the loud end.
    constexpr int kSteps = 22;
    for (int i = 0; i < kSteps; ++i) {
        float x = kBarLeft + 6 + i * (kBarRight - kBarLeft - 12) / (kSteps - 1), h = 2.0f + 9.0f * i / (kSteps - 1);
        c.paint(rasterize(roundRect(x - 2, centreY - 5 - h, 4, h, 1)), solid(mix(hex(0x1d5566, 0.6f), hex(0x88cccc, 0.8f), i / (kSteps - 1.0f))));
    }
    Shape groove = roundRect(kBarLeft, centreY - 3, kBarRight - kBarLeft, 6, 3);
    c.paint(rasterize(groove), solid(hex(0x02030a, 0.9f)));
    c.paint(rasterize(outline(inset(groove, 0.5f), 1.0f)), solid(withAlpha(theme::gold(), 0.7f)));
    TextStyle small = plain(Face::Regular, 12, theme::mist());
    drawText(c, "quiet", kBarLeft, centreY + 12, small);
    drawText(c, "loud", kBarRight, centreY + 12, small, Align::Right);
}

// Knobs stand at y 180 and 254 and are 16 pixels high.
Canvas optionsScreen()
{
    Canvas c = titledScreen("Options", 61);
    glassPanel(c, 110, 120, 580, 230);
    caption(c, "VOLUME", 130, 134);
    volumeBar(c, "Sound effects", 188);
    volumeBar(c, "Music", 262);
    TextStyle note = plain(Face::Oblique, 13, theme::mist());
    drawText(c, "Click along a bar to set its volume.", 400, 318, note, Align::Centre);
    decorativeChain(c, {{-30, 470}, {140, 430}, {330, 500}, {520, 440}, {660, 480}}, 14, 23);
    return c;
}

struct Credit {
    const char *what;
    const char *licence;
};

const Credit kLibraries[] = {
    {"SDL 2", "zlib licence"},
    {"SDL2_image, SDL2_mixer, SDL2_ttf", "zlib licence"},
    {"FreeType", "FreeType licence"},
    {"HarfBuzz", "MIT licence"},
    {"libpng", "PNG Reference Library licence"},
    {"zlib", "zlib licence"},
    {"mpg123 (MP3 playback)", "LGPL 2.1"},
    {"Mesa (OpenGL)", "MIT licence"},
};

float creditRow(Canvas &c, const Credit &credit, float y)
{
    TextStyle name = plain(Face::Regular, 16, theme::cream());
    TextStyle licence = plain(Face::Regular, 16, theme::teal());
    drawText(c, credit.what, 100, y, name);
    drawText(c, credit.licence, 700, y, licence, Align::Right);
    return y + 24;
}

Canvas creditsScreen()
{
    Canvas c = titledScreen("Credits", 71);
    glassPanel(c, 60, 96, 680, 405);
    caption(c, "TRELVANE", 84, 110);
    float y = paragraph(c, "A marble shooter for Linux. Every picture, sound and tune of the game is made by its own code.",
                        100, 132, 600, 16, theme::cream());
    caption(c, "BUILT WITH", 84, y + 10);
    y += 34;
    for (const Credit &credit : kLibraries)
        y = creditRow(c, credit, y);
    caption(c, "TYPE", 84, y + 10);
    y = creditRow(c, {"DejaVu Sans", "Bitstream Vera licence"}, y + 34);
    paragraph(c, "The DejaVu changes to the Bitstream Vera fonts are in the public domain.", 100, y, 600, 14,
              theme::mist());
    decorativeChain(c, {{-30, 560}, {140, 530}, {330, 575}, {520, 535}, {640, 555}}, 12, 47);
    return c;
}

} // namespace

Pictures settingsScreens()
{
    return {inMenus("Options_Menu.png", optionsScreen), inMenus("menu_credits.png", creditsScreen)};
}

} // namespace art
