#include "gfx/EngineFixture.h"

#include "input/Input.h"
#include "input/KeyCodes.h"
#include "platform/native/SocketEvents.h"
#include "platform/twins/RecordingAudio.h"
#include "platform/twins/ScriptedInput.h"
#include "tracks/TrackList.h"

#include <cstring>

namespace
{
// Remembers the effects volume that each sound was played at.
class CVolumeAudio : public CRecordingAudio
{
public:
    void PlayEffect(uint32_t uiId) override
    {
        m_vVolumes.push_back(m_iEffectsVolume);
        CRecordingAudio::PlayEffect(uiId);
    }
    std::vector<int> m_vVolumes;
};
} // namespace

class ScreenFlow : public CEngineFixture
{
protected:
    ScreenFlow()
    {
        m_Game.m_Sound.m_pAudio = &m_Audio;
        InitInput();
        CreateKeyboard(&m_Input);
        CreateMouse(&m_Input);
        MouseAt(CURSOR_START, CURSOR_START);
    }
    ~ScreenFlow() override
    {
        ReleaseMouse();
        ReleaseKeyboard();
        ReleaseInput();
        MouseAt(CURSOR_START, CURSOR_START);
    }
    static void MouseAt(float fX, float fY)
    {
        g_fMouseX = fX;
        g_fMouseY = fY;
    }
    // The input half of one pass of the main loop: both polls, then the step.
    bool Pass()
    {
        PollKeyboard();
        PollMouse();
        return m_Game.m_Flow.Step();
    }
    // Pressed in one pass and let go in the next, whose step sees the click.
    bool ClickButton(int iButton)
    {
        m_Input.SetButton(iButton, true);
        Pass();
        m_Input.SetButton(iButton, false);
        return Pass();
    }
    // A left click with the mouse over a hot spot of a screen; what it played is forgotten first.
    bool ClickOn(int iScreen, int iHotSpot)
    {
        m_Engine.m_nScreenState = iScreen;
        m_Engine.m_nHotSpot = iHotSpot;
        m_Audio.m_vPlayed.clear();
        return ClickButton(0);
    }
    void UseLevels(uint32_t uiCount)
    {
        CTrackList Shipped; // the first five levels of the game, over and over
        Shipped.Load(TRACK_LIST_FILE);
        for(uint32_t i = 0; i < uiCount; i++)
            m_Game.m_Tracks.m_vFiles.push_back(Shipped.m_vFiles.at(i % 5));
        m_Game.m_Tracks.m_uiNumFiles = uiCount;
    }

    CScriptedInput m_Input;
    CVolumeAudio m_Audio;
};

TEST_F(ScreenFlow, TheLogoGivesWayAfter8000MsOrOnEitherClickButNotOnAKey)
{
    m_Game.m_nStartTime = 1000;
    m_Engine.m_nScreenState = SCREEN_LOGO;
    SetManualClock(9000);
    m_Input.SetKey(DIK_SPACE, true);
    Pass();
    m_Input.SetKey(DIK_SPACE, false);
    Pass();
    EXPECT_EQ(m_Engine.m_nScreenState, SCREEN_LOGO);
    SetManualClock(9001);
    Pass();
    EXPECT_EQ(m_Engine.m_nScreenState, SCREEN_MAIN_MENU);

    SetManualClock(1000);
    for(int iButton : {0, 1})
    {
        m_Engine.m_nScreenState = SCREEN_LOGO;
        m_Engine.m_nHotSpot = HOT_QUIT;
        EXPECT_TRUE(ClickButton(iButton)) << "the click that leaves the logo presses no button";
        EXPECT_EQ(m_Engine.m_nScreenState, SCREEN_MAIN_MENU) << iButton;
        EXPECT_TRUE(m_Audio.m_vPlayed.empty());
    }
}

TEST_F(ScreenFlow, TheClickTableLeadsFromScreenToScreen)
{
    // Screen, hot spot, screen after the click; each of these rows clicks.
    const std::tuple<int, int, int> aRows[] = {{SCREEN_MAIN_MENU, 6, SCREEN_SINGLE_PLAYER},
                                               {SCREEN_MAIN_MENU, 7, SCREEN_CONNECT},
                                               {SCREEN_MAIN_MENU, 11, SCREEN_OPTIONS},
                                               {SCREEN_MAIN_MENU, 14, SCREEN_CREDITS},
                                               {SCREEN_SINGLE_PLAYER, 13, SCREEN_MAIN_MENU},
                                               {SCREEN_CONNECT, 13, SCREEN_MAIN_MENU},
                                               {SCREEN_OPTIONS, 13, SCREEN_MAIN_MENU},
                                               {SCREEN_CREDITS, 13, SCREEN_MAIN_MENU},
                                               {SCREEN_LOBBY, 13, SCREEN_MAIN_MENU},
                                               {SCREEN_CONNECT, 8, SCREEN_LOBBY},
                                               {SCREEN_CONNECT, 9, SCREEN_LOBBY}};
    for(const auto& [iScreen, iHotSpot, iNext] : aRows)
    {
        m_Engine.m_nSelectedTrack = m_Engine.m_nFirstVisibleTrack = 4;
        m_Game.m_Network.m_nMode = 7;
        m_Game.m_Network.m_bNetGame = iScreen == SCREEN_LOBBY;
        EXPECT_TRUE(ClickOn(iScreen, iHotSpot));
        EXPECT_EQ(m_Engine.m_nScreenState, iNext) << iScreen << " " << iHotSpot;
        EXPECT_EQ(m_Audio.m_vPlayed, std::vector<uint32_t>({SOUND_CLICK})) << iScreen << " " << iHotSpot;
        EXPECT_EQ(m_Game.m_Network.m_bNetGame, iNext == SCREEN_LOBBY) << iScreen << " " << iHotSpot;
        EXPECT_EQ(m_Engine.m_nSelectedTrack + m_Engine.m_nFirstVisibleTrack, iHotSpot == 7 ? 0u : 8u);
        if(iNext == SCREEN_LOBBY)
        {
            EXPECT_EQ(m_Game.m_Network.m_nMode, iHotSpot == 8 ? 1u : 0u);
        }
    }
    EXPECT_FALSE(ClickOn(SCREEN_MAIN_MENU, 12)) << "Quit";
    EXPECT_EQ(m_Audio.m_vPlayed, std::vector<uint32_t>({SOUND_CLICK}));

    for(int iScreen = SCREEN_MAIN_MENU; iScreen <= SCREEN_RESULTS; iScreen++)
    {
        if(iScreen == SCREEN_LOGO || iScreen == SCREEN_PLAY)
            continue;
        EXPECT_TRUE(ClickOn(iScreen, 5));
        EXPECT_EQ(m_Engine.m_nScreenState, iScreen) << "a click on nothing does nothing";
        EXPECT_TRUE(m_Audio.m_vPlayed.empty()) << iScreen;
    }
}

TEST_F(ScreenFlow, LobbyRowsScrollAndChooseSilentlyAndOnlyTheHostStarts)
{
    UseLevels(17);
    m_Engine.m_nFirstVisibleTrack = 0;
    for(uint32_t uiExpected : {1u, 1u})
    {
        ClickOn(SCREEN_LOBBY, HOT_SCROLL_DOWN);
        EXPECT_EQ(m_Engine.m_nFirstVisibleTrack, uiExpected);
    }
    m_Engine.m_bHighlightVisible = true;
    m_Engine.m_nHighlightRow = 2;
    ClickOn(SCREEN_LOBBY, HOT_SCROLL_UP);
    EXPECT_EQ(m_Engine.m_nSelectedTrack, 3u) << "the highlight row comes before the arrows";
    m_Engine.m_bHighlightVisible = false;
    for(uint32_t uiExpected : {0u, 0u})
    {
        ClickOn(SCREEN_LOBBY, HOT_SCROLL_UP);
        EXPECT_EQ(m_Engine.m_nFirstVisibleTrack, uiExpected);
    }
    EXPECT_TRUE(m_Audio.m_vPlayed.empty());

    m_Game.m_Network.m_nMode = NET_MODE_CLIENT;
    ClickOn(SCREEN_LOBBY, HOT_START);
    EXPECT_EQ(m_Engine.m_nScreenState, SCREEN_LOBBY);
    m_Game.m_Network.m_nMode = NET_MODE_HOST;
    m_Game.m_Tracks.m_uiCurrentFile = 9;
    ClickOn(SCREEN_LOBBY, HOT_START);
    EXPECT_EQ(m_Engine.m_nScreenState, SCREEN_PLAY);
    EXPECT_EQ(m_Game.m_Level.m_vTracks.size(), 2u) << "the fourth level of the list has two tracks";
    EXPECT_EQ(m_Game.m_Tracks.m_uiCurrentFile, 0u) << "the chosen track only names the file";
}

TEST_F(ScreenFlow, SlidersTakeClicksFrom356To609AndTheEffectsClickSoundsAtTheNewVolume)
{
    const std::tuple<float, float, int, int> aClicks[] = {
        {355, 180, 255, 255}, {356, 171, 1, 255}, {609, 198, 254, 255}, {610, 180, 254, 255}, {400, 170, 254, 255},
        {400, 199, 254, 255}, {356, 241, 254, 1}, {609, 269, 254, 254}, {500, 240, 254, 254}, {500, 270, 254, 254}};
    for(const auto& [fX, fY, iEffects, iMusic] : aClicks)
    {
        MouseAt(fX, fY);
        ClickOn(SCREEN_OPTIONS, HOT_NOTHING);
        EXPECT_EQ(m_Game.m_Sound.GetEffectsVolume(), iEffects) << fX << "," << fY;
        EXPECT_EQ(m_Game.m_Sound.GetMusicVolume(), iMusic) << fX << "," << fY;
    }
    EXPECT_EQ(m_Audio.m_vVolumes, std::vector<int>({1, 254})) << "a click only for the effects, at its new volume";
}

TEST_F(ScreenFlow, StartLoadsTheFirstLevelAndTheSameClickFiresTheFirstShot)
{
    ClickOn(SCREEN_SINGLE_PLAYER, HOT_START);
    EXPECT_EQ(m_Engine.m_nScreenState, SCREEN_SINGLE_PLAYER) << "no level to play";
    EXPECT_TRUE(m_Audio.m_vPlayed.empty());

    UseLevels(3);
    m_Game.m_Tracks.m_uiCurrentFile = 2;
    m_Game.m_Level.m_bWon = true;
    ClickOn(SCREEN_SINGLE_PLAYER, HOT_START);
    EXPECT_EQ(m_Engine.m_nScreenState, SCREEN_PLAY);
    EXPECT_EQ(m_Game.m_Level.m_vTracks.size(), 1u);
    EXPECT_EQ(m_Game.m_Tracks.m_uiCurrentFile, 0u);
    EXPECT_TRUE(m_Game.m_bInGame && m_Game.m_Logic.m_bActive && !m_Game.m_Level.m_bWon);
    EXPECT_EQ(m_Game.m_Level.m_lstShots.size(), 1u);
    EXPECT_EQ(m_Audio.m_vPlayed, std::vector<uint32_t>({SOUND_CLICK, SOUND_SHOOT}));

    ClickOn(SCREEN_PLAY, HOT_START);
    EXPECT_EQ(m_Game.m_Level.m_lstShots.size(), 1u) << "held back by the fire delay";
    EXPECT_EQ(m_Audio.m_vPlayed, std::vector<uint32_t>({SOUND_SHOOT})) << "and still heard";
}

TEST_F(ScreenFlow, InPlayTheWheelAndArrowsRideThePathTheMouseTurnsAndTheButtonsSwitch)
{
    CLevel& Level = m_Game.m_Level;
    Level.m_vCameraPaths.resize(2);
    for(CCameraPath& Path : Level.m_vCameraPaths)
        Path.m_Spline.m_uiNumPoints = 200;
    Level.m_ucNumCameraPaths = 2;
    Level.m_vCameraPaths[0].m_uiPosition = 100;
    m_Engine.m_nScreenState = SCREEN_PLAY;
    const std::pair<int32_t, uint32_t> aWheel[] = {{1, 70}, {-2, 100}};
    for(const auto& [iNotches, uiPosition] : aWheel)
    {
        m_Input.AddWheel(iNotches);
        Pass();
        EXPECT_EQ(Level.m_vCameraPaths[0].m_uiPosition, uiPosition);
    }
    m_Input.SetKey(DIK_LEFT, true);
    m_Input.SetKey(DIK_RIGHT, true);
    Pass();
    Pass();
    EXPECT_EQ(Level.m_vCameraPaths[0].m_uiPosition, 140u) << "left wins, 20 points a pass while held";
    m_Input.SetKey(DIK_LEFT, false);
    Pass();
    EXPECT_EQ(Level.m_vCameraPaths[0].m_uiPosition, 120u);
    m_Input.SetKey(DIK_RIGHT, false);

    m_Input.AddMotion(10, -5);
    Pass();
    EXPECT_FLOAT_EQ(m_Engine.m_fYaw, 0.5f) << "a right turn of 10 / 5";
    EXPECT_FLOAT_EQ(m_Engine.m_fPitch, -0.25f) << "an upward turn of 5 / 5";

    ClickButton(2);
    EXPECT_EQ(Level.m_ucCurrentPath, 1);
    Level.m_ucShotColour = 1;
    Level.m_ucNextColour = 4;
    ClickButton(1);
    EXPECT_EQ(Level.m_ucShotColour, 4);
    EXPECT_EQ(Level.m_ucNextColour, 1);
    EXPECT_TRUE(m_Audio.m_vPlayed.empty());
}

// Join opens the link as a client to the typed address on the game's port, and the lobby follows even when
// nobody answers there; the lobby's Return takes the link down and the tables back to a game of one.
TEST_F(ScreenFlow, JoinOpensTheLinkAndTheLobbysReturnTakesItDownAgain)
{
    CNetwork& Network = m_Game.m_Network;
    CSocketEvents Events;
    Network.m_pEvents = &Events;
    std::strcpy(Network.m_szAddressInput, "127.0.0.1");
    ClickOn(SCREEN_CONNECT, HOT_JOIN);
    EXPECT_EQ(m_Engine.m_nScreenState, SCREEN_LOBBY);
    EXPECT_TRUE(Network.m_bNetGame);
    EXPECT_EQ(Network.m_nLinkMode, NET_MODE_CLIENT);
    EXPECT_STREQ(Network.m_szServer, "127.0.0.1");
    EXPECT_EQ(Network.m_nPort, 666u);
    EXPECT_FALSE(Network.m_bRunning) << "nobody hosts on this machine's loopback";

    Network.m_nMyId = 5;
    Network.AddPlayer(5);
    ClickOn(SCREEN_LOBBY, HOT_RETURN);
    EXPECT_EQ(m_Engine.m_nScreenState, SCREEN_MAIN_MENU);
    EXPECT_EQ(m_Audio.m_vPlayed, std::vector<uint32_t>({SOUND_CLICK}));
    EXPECT_FALSE(Network.m_bNetGame);
    EXPECT_EQ(Network.m_pSocket, nullptr);
    EXPECT_EQ(Network.m_nPlayers, 1u);
    EXPECT_EQ(Network.m_nMyId, 0u);
    EXPECT_TRUE(Network.m_Players[0].m_bPresent);
    EXPECT_FALSE(Network.m_Players[1].m_bPresent);
}
