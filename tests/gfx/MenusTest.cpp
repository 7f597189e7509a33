#include "gfx/EngineFixture.h"

#include "input/Input.h"
#include "platform/twins/RecordingAudio.h"

#include <cstring>

class Menus : public CEngineFixture
{
protected:
    Menus() { m_Game.m_Sound.m_pAudio = &m_Audio; }
    ~Menus() override { g_fMouseX = g_fMouseY = CURSOR_START; }

    // One frame of a screen with the mouse standing still at (x, y); the pictures it drew, without their folder.
    std::vector<std::string> DrawAt(void (CGraphicsEngine::*pfnScreen)(), float fX, float fY)
    {
        m_Device.ClearRecords();
        g_MouseState = CMouseState();
        g_fMouseX = fX;
        g_fMouseY = fY;
        (m_Engine.*pfnScreen)();
        std::vector<std::string> vNames;
        for(const CDraw& Draw : m_Device.m_vDraws)
            vNames.push_back(Draw.m_Texture.substr(Draw.m_Texture.rfind('\\') + 1));
        return vNames;
    }
    int MainMenuHotSpotAt(float fX, float fY)
    {
        DrawAt(&CGraphicsEngine::DrawMainMenu, fX, fY);
        return m_Engine.m_nHotSpot;
    }
    // The texts of the frame, as "text@x,y colour", all in the small font.
    std::vector<std::string> Texts() const
    {
        std::vector<std::string> vTexts;
        for(const auto& Text : m_Device.m_vTexts)
        {
            EXPECT_EQ(Text.m_iFontHeight, 15) << Text.m_Text;
            char szPlace[40];
            std::snprintf(szPlace, sizeof(szPlace), "@%d,%d %08x", Text.m_Rect.m_iLeft, Text.m_Rect.m_iTop,
                          Text.m_uiColour);
            vTexts.push_back(Text.m_Text + szPlace);
        }
        return vTexts;
    }
    void AddTracks(uint32_t uiCount)
    {
        for(uint32_t i = 0; i < uiCount; i++)
            m_Game.m_Tracks.m_vFiles.push_back("data//tracks//track" + std::to_string(i) + ".txt");
        m_Game.m_Tracks.m_uiNumFiles = uiCount;
    }

    CRecordingAudio m_Audio;
};

TEST_F(Menus, MainMenuButtonsAreHotOnTheirEdgesAndLightUpUnderTheMouse)
{
    Start();
    EXPECT_EQ(DrawAt(&CGraphicsEngine::DrawMainMenu, 512, 317),
              std::vector<std::string>({"Main_Menu.png", "Single_Player2.png", "Multi_Player1.png", "Options1.png",
                                        "Quit1.png", "credits1.png"}));
    const std::pair<ESprite, int> aButtons[] = {
        {SPR_MAIN_SINGLE, 6}, {SPR_MAIN_MULTI, 7}, {SPR_MAIN_OPTIONS, 11}, {SPR_MAIN_QUIT, 12}, {SPR_MAIN_CREDITS, 14}};
    for(const auto& [Button, iHotSpot] : aButtons)
    {
        const CSprite& S = m_Engine.m_aSprites[Button];
        const float fL = S.m_nX, fT = S.m_nY, fR = S.m_nX + S.m_nWidth, fB = S.m_nY + S.m_nHeight;
        EXPECT_EQ(MainMenuHotSpotAt(fL, fT), iHotSpot);
        EXPECT_EQ(MainMenuHotSpotAt(fR, fB), iHotSpot);
        EXPECT_EQ(MainMenuHotSpotAt(fL - 1, fT), 5) << iHotSpot;
        EXPECT_EQ(MainMenuHotSpotAt(fL, fT - 1), 5) << iHotSpot;
        if(fR < 800) // the cursor can't leave the screen
        {
            EXPECT_EQ(MainMenuHotSpotAt(fR + 1, fB), 5) << iHotSpot;
        }
        if(fB < 600)
        {
            EXPECT_EQ(MainMenuHotSpotAt(fR, fB + 1), 5) << iHotSpot;
        }
    }
}

TEST_F(Menus, TheHoverSoundPlaysOnceForEachButtonTheMouseComesOnto)
{
    Start();
    for(int i = 0; i < 5; i++)
        MainMenuHotSpotAt(400, 460); // Quit
    EXPECT_EQ(m_Audio.m_vPlayed, std::vector<uint32_t>({0}));
    MainMenuHotSpotAt(400, 400); // straight onto Options
    MainMenuHotSpotAt(10, 10);
    MainMenuHotSpotAt(10, 10);
    EXPECT_EQ(m_Audio.m_vPlayed, std::vector<uint32_t>({0, 0}));
    MainMenuHotSpotAt(400, 400);
    EXPECT_EQ(m_Audio.m_vPlayed.size(), 3u);
}

TEST_F(Menus, TheSmallScreensDrawTheirPicturesAndButtons)
{
    typedef std::vector<std::string> CNames;
    Start();
    EXPECT_EQ(DrawAt(&CGraphicsEngine::DrawSinglePlayerMenu, 776, 572),
              CNames({"single_player_menu.png", "return_to_main1.png", "start2.png"}));
    EXPECT_EQ(m_Engine.m_nHotSpot, 16);
    EXPECT_EQ(DrawAt(&CGraphicsEngine::DrawCreditsScreen, 440, 20),
              CNames({"menu_credits.png", "return_to_main2.png"}));
    EXPECT_EQ(m_Engine.m_nHotSpot, 13);

    std::memcpy(m_Game.m_Network.m_szAddressInput, "192.168.100.2001", ADDRESS_CHARS); // no terminator
    EXPECT_EQ(DrawAt(&CGraphicsEngine::DrawConnectScreen, 250, 421),
              CNames({"connect_menu.png", "return_to_main1.png", "connect_client1.png", "connect_server2.png"}));
    EXPECT_EQ(m_Engine.m_nHotSpot, 9);
    EXPECT_EQ(Texts(), CNames({"192.168.100.2001@106,218 ff000000"}));

    m_Game.m_Sound.SetEffectsVolume(100);
    m_Game.m_Sound.SetMusicVolume(0);
    EXPECT_EQ(DrawAt(&CGraphicsEngine::DrawOptionsScreen, 783, 53),
              CNames({"Options_Menu.png", "return_to_main2.png", "slide_bar.png", "slide_bar.png"}));
    EXPECT_EQ(m_Engine.m_nHotSpot, 13);
    const auto Effects = CRecordingRenderDevice::ScreenVertices(m_Device.m_vDraws[2])[1];
    const auto Music = CRecordingRenderDevice::ScreenVertices(m_Device.m_vDraws[3])[1];
    EXPECT_EQ(std::vector<float>({Effects.x, Effects.y, Music.x, Music.y}), std::vector<float>({455, 180, 355, 254}));
    EXPECT_EQ(m_Audio.m_vPlayed, std::vector<uint32_t>({0, 0, 0, 0}));
}

TEST_F(Menus, TheScrollBarShowsBeyondSixteenTracksAndRowsAreCut)
{
    Start();
    AddTracks(16);
    m_Game.m_Tracks.m_vFiles[1] = "data//tracks//" + std::string(80, 'x');
    EXPECT_EQ(DrawAt(&CGraphicsEngine::DrawLobby, 10, 10),
              std::vector<std::string>({"multi_player_menu.png", "return_to_main1.png", "start1.png"}));
    AddTracks(1);
    EXPECT_EQ(DrawAt(&CGraphicsEngine::DrawLobby, 220, 355),
              std::vector<std::string>({"multi_player_menu.png", "return_to_main1.png", "scroll.png", "arrow_up1.png",
                                        "arrow_down2.png", "start1.png"}));
    EXPECT_EQ(m_Engine.m_nHotSpot, 20);
    EXPECT_TRUE(m_Audio.m_vPlayed.empty()) << "the arrows make no sound";
    const auto vTexts = Texts();
    ASSERT_EQ(vTexts.size(), 16u + 1 + 1 + 8) << "sixteen rows, Player 1, the typed line and eight chat lines";
    EXPECT_EQ(vTexts[0], "track0.txt@58,71 ffff0000");
    EXPECT_EQ(vTexts[1], std::string(67, 'x') + "@58,89 ff000000");
    EXPECT_EQ(vTexts[15], "track15.txt@58,341 ff000000");
}

TEST_F(Menus, TheHighlightFollowsTheMouseInsideTheListAreaAndTheChosenRowIsRed)
{
    Start();
    AddTracks(20);
    const std::tuple<float, float, bool, uint32_t> aProbes[] = {{51, 100, false, 0},  {52, 71, true, 0},
                                                                {211, 357, true, 15}, {212, 100, false, 0},
                                                                {100, 70, false, 0},  {100, 358, false, 0}};
    for(const auto& [fX, fY, bVisible, uiRow] : aProbes)
    {
        EXPECT_EQ(DrawAt(&CGraphicsEngine::DrawLobby, fX, fY)[2] == "highlight.png", bVisible) << fX << "," << fY;
        EXPECT_EQ(m_Engine.m_bHighlightVisible, bVisible) << fX << "," << fY;
        if(bVisible)
        {
            EXPECT_EQ(m_Engine.m_nHighlightRow, uiRow) << fY;
        }
    }
    m_Engine.m_nFirstVisibleTrack = 3;
    m_Engine.m_nSelectedTrack = 5;
    DrawAt(&CGraphicsEngine::DrawLobby, 100, 70 + 2 * 18 + 5);
    EXPECT_EQ(m_Engine.m_nHighlightRow, 2u);
    EXPECT_EQ(m_Engine.m_aSprites[SPR_LIST_HIGHLIGHT].m_nY, 106u);
    const auto vTexts = Texts();
    EXPECT_EQ(vTexts[0], "track3.txt@58,71 ff000000");
    EXPECT_EQ(vTexts[2], "track5.txt@58,107 ffff0000") << "the chosen track by its index in the list";

    m_Engine.m_nFirstVisibleTrack = 5;
    DrawAt(&CGraphicsEngine::DrawLobby, 100, 70 + 15 * 18 + 5);
    EXPECT_FALSE(m_Engine.m_bHighlightVisible) << "below the last row, which shows track 19 in row 14";
    m_Engine.m_nFirstVisibleTrack = 6;
    DrawAt(&CGraphicsEngine::DrawLobby, 10, 10);
    for(const std::string& Text : Texts())
        EXPECT_EQ(Text.find("ffff0000"), std::string::npos) << "the chosen row is scrolled off";
}

TEST_F(Menus, OnlyTheHostHasAStartButtonAndEachSeesItsOwnNameInColour)
{
    Start();
    CNetwork& Network = m_Game.m_Network;
    Network.m_Players[2] = {7, true, false};
    Network.m_Players[5] = {3, true, false};
    std::strcpy(Network.m_szLobbyInput, "hello");
    std::strcpy(Network.m_szLobbyLines[1], "Player 3: hi");
    EXPECT_EQ(DrawAt(&CGraphicsEngine::DrawLobby, 603, 494).back(), "start2.png");
    EXPECT_EQ(m_Engine.m_nHotSpot, 16);
    EXPECT_EQ(m_Audio.m_vPlayed.size(), 1u);
    const std::vector<std::string> vTexts = Texts();
    EXPECT_EQ(vTexts, std::vector<std::string>({"Player 1@620,74 ffee11ee", "Player 3@620,108 ff000000",
                                                "Player 6@620,159 ff000000", "hello@260,235 ff000000",
                                                "@260,74 ff000000", "Player 3: hi@260,91 ff000000", "@260,108 ff000000",
                                                "@260,125 ff000000", "@260,142 ff000000", "@260,159 ff000000",
                                                "@260,176 ff000000", "@260,193 ff000000"}));

    Network.m_nMode = 1;
    Network.m_nMyId = 7;
    m_Audio.m_vPlayed.clear();
    EXPECT_EQ(DrawAt(&CGraphicsEngine::DrawLobby, 776, 572),
              std::vector<std::string>({"multi_player_menu.png", "return_to_main1.png"}));
    EXPECT_EQ(m_Engine.m_nHotSpot, 5);
    EXPECT_TRUE(m_Audio.m_vPlayed.empty());
    const std::vector<std::string> vClientTexts = Texts();
    EXPECT_EQ(vClientTexts[0], "Player 1@620,74 ff000000");
    EXPECT_EQ(vClientTexts[1], "Player 3@620,108 ffee11ee");
}
