#include "gfx/GraphicsEngine.h"

#include "app/Game.h"
#include "gfx/Fonts.h"
#include "input/Input.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace
{
constexpr uint32_t SELECTED_TRACK_RED = 0xFFFF0000;

// The track list: rows below the top of the list's area, each a file name without its folder.
constexpr uint32_t ROW_HEIGHT = 18;
constexpr int32_t ROW_TEXT_X = 58;
constexpr int32_t FIRST_ROW_TEXT_Y = 71;
constexpr size_t FOLDER_PREFIX_CHARS = std::char_traits<char>::length(TRACK_FOLDER);
constexpr size_t ROW_TEXT_CHARS = 67;

// The lobby's players on the right and its chat in the middle, line for line.
constexpr int32_t LINE_SPACING = 17;
constexpr int32_t FIRST_LINE_Y = 74;
constexpr int32_t CHAT_X = 260;
constexpr int32_t NAMES_X = 620;
constexpr int32_t TYPED_LINE_X = 260;
constexpr int32_t TYPED_LINE_Y = 235;
constexpr int32_t ADDRESS_X = 106;
constexpr int32_t ADDRESS_Y = 218;

struct CMousePoint
{
    int32_t m_iX;
    int32_t m_iY;
};

// The head of every screen with buttons: the frame's one mouse reading, as reading moves the cursor, then
// the hot spot started afresh and the background.
CMousePoint BeginScreen(CGraphicsEngine& Engine, ESprite Background)
{
    CMousePoint Mouse;
    Mouse.m_iX = static_cast<int32_t>(GetMouseX());
    Mouse.m_iY = static_cast<int32_t>(GetMouseY());
    Engine.m_nPrevHotSpot = Engine.m_nHotSpot;
    Engine.m_nHotSpot = HOT_NOTHING;
    Engine.DrawSprite(Engine.m_aSprites[Background]);
    return Mouse;
}

// Whether a value lies from uiLow to uiLow + uiSpan, with or without those two edges.
bool InSpan(int32_t iValue, uint32_t uiLow, uint32_t uiSpan, bool bEdges)
{
    const int64_t llValue = iValue;
    const int64_t llLow = uiLow;
    const int64_t llHigh = llLow + uiSpan;
    return bEdges ? llValue >= llLow && llValue <= llHigh : llValue > llLow && llValue < llHigh;
}

// A button's rectangle holds both its edges.
bool OnRectangle(const CSprite& Sprite, const CMousePoint& Mouse)
{
    return InSpan(Mouse.m_iX, Sprite.m_nX, Sprite.m_nWidth, true) &&
           InSpan(Mouse.m_iY, Sprite.m_nY, Sprite.m_nHeight, true);
}

bool InsideRectangle(const CSprite& Sprite, const CMousePoint& Mouse)
{
    return InSpan(Mouse.m_iX, Sprite.m_nX, Sprite.m_nWidth, false) &&
           InSpan(Mouse.m_iY, Sprite.m_nY, Sprite.m_nHeight, false);
}

// Over picture and hot spot under the mouse, normal picture elsewhere. The hover sound plays as the mouse
// comes onto the button, not for as long as it stays.
void HoverTest(CGraphicsEngine& Engine, ESprite Button, int iHotSpot, const CMousePoint& Mouse, bool bSound)
{
    CSprite& Sprite = Engine.m_aSprites[Button];
    if(!OnRectangle(Sprite, Mouse))
    {
        Sprite.m_pImage = Engine.NormalImage(Button);
        return;
    }
    Sprite.m_pImage = Engine.OverImage(Button);
    Engine.m_nHotSpot = iHotSpot;
    if(bSound && Engine.m_nPrevHotSpot != Engine.m_nHotSpot)
        g_pGame->m_Sound.PlaySound(SOUND_HIGHLIGHT);
}

void ButtonStep(CGraphicsEngine& Engine, ESprite Button, int iHotSpot, const CMousePoint& Mouse)
{
    HoverTest(Engine, Button, iHotSpot, Mouse, true);
    Engine.DrawSprite(Engine.m_aSprites[Button]);
}

// The texts of the network are fixed arrays: what is drawn stops at the array's end even without a
// terminator.
template <size_t N> void DrawField(const char (&szText)[N], int32_t iX, int32_t iY)
{
    const std::string Text(szText, std::find(szText, szText + N, '\0'));
    DrawGameText(Text.c_str(), iX, iY, TEXT_BLACK, FONT_SMALL);
}

uint32_t TrackCount()
{
    return static_cast<uint32_t>(g_pGame->m_Tracks.m_vFiles.size());
}

bool IsHost()
{
    return g_pGame->m_Network.m_nMode == NET_MODE_HOST;
}

// Only the host starts a match: a client's mouse finds nothing on the button's place.
void LobbyStartTest(CGraphicsEngine& Engine, const CMousePoint& Mouse)
{
    if(IsHost())
        HoverTest(Engine, SPR_LOBBY_START, HOT_START, Mouse, true);
    else
        Engine.m_aSprites[SPR_LOBBY_START].m_pImage = Engine.NormalImage(SPR_LOBBY_START);
}

// The row under the mouse, by its index in the list; none below the last track. The area's edges belong to
// no row.
void UpdateHighlight(CGraphicsEngine& Engine, const CMousePoint& Mouse)
{
    Engine.m_bHighlightVisible = false;
    const CSprite& Area = Engine.m_aSprites[SPR_LIST_AREA];
    if(!InsideRectangle(Area, Mouse))
        return;
    const uint32_t uiIndex = (static_cast<uint32_t>(Mouse.m_iY) - Area.m_nY) / ROW_HEIGHT + Engine.m_nFirstVisibleTrack;
    if(uiIndex >= TrackCount())
        return;
    Engine.m_nHighlightRow = uiIndex - Engine.m_nFirstVisibleTrack;
    Engine.m_bHighlightVisible = true;
}

void DrawHighlight(CGraphicsEngine& Engine)
{
    CSprite& Highlight = Engine.m_aSprites[SPR_LIST_HIGHLIGHT];
    Highlight.m_nY = Engine.m_nHighlightRow * ROW_HEIGHT + Engine.m_aSprites[SPR_LIST_AREA].m_nY;
    if(Engine.m_bHighlightVisible)
        Engine.DrawSprite(Highlight);
}

// The chosen track is red while it is in view.
void DrawTrackRows(const CGraphicsEngine& Engine)
{
    const std::vector<std::string>& vFiles = g_pGame->m_Tracks.m_vFiles;
    const uint32_t uiFirst = Engine.m_nFirstVisibleTrack;
    for(uint32_t uiTrack = uiFirst; uiTrack < vFiles.size() && uiTrack - uiFirst < TRACK_LIST_ROWS; uiTrack++)
    {
        const std::string& File = vFiles[uiTrack];
        const std::string Row = File.substr(std::min(File.size(), FOLDER_PREFIX_CHARS), ROW_TEXT_CHARS);
        const int32_t iY = FIRST_ROW_TEXT_Y + static_cast<int32_t>(ROW_HEIGHT * (uiTrack - uiFirst));
        const uint32_t uiColour = uiTrack == Engine.m_nSelectedTrack ? SELECTED_TRACK_RED : TEXT_BLACK;
        DrawGameText(Row.c_str(), ROW_TEXT_X, iY, uiColour, FONT_SMALL);
    }
}

// The arrows are hot wherever they stand, with no sound, but shown only with more tracks than rows: with fewer,
// a click on them finds nothing to scroll.
void DrawScrollBar(CGraphicsEngine& Engine, const CMousePoint& Mouse)
{
    HoverTest(Engine, SPR_LIST_UP, HOT_SCROLL_UP, Mouse, false);
    HoverTest(Engine, SPR_LIST_DOWN, HOT_SCROLL_DOWN, Mouse, false);
    if(TrackCount() <= TRACK_LIST_ROWS)
        return;
    Engine.DrawSprite(Engine.m_aSprites[SPR_LIST_SCROLL]);
    Engine.DrawSprite(Engine.m_aSprites[SPR_LIST_UP]);
    Engine.DrawSprite(Engine.m_aSprites[SPR_LIST_DOWN]);
}

// Players by slot; this player's own name in its colour.
void DrawPlayerNames()
{
    const CNetwork& Network = g_pGame->m_Network;
    const int iMySlot = Network.MySlot();
    for(int i = 0; i < MAX_PLAYERS; i++)
    {
        if(!Network.m_Players[i].m_bPresent)
            continue;
        char szName[16];
        std::snprintf(szName, sizeof(szName), "Player %d", i + 1);
        DrawGameText(szName, NAMES_X, FIRST_LINE_Y + LINE_SPACING * i, i == iMySlot ? TEXT_OWN_PLAYER : TEXT_BLACK,
                     FONT_SMALL);
    }
}

void DrawLobbyChat()
{
    const CNetwork& Network = g_pGame->m_Network;
    DrawField(Network.m_szLobbyInput, TYPED_LINE_X, TYPED_LINE_Y);
    for(size_t i = 0; i < LOBBY_LINES; i++)
        DrawField(Network.m_szLobbyLines[i], CHAT_X, FIRST_LINE_Y + LINE_SPACING * static_cast<int32_t>(i));
}
} // namespace

void CGraphicsEngine::DrawMainMenu()
{
    const CMousePoint Mouse = BeginScreen(*this, SPR_MAIN_BACK);
    ButtonStep(*this, SPR_MAIN_SINGLE, HOT_SINGLE_PLAYER, Mouse);
    ButtonStep(*this, SPR_MAIN_MULTI, HOT_MULTI_PLAYER, Mouse);
    ButtonStep(*this, SPR_MAIN_OPTIONS, HOT_OPTIONS, Mouse);
    ButtonStep(*this, SPR_MAIN_QUIT, HOT_QUIT, Mouse);
    ButtonStep(*this, SPR_MAIN_CREDITS, HOT_CREDITS, Mouse);
}

// No track list here: Start plays the first level of the list.
void CGraphicsEngine::DrawSinglePlayerMenu()
{
    const CMousePoint Mouse = BeginScreen(*this, SPR_SINGLE_BACK);
    ButtonStep(*this, SPR_SINGLE_RETURN, HOT_RETURN, Mouse);
    ButtonStep(*this, SPR_SINGLE_START, HOT_START, Mouse);
}

// The list of tracks with the row under the mouse and the chosen one, the players and the chat. Only the host
// sees the start button.
void CGraphicsEngine::DrawLobby()
{
    const CMousePoint Mouse = BeginScreen(*this, SPR_LOBBY_BACK);
    ButtonStep(*this, SPR_LOBBY_RETURN, HOT_RETURN, Mouse);
    LobbyStartTest(*this, Mouse);
    UpdateHighlight(*this, Mouse);
    DrawHighlight(*this);
    DrawTrackRows(*this);
    DrawScrollBar(*this, Mouse);
    if(IsHost())
        DrawSprite(m_aSprites[SPR_LOBBY_START]);
    g_pGame->m_Network.UpdateLobbyEntry();
    DrawPlayerNames();
    DrawLobbyChat();
}

void CGraphicsEngine::DrawConnectScreen()
{
    const CMousePoint Mouse = BeginScreen(*this, SPR_CONNECT_BACK);
    ButtonStep(*this, SPR_CONNECT_RETURN, HOT_RETURN, Mouse);
    ButtonStep(*this, SPR_CONNECT_CLIENT, HOT_JOIN, Mouse);
    ButtonStep(*this, SPR_CONNECT_SERVER, HOT_HOST, Mouse);
    g_pGame->m_Network.UpdateAddressEntry();
    DrawField(g_pGame->m_Network.m_szAddressInput, ADDRESS_X, ADDRESS_Y);
}

// A slider's left edge stands for its volume; clicks in the screen flow move it.
void CGraphicsEngine::DrawOptionsScreen()
{
    const CMousePoint Mouse = BeginScreen(*this, SPR_OPTIONS_BACK);
    HoverTest(*this, SPR_OPTIONS_RETURN, HOT_RETURN, Mouse, true);
    const CSoundEngine& Sound = g_pGame->m_Sound;
    m_aSprites[SPR_SLIDER_EFFECTS].m_nX = static_cast<uint32_t>(SLIDER_ORIGIN_X + Sound.GetEffectsVolume());
    m_aSprites[SPR_SLIDER_MUSIC].m_nX = static_cast<uint32_t>(SLIDER_ORIGIN_X + Sound.GetMusicVolume());
    DrawSprite(m_aSprites[SPR_OPTIONS_RETURN]);
    DrawSprite(m_aSprites[SPR_SLIDER_EFFECTS]);
    DrawSprite(m_aSprites[SPR_SLIDER_MUSIC]);
}

void CGraphicsEngine::DrawCreditsScreen()
{
    const CMousePoint Mouse = BeginScreen(*this, SPR_CREDITS_BACK);
    ButtonStep(*this, SPR_OPTIONS_RETURN, HOT_RETURN, Mouse);
}
