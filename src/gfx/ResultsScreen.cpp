#include "gfx/GraphicsEngine.h"

#include "app/Game.h"
#include "gfx/Fonts.h"

#include <cstdio>

namespace
{
constexpr uint32_t LABEL_COLOUR = 0xFF88CCCC;
constexpr uint32_t HEADING_COLOUR = 0xFFFF1111;
constexpr int32_t LEFT = 200;
constexpr int32_t STATS_TOP = 350;
constexpr int32_t STATS_STEP = 22;
constexpr int32_t PROMPT_Y = 504;
constexpr int32_t SECOND_PROMPT_Y = 526;
constexpr int32_t LIST_TOP = 100;
constexpr int32_t LIST_STEP = 20;
constexpr int32_t RIGHT_COLUMN = 450;
constexpr int32_t SCORE_OFFSET = 100; // from a player's label to the score
constexpr int PLAYERS_PER_COLUMN = 4;

// One value of the block, each behind its own label.
struct CStatRow
{
    const char* m_pLabel;
    int32_t m_iValueX;
    uint32_t m_uiValue;
};

void DrawLabelAndValue(const char* pLabel, int32_t iLabelX, uint32_t uiLabelColour, uint32_t uiValue, int32_t iValueX,
                       int32_t iY, uint32_t uiValueColour)
{
    DrawGameText(pLabel, iLabelX, iY, uiLabelColour, FONT_MEDIUM);
    DrawGameNumber(uiValue, iValueX, iY, uiValueColour, FONT_MEDIUM);
}

void DrawStatistics(const CGame& Game)
{
    const CPlayStats& Stats = Game.m_Stats;
    const CStatRow aRows[] = {
        {"Final Score:", 320, Game.m_nScore},        {"Max Chain:", 320, Stats.m_nMaxChain},
        {"Number of Chains:", 382, Stats.m_nChains}, {"Max Combo:", 320, Stats.m_nMaxCombo},
        {"Number of Combos:", 390, Stats.m_nCombos}, {"Number of Triple Sets:", 420, Stats.m_nTriples},
    };
    DrawGameText("Stats:", LEFT, STATS_TOP, LABEL_COLOUR, FONT_MEDIUM);
    int32_t iY = STATS_TOP;
    for(const CStatRow& Row : aRows)
    {
        iY += STATS_STEP;
        DrawLabelAndValue(Row.m_pLabel, LEFT, LABEL_COLOUR, Row.m_uiValue, Row.m_iValueX, iY, TEXT_WHITE);
    }
}

// What the space bar does here: the network game goes back to its lobby whatever the outcome.
void DrawPrompts(bool bNetGame, bool bWon)
{
    if(bNetGame)
    {
        DrawGameText("Please Press Space Bar To Go Back To Game Lobby", LEFT, PROMPT_Y, LABEL_COLOUR, FONT_MEDIUM);
        return;
    }
    DrawGameText(bWon ? "Press Space Bar to start next level!" : "Press Space Bar to try again", LEFT, PROMPT_Y,
                 LABEL_COLOUR, FONT_MEDIUM);
    DrawGameText("Press Escape to go back to Main Menu", LEFT, SECOND_PROMPT_Y, LABEL_COLOUR, FONT_MEDIUM);
}

// Two columns of four, this player in its own colour.
void DrawScoreList(const CNetwork& Network)
{
    DrawGameText("RESULTS", 360, 70, HEADING_COLOUR, FONT_MEDIUM);
    const int iMySlot = Network.MySlot();
    for(int i = 0; i < MAX_PLAYERS; i++)
    {
        if(!Network.m_Players[i].m_bPresent)
            continue;
        char szLabel[12];
        std::snprintf(szLabel, sizeof(szLabel), "Player %d:", i + 1);
        const int32_t iX = i < PLAYERS_PER_COLUMN ? LEFT : RIGHT_COLUMN;
        const int32_t iY = LIST_TOP + LIST_STEP * (i % PLAYERS_PER_COLUMN);
        const uint32_t uiColour = i == iMySlot ? TEXT_OWN_PLAYER : TEXT_WHITE;
        DrawLabelAndValue(szLabel, iX, uiColour, Network.m_Scores[i].m_nScore, iX + SCORE_OFFSET, iY, uiColour);
    }
}
} // namespace

void CGraphicsEngine::DrawResultsScreen()
{
    CGame& Game = *g_pGame;
    const bool bWon = Game.m_Level.m_bWon;
    DrawSprite(m_aSprites[bWon ? SPR_WIN : SPR_LOSE]);
    DrawStatistics(Game);
    DrawPrompts(Game.m_Network.m_bNetGame, bWon);
    if(Game.m_Network.m_bNetGame)
        DrawScoreList(Game.m_Network);
    Game.m_Flow.OnResultsKeys();
}
