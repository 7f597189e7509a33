#include "gfx/GraphicsEngine.h"

#include "app/Game.h"
#include "gfx/Fonts.h"
#include "platform/interfaces/Clock.h"

#include <algorithm>
#include <cstdio>

namespace
{
constexpr uint32_t NUMBER_COLOUR = 0xFF88CCCC;
constexpr uint32_t MESSAGE_LIFE_MS = 2000;
constexpr int32_t STACK_X = 10;
constexpr int32_t STACK_TOP = 12;
constexpr int32_t STACK_STEP = 33;
constexpr int32_t PLAYER_LABEL_X = 100;
constexpr int32_t PLAYER_STEP = 80;
constexpr int32_t PLAYER_LABEL_Y = 510;
constexpr float MARKER_LEFT = 144.0f;
constexpr float MARKER_TRAVEL = 480.0f; // the length of the bar the marker slides along

void DrawNumber(uint32_t uiValue, int32_t iX, int32_t iY, uint32_t uiColour)
{
    DrawGameNumber(uiValue, iX, iY, uiColour, FONT_MEDIUM);
}

// The face of a danger value, from calm to alarmed. The limits are doubles: the float nearest 0.9 lies just
// below it and still shows the third face.
uint32_t FaceOf(float fDanger)
{
    const double dDanger = fDanger;
    if(dDanger < 0.25)
        return 0;
    if(dDanger < 0.5)
        return 1;
    if(dDanger < 0.9)
        return 2;
    return 3;
}

// How far the lead ball, the last of the list, has come along its track: 0 at the start, 1 at the end.
float LeadFraction(const CTrack& Track)
{
    const std::vector<float>& vDistances = Track.m_Spline.m_vDistances;
    const CBall* pLead = Track.m_lstBalls.empty() ? nullptr : Track.m_lstBalls.back();
    if(!pLead || pLead->m_uiPoint >= vDistances.size() || !(vDistances.back() > 0.0f))
        return 0.0f;
    return vDistances[pLead->m_uiPoint] / vDistances.back();
}

// Chat lines and notices stay up for a while of real time, whatever the frame rate; the unsigned difference
// holds across the counter's wrap.
bool IsRecent(uint32_t uiTime)
{
    return timeGetTime() - uiTime < MESSAGE_LIFE_MS;
}

// Score, balls and time. "Next:" is drawn in black and then in white over it, which leaves the letters a
// dark edge; the score is drawn twice alike.
void DrawCounters(const CGame& Game)
{
    const CLevel& Level = Game.m_Level;
    DrawGameText("Next:", 500, 40, TEXT_BLACK, FONT_MEDIUM);
    DrawNumber(Game.m_nScore, 640, 12, NUMBER_COLOUR);
    DrawGameText("Balls remaining:", 500, 60, TEXT_WHITE, FONT_MEDIUM);
    DrawNumber(Level.BallsToClear(), 660, 60, TEXT_WHITE);
    DrawGameText("Next:", 500, 40, TEXT_WHITE, FONT_MEDIUM);
    DrawNumber(Game.m_nScore, 640, 12, NUMBER_COLOUR);
    DrawGameText("Time:", 500, 80, TEXT_WHITE, FONT_MEDIUM);
    DrawGameText(":", 572, 80, NUMBER_COLOUR, FONT_MEDIUM);
    DrawNumber(Level.m_Countdown.GetMinutes(), 560, 80, NUMBER_COLOUR);
    DrawNumber(Level.m_Countdown.GetSeconds(), 580, 80, NUMBER_COLOUR);
}

// Slot 0, the letter the next use takes, stands at the top.
void DrawPowerupStack(const CPowerupManager& Powerups)
{
    const uint32_t uiShown = std::min<uint32_t>(Powerups.m_nStackCount, POWERUP_STACK_SIZE);
    for(uint32_t i = 0; i < uiShown; i++)
    {
        const char szLetter[2] = {Powerups.m_acStack[i], '\0'};
        DrawGameText(szLetter, STACK_X, STACK_TOP + STACK_STEP * static_cast<int32_t>(i), TEXT_WHITE, FONT_LARGE);
    }
}

// The numbers to aim powerups by, each beside that player's face.
void DrawPlayers(CGraphicsEngine& Engine, const CNetwork& Network)
{
    const int iMySlot = Network.MySlot();
    for(int i = 0; i < MAX_PLAYERS; i++)
    {
        if(!Network.m_Players[i].m_bPresent)
            continue;
        char szLabel[8];
        std::snprintf(szLabel, sizeof(szLabel), "%d: ", i + 1);
        DrawGameText(szLabel, PLAYER_LABEL_X + PLAYER_STEP * i, PLAYER_LABEL_Y,
                     i == iMySlot ? TEXT_OWN_PLAYER : TEXT_WHITE, FONT_MEDIUM);
        Engine.DrawSprite(Engine.m_aSprites[SPR_HUD_FACE1 + i]);
    }
}

void DrawMessages(CGraphicsEngine& Engine, const CGame& Game)
{
    const CNetwork& Network = Game.m_Network;
    if(IsRecent(Network.m_nChatTime))
        DrawGameText(Network.m_szChatLine, 50, 80, TEXT_WHITE, FONT_MEDIUM);
    if(IsRecent(Network.m_nNoticeTime))
        DrawGameText(Game.m_Powerups.m_szNotice, 90, 110, TEXT_WHITE, FONT_MEDIUM);
    if(g_bChatOpen)
    {
        Engine.DrawSprite(Engine.m_aSprites[SPR_CHAT_BOX]);
        DrawGameText(Network.m_szChatInput, 50, 300, TEXT_WHITE, FONT_MEDIUM);
    }
}

// The particles leave additive blending behind them; sprites and text blend by their alpha.
void Restore2DStates(IRenderDevice& Device)
{
    Device.SetTextureStageState(0, TSS_COLORARG1, TA_TEXTURE);
    Device.SetTextureStageState(0, TSS_COLORARG2, TA_DIFFUSE);
    Device.SetRenderState(RS_SRCBLEND, BLEND_SRCALPHA);
    Device.SetRenderState(RS_DESTBLEND, BLEND_INVSRCALPHA);
}
} // namespace

void CGraphicsEngine::RenderHud()
{
    CGame& Game = *g_pGame;
    DrawBackground();
    if(Game.m_Particles.m_bActive)
        Game.m_Particles.DrawParticles(m_pDevice);
    Restore2DStates(*m_pDevice);
    DrawSprite(m_aSprites[SPR_HUD_POWERUPS]);
    DrawSprite(m_aSprites[SPR_HUD_SCORE]);
    DrawSprite(m_aSprites[SPR_HUD_TRACK]);
    UpdateDanger();
    UpdatePlayerFaces();
    DrawSprite(m_aSprites[SPR_HUD_PROGRESS]);
    // A colour out of range keeps the icon of the last one.
    if(Game.m_Level.m_ucNextColour < NUM_BALL_COLOURS)
        m_aSprites[SPR_HUD_NEXT].m_pImage = BallIcon(Game.m_Level.m_ucNextColour);
    DrawSprite(m_aSprites[SPR_HUD_NEXT]);
    DrawCounters(Game);
    DrawPowerupStack(Game.m_Powerups);
    Game.m_Powerups.DrawPowerupInfo();
    if(Game.m_Network.m_bNetGame)
        DrawPlayers(*this, Game.m_Network);
    DrawMessages(*this, Game);
}

// The worst track sets the danger, which the other players of a network game see as this player's face.
void CGraphicsEngine::UpdateDanger()
{
    float fDanger = 0.0f;
    for(const CTrack& Track : g_pGame->m_Level.m_vTracks)
    {
        const float fFraction = LeadFraction(Track);
        if(fFraction > fDanger)
            fDanger = fFraction;
    }
    g_pGame->m_Network.m_fDanger = fDanger;
    CSprite& Marker = m_aSprites[SPR_HUD_PROGRESS];
    Marker.m_pImage = Face(FaceOf(fDanger));
    Marker.m_nX = static_cast<uint32_t>(MARKER_LEFT + fDanger * MARKER_TRAVEL);
}

// Absent slots keep whatever they showed; they aren't drawn.
void CGraphicsEngine::UpdatePlayerFaces()
{
    const CNetwork& Network = g_pGame->m_Network;
    for(int i = 0; i < MAX_PLAYERS; i++)
    {
        if(Network.m_Players[i].m_bPresent)
            m_aSprites[SPR_HUD_FACE1 + i].m_pImage = Face(FaceOf(Network.m_Scores[i].m_fDanger));
    }
}
