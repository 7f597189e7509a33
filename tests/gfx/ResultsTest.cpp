#include "gfx/EngineFixture.h"

#include "input/Input.h"
#include "input/KeyCodes.h"
#include "platform/twins/ScriptedInput.h"

#include <cstdio>
#include <cstring>

class Results : public CEngineFixture
{
protected:
    Results()
    {
        InitInput();
        CreateKeyboard(&m_Keys);
        PollKeyboard();
    }
    ~Results() override
    {
        ReleaseKeyboard();
        ReleaseInput();
    }
    void StartOnResults()
    {
        Start();
        m_Engine.m_nScreenState = SCREEN_RESULTS;
    }
    // The texts of one results frame as "text x,y colour", all of which must be in the medium font.
    std::vector<std::string> Screen()
    {
        m_Device.ClearRecords();
        m_Engine.DrawResultsScreen();
        std::vector<std::string> vTexts;
        for(const auto& Text : m_Device.m_vTexts)
        {
            char szPlace[40];
            std::snprintf(szPlace, sizeof(szPlace), " %d,%d %08x", Text.m_Rect.m_iLeft, Text.m_Rect.m_iTop,
                          Text.m_uiColour);
            vTexts.push_back(Text.m_Text + szPlace);
            EXPECT_EQ(Text.m_iFontHeight, 26) << Text.m_Text;
        }
        return vTexts;
    }
    // A key goes down and up over two results frames, which test it as the screen does.
    void Tap(uint8_t byKey)
    {
        for(bool bDown : {true, false})
        {
            m_Keys.SetKey(byKey, bDown);
            PollKeyboard();
            m_Engine.DrawResultsScreen();
        }
    }
    // The end of a level of a two-level list, with a letter and a notice left from it.
    void EndLevel(uint32_t uiFile, bool bWon)
    {
        m_Game.m_Tracks.m_vFiles = {m_First.Path(), m_Second.Path()};
        m_Game.m_Tracks.m_uiNumFiles = 2;
        m_Game.m_Tracks.m_uiCurrentFile = uiFile;
        m_Game.m_Level.m_bWon = bWon;
        m_Game.m_nScore = 900;
        m_Game.m_Powerups.PushLetter('H');
        std::strcpy(m_Game.m_Powerups.m_szNotice, "HALT");
    }
    // In play on the level with this background and list position, the score kept, the powerups gone.
    void ExpectPlaying(const char* pBackground, uint32_t uiFile, uint32_t uiRound)
    {
        EXPECT_EQ(m_Engine.m_nScreenState, SCREEN_PLAY);
        EXPECT_TRUE(m_Game.m_bInGame && m_Game.m_Logic.m_bActive);
        EXPECT_FALSE(m_Game.m_Level.m_bWon);
        EXPECT_STREQ(m_Game.m_Level.m_szBackground, pBackground);
        EXPECT_EQ(m_Game.m_Tracks.m_uiCurrentFile, uiFile);
        EXPECT_EQ(m_Game.m_Tracks.m_uiRound, uiRound);
        EXPECT_EQ(std::string(m_Game.m_Powerups.m_acStack, 5), "     ");
        EXPECT_EQ(m_Game.m_Powerups.m_nStackCount, 0u);
        EXPECT_STREQ(m_Game.m_Powerups.m_szNotice, "");
        EXPECT_EQ(m_Game.m_nScore, 900u);
    }

    CScriptedInput m_Keys;
    CTempFile m_First{"Background: first.png\nPlaytime: 1 min 0 sec\nEnd\n"};
    CTempFile m_Second{"Background: second.png\nPlaytime: 1 min 0 sec\nEnd\n"};
};

TEST_F(Results, TheStatisticsStandAtTheirOwnXAndTheSinglePromptFollowsTheOutcome)
{
    StartOnResults();
    m_Game.m_nScore = 4200;
    m_Game.m_Stats.m_nMaxChain = 6;
    m_Game.m_Stats.m_nChains = 3;
    m_Game.m_Stats.m_nMaxCombo = 2;
    m_Game.m_Stats.m_nCombos = 5;
    m_Game.m_Stats.m_nTriples = 11;
    m_Game.m_Level.m_bWon = true;
    EXPECT_EQ(Screen(), std::vector<std::string>({
                            "Stats: 200,350 ff88cccc",
                            "Final Score: 200,372 ff88cccc",
                            "4200 320,372 ffffffff",
                            "Max Chain: 200,394 ff88cccc",
                            "6 320,394 ffffffff",
                            "Number of Chains: 200,416 ff88cccc",
                            "3 382,416 ffffffff",
                            "Max Combo: 200,438 ff88cccc",
                            "2 320,438 ffffffff",
                            "Number of Combos: 200,460 ff88cccc",
                            "5 390,460 ffffffff",
                            "Number of Triple Sets: 200,482 ff88cccc",
                            "11 420,482 ffffffff",
                            "Press Space Bar to start next level! 200,504 ff88cccc",
                            "Press Escape to go back to Main Menu 200,526 ff88cccc",
                        }));
    EXPECT_EQ(m_Device.m_vDraws.front().m_Texture, "data\\menus\\images\\win.png");

    m_Game.m_Level.m_bWon = false;
    EXPECT_EQ(Screen()[13], "Press Space Bar to try again 200,504 ff88cccc");
    EXPECT_EQ(m_Device.m_vDraws.front().m_Texture, "data\\menus\\images\\lose.png");
    EXPECT_EQ(m_Engine.m_nScreenState, SCREEN_RESULTS) << "no key, no change";
}

TEST_F(Results, ANetworkGameListsTheScoresInTwoColumnsAndPromptsForTheLobby)
{
    StartOnResults();
    CNetwork& Network = m_Game.m_Network;
    Network.m_bNetGame = true;
    Network.m_nMyId = 7;
    for(uint32_t i = 0; i < 5; i++)
    {
        Network.m_Players[i] = {i == 1 ? 7u : 10 + i, true, false};
        Network.m_Scores[i].m_nScore = 100 * (i + 1);
    }
    std::vector<std::string> vTexts = Screen();
    vTexts.erase(vTexts.begin(), vTexts.begin() + 13); // the statistics
    EXPECT_EQ(vTexts, std::vector<std::string>({
                          "Please Press Space Bar To Go Back To Game Lobby 200,504 ff88cccc",
                          "RESULTS 360,70 ffff1111",
                          "Player 1: 200,100 ffffffff",
                          "100 300,100 ffffffff",
                          "Player 2: 200,120 ffee11ee",
                          "200 300,120 ffee11ee",
                          "Player 3: 200,140 ffffffff",
                          "300 300,140 ffffffff",
                          "Player 4: 200,160 ffffffff",
                          "400 300,160 ffffffff",
                          "Player 5: 450,100 ffffffff",
                          "500 550,100 ffffffff",
                      }));
}

TEST_F(Results, SpaceGoesOnToTheNextLevelTriesALostOneAgainAndStartsANewRoundAfterTheLast)
{
    StartOnResults();
    EndLevel(0, true);
    Tap(DIK_SPACE);
    ExpectPlaying("second.png", 1, 1);

    EndLevel(1, false);
    Tap(DIK_SPACE);
    ExpectPlaying("second.png", 1, 1);

    EndLevel(1, true);
    Tap(DIK_SPACE);
    ExpectPlaying("first.png", 0, 2);
}

TEST_F(Results, EscapeLeadsToTheMainMenuAndANetworkGameBackToTheLobby)
{
    StartOnResults();
    EndLevel(0, true);
    Tap(DIK_ESCAPE);
    EXPECT_EQ(m_Engine.m_nScreenState, SCREEN_MAIN_MENU);
    EXPECT_EQ(m_Game.m_Powerups.m_nStackCount, 0u);
    EXPECT_STREQ(m_Game.m_Powerups.m_szNotice, "HALT") << "only going on clears the notice";

    m_Engine.m_nScreenState = SCREEN_RESULTS;
    m_Game.m_Network.m_bNetGame = true;
    m_Game.m_Powerups.PushLetter('T');
    std::strcpy(m_Game.m_Network.m_szLobbyLines[0], "2: gg");
    m_Game.m_nScore = 700;
    Tap(DIK_SPACE);
    EXPECT_EQ(m_Engine.m_nScreenState, SCREEN_LOBBY);
    EXPECT_FALSE(m_Game.m_Level.m_bWon);
    EXPECT_FALSE(m_Game.m_bInGame);
    EXPECT_EQ(m_Game.m_Powerups.m_nStackCount, 0u) << "the match is reset on the way";
    EXPECT_STREQ(m_Game.m_Network.m_szLobbyLines[0], "");
    EXPECT_EQ(m_Game.m_nScore, 0u);
}
