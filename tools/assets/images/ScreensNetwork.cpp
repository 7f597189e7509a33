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

namespace art
{
namespace
{
void Hint(CCanvas& Canvas, const std::string& Text, float fX, float fY, EAlign eAlign = EAlign::Left)
{
    CTextStyle Style = Plain(EFace::Oblique, 13, theme::Mist());
    Style.m_fShadow = 1.5f;
    Style.m_iShadowDy = 1;
    DrawText(Canvas, Text, fX, fY, Style, eAlign);
}

// The list area is (51, 70) to (212, 358): 16 rows of 18 pixels. The scroll bar and its arrows stand in
// the column x 212..228 when there are more than 16 tracks.
void TrackPanel(CCanvas& Canvas)
{
    PaperPanel(Canvas, 44, 63, 191, 311);
    for(int iRow = 1; iRow < 16; ++iRow)
        Canvas.Paint(Rasterize(RoundRect(54, 70.0f + iRow * 18 - 0.5f, 154, 1, 0.5f)),
                     Solid(WithAlpha(theme::PaperEdge(), 0.25f)));
    Caption(Canvas, "TRACKS", 50, 382);
    Hint(Canvas, "Click a track to choose it", 50, 400);
}

void ChatPanel(CCanvas& Canvas)
{
    PaperPanel(Canvas, 252, 63, 350, 153);
    PaperField(Canvas, 252, 229, 350, 26);
    Caption(Canvas, "CHAT", 258, 264);
    Hint(Canvas, "Type a line and press Enter to send it", 602, 264, EAlign::Right);
}

void PlayerPanel(CCanvas& Canvas)
{
    PaperPanel(Canvas, 612, 63, 168, 153);
    Caption(Canvas, "PLAYERS", 618, 224);
}

void MatchNotes(CCanvas& Canvas)
{
    GlassPanel(Canvas, 252, 296, 340, 226);
    Caption(Canvas, "HOW A MATCH RUNS", 270, 310);
    float fY = 334;
    int iColour = 0;
    for(const char* pLine :
        {"The host picks a track and presses Start.", "Everyone plays the same level at the same time.",
         "Powerups can be aimed: press a player's number, 1 to 8.", "Each score shows on the results screen."})
        fY = BulletLine(Canvas, pLine, 270, fY, 310, iColour++);
}

CCanvas Lobby()
{
    CCanvas Canvas = TitledScreen("Game Lobby", 41, 34);
    TrackPanel(Canvas);
    ChatPanel(Canvas);
    PlayerPanel(Canvas);
    MatchNotes(Canvas);
    return Canvas;
}

// The join button stands at (425, 203) to the right of the address field; the host button at (250, 383).
CCanvas ConnectScreen()
{
    CCanvas Canvas = TitledScreen("Multi Player", 51);
    GlassPanel(Canvas, 70, 150, 670, 145);
    Caption(Canvas, "JOIN A GAME", 92, 164);
    CTextStyle Label = Plain(EFace::Regular, 15, theme::Cream());
    DrawText(Canvas, "Address of the host:", 98, 190, Label);
    PaperField(Canvas, 98, 211, 300, 30);
    Hint(Canvas, "Leave it empty to join a game on this computer.", 98, 256);

    GlassPanel(Canvas, 70, 312, 670, 130);
    Caption(Canvas, "HOST A GAME", 92, 326);
    Paragraph(Canvas, "Start a game that others join: tell them this computer's address. The game talks on port 666.",
              98, 344, 600, 15, theme::Cream());
    DecorativeChain(Canvas, {{-30, 560}, {120, 520}, {300, 570}, {480, 530}, {620, 560}}, 12, 17);
    return Canvas;
}
} // namespace

CPictures NetworkScreens()
{
    return {InMenus("multi_player_menu.png", Lobby), InMenus("connect_menu.png", ConnectScreen)};
}
} // namespace art
