// The options screen with its two volume bars, and the credits.
#include "Catalogue.h"
#include "Gradients.h"
#include "ScreenFrame.h"
#include "Shapes.h"
#include "Text.h"
#include "Theme.h"
#include "Widgets.h"

namespace art
{
namespace
{
// A click from x 356 to 609 sets the volume to x - 355, and the knob's left edge stands at 355 + volume,
// so the bar runs from 356 to the knob's right edge at full volume.
constexpr float BAR_LEFT = 352, BAR_RIGHT = 624;

// One volume bar, centred on the knob's middle line; the clickable row is the band around it.
void VolumeBar(CCanvas& Canvas, const std::string& Label, float fCentreY)
{
    CTextStyle Style = Plain(EFace::Bold, 18, theme::Cream());
    Style.m_fShadow = 2.0f;
    DrawText(Canvas, Label, 330, LineTopFor(Style.m_eFace, Style.m_iSize, fCentreY), Style, EAlign::Right);
    // Bars that rise towards the loud end.
    constexpr int STEPS = 22;
    for(int i = 0; i < STEPS; ++i)
    {
        float fX = BAR_LEFT + 6 + i * (BAR_RIGHT - BAR_LEFT - 12) / (STEPS - 1), fH = 2.0f + 9.0f * i / (STEPS - 1);
        Canvas.Paint(Rasterize(RoundRect(fX - 2, fCentreY - 5 - fH, 4, fH, 1)),
                     Solid(Mix(Hex(0x1d5566, 0.6f), Hex(0x88cccc, 0.8f), i / (STEPS - 1.0f))));
    }
    CShape Groove = RoundRect(BAR_LEFT, fCentreY - 3, BAR_RIGHT - BAR_LEFT, 6, 3);
    Canvas.Paint(Rasterize(Groove), Solid(Hex(0x02030a, 0.9f)));
    Canvas.Paint(Rasterize(Outline(Inset(Groove, 0.5f), 1.0f)), Solid(WithAlpha(theme::Gold(), 0.7f)));
    CTextStyle Small = Plain(EFace::Regular, 12, theme::Mist());
    DrawText(Canvas, "quiet", BAR_LEFT, fCentreY + 12, Small);
    DrawText(Canvas, "loud", BAR_RIGHT, fCentreY + 12, Small, EAlign::Right);
}

// Knobs stand at y 180 and 254 and are 16 pixels high.
CCanvas OptionsScreen()
{
    CCanvas Canvas = TitledScreen("Options", 61);
    GlassPanel(Canvas, 110, 120, 580, 230);
    Caption(Canvas, "VOLUME", 130, 134);
    VolumeBar(Canvas, "Sound effects", 188);
    VolumeBar(Canvas, "Music", 262);
    CTextStyle Note = Plain(EFace::Oblique, 13, theme::Mist());
    DrawText(Canvas, "Click along a bar to set its volume.", 400, 318, Note, EAlign::Centre);
    DecorativeChain(Canvas, {{-30, 470}, {140, 430}, {330, 500}, {520, 440}, {660, 480}}, 14, 23);
    return Canvas;
}

struct CCredit
{
    const char* m_pWhat;
    const char* m_pLicence;
};

const CCredit LIBRARIES[] = {
    {"SDL 2", "zlib licence"},
    {"SDL2_image, SDL2_mixer, SDL2_ttf", "zlib licence"},
    {"FreeType", "FreeType licence"},
    {"HarfBuzz", "MIT licence"},
    {"libpng", "PNG Reference Library licence"},
    {"zlib", "zlib licence"},
    {"mpg123 (MP3 playback)", "LGPL 2.1"},
    {"Mesa (OpenGL)", "MIT licence"},
};

float CreditRow(CCanvas& Canvas, const CCredit& Credit, float fY)
{
    CTextStyle Name = Plain(EFace::Regular, 16, theme::Cream());
    CTextStyle Licence = Plain(EFace::Regular, 16, theme::Teal());
    DrawText(Canvas, Credit.m_pWhat, 100, fY, Name);
    DrawText(Canvas, Credit.m_pLicence, 700, fY, Licence, EAlign::Right);
    return fY + 24;
}

CCanvas CreditsScreen()
{
    CCanvas Canvas = TitledScreen("Credits", 71);
    GlassPanel(Canvas, 60, 96, 680, 405);
    Caption(Canvas, "TRELVANE", 84, 110);
    float fY = Paragraph(
        Canvas, "A marble shooter for Linux. Every picture, sound and tune of the game is made by its own code.", 100,
        132, 600, 16, theme::Cream());
    Caption(Canvas, "BUILT WITH", 84, fY + 10);
    fY += 34;
    for(const CCredit& Credit : LIBRARIES)
        fY = CreditRow(Canvas, Credit, fY);
    Caption(Canvas, "TYPE", 84, fY + 10);
    fY = CreditRow(Canvas, {"DejaVu Sans", "Bitstream Vera licence"}, fY + 34);
    Paragraph(Canvas, "The DejaVu changes to the Bitstream Vera fonts are in the public domain.", 100, fY, 600, 14,
              theme::Mist());
    DecorativeChain(Canvas, {{-30, 560}, {140, 530}, {330, 575}, {520, 535}, {640, 555}}, 12, 47);
    return Canvas;
}
} // namespace

CPictures SettingsScreens()
{
    return {InMenus("Options_Menu.png", OptionsScreen), InMenus("menu_credits.png", CreditsScreen)};
}
} // namespace art
