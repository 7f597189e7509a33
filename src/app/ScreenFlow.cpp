#include "app/ScreenFlow.h"

#include "app/Game.h"
#include "input/Input.h"
#include "input/KeyCodes.h"
#include "platform/interfaces/Clock.h"
#include "platform/interfaces/Window.h"

#include <cctype>
#include <string>
#include <vector>

bool g_bChatOpen = false;

namespace
{
constexpr char ESCAPE = 27;
constexpr float FLY_STEP = 1.1f;
constexpr int TARGET_SELF = -1;

constexpr int BUTTON_LEFT = 0;
constexpr int BUTTON_RIGHT = 1;
constexpr int BUTTON_MIDDLE = 2;
constexpr uint32_t LOGO_TIME_MS = 8000;

// Clicks on the two sliders' rows set a volume from 1 to 254.
constexpr int32_t SLIDER_LEFT_X = SLIDER_ORIGIN_X + 1;
constexpr int32_t SLIDER_RIGHT_X = SLIDER_ORIGIN_X + 254;
constexpr int32_t EFFECTS_ROW_TOP = 171;
constexpr int32_t EFFECTS_ROW_BOTTOM = 198;
constexpr int32_t MUSIC_ROW_TOP = 241;
constexpr int32_t MUSIC_ROW_BOTTOM = 269;

// Camera path points along the path for one wheel step and for one pass with an arrow key held.
constexpr uint32_t WHEEL_STEP = 30;
constexpr uint32_t ARROW_STEP = 20;
constexpr float TURN_DIVISOR = 5.0f; // mouse counts for one unit of turn

void Click(CGame& Game)
{
    Game.m_Sound.PlaySound(SOUND_CLICK);
}

void ClickTo(CGame& Game, int iScreen)
{
    Click(Game);
    Game.m_Graphics.m_nScreenState = iScreen;
}

// The return button of the single-player menu, the connect, options and credits screens; true when the
// click was on it.
bool ReturnOnHotSpot(CGame& Game)
{
    if(Game.m_Graphics.m_nHotSpot != HOT_RETURN)
        return false;
    ClickTo(Game, SCREEN_MAIN_MENU);
    return true;
}

// The Start buttons. With no level in the list there is nothing to play, so the button does nothing at all
// rather than send the player into an empty level. The host's start tells the others which level first.
void StartFromList(CGame& Game, uint32_t uiIndex)
{
    const std::vector<std::string>& vFiles = Game.m_Tracks.m_vFiles;
    if(uiIndex >= vFiles.size())
        return;
    Click(Game);
    if(Game.m_Network.m_bNetGame)
        Game.m_Network.SendStartGame(uiIndex);
    Game.StartLevel(vFiles[uiIndex].c_str());
}

// False when the player picked Quit.
bool OnMainMenuClick(CGame& Game)
{
    CGraphicsEngine& Screen = Game.m_Graphics;
    switch(Screen.m_nHotSpot)
    {
    case HOT_SINGLE_PLAYER: ClickTo(Game, SCREEN_SINGLE_PLAYER); break;
    case HOT_MULTI_PLAYER:
        // Every visit to the lobby starts at the top of the list with the first track chosen.
        Screen.m_nSelectedTrack = 0;
        Screen.m_nFirstVisibleTrack = 0;
        ClickTo(Game, SCREEN_CONNECT);
        break;
    case HOT_OPTIONS: ClickTo(Game, SCREEN_OPTIONS); break;
    case HOT_CREDITS: ClickTo(Game, SCREEN_CREDITS); break;
    case HOT_QUIT: Click(Game); return false;
    default: break;
    }
    return true;
}

void OnSinglePlayerClick(CGame& Game)
{
    if(!ReturnOnHotSpot(Game) && Game.m_Graphics.m_nHotSpot == HOT_START)
        StartFromList(Game, 0);
}

// The lobby follows in any case: a link that could not be made leaves the player there, free to go back.
void OpenNetGame(CGame& Game, uint32_t uiMode)
{
    Click(Game);
    CNetwork& Network = Game.m_Network;
    Network.m_nMode = uiMode;
    Network.m_bNetGame = true;
    Network.Init(Network.m_pEvents, uiMode, GAME_PORT, Network.m_szAddressInput, NET_MAX_FRAME, GAME_MAX_CLIENTS);
    Game.m_Graphics.m_nScreenState = SCREEN_LOBBY;
}

void OnConnectClick(CGame& Game)
{
    if(ReturnOnHotSpot(Game))
        return;
    if(Game.m_Graphics.m_nHotSpot == HOT_JOIN)
        OpenNetGame(Game, NET_MODE_CLIENT);
    else if(Game.m_Graphics.m_nHotSpot == HOT_HOST)
        OpenNetGame(Game, NET_MODE_HOST);
}

// A click on a row chooses the track by its index in the list, so the choice survives scrolling. Only the
// host has a Start button; a client starts when the host does.
void OnLobbyClick(CGame& Game)
{
    CGraphicsEngine& Screen = Game.m_Graphics;
    if(Screen.m_nHotSpot == HOT_RETURN)
    {
        Game.m_Network.Leave();
        ClickTo(Game, SCREEN_MAIN_MENU);
    }
    else if(Screen.m_nHotSpot == HOT_START && Game.m_Network.m_nMode == NET_MODE_HOST)
        StartFromList(Game, Screen.m_nSelectedTrack);
    else if(Screen.m_bHighlightVisible)
        Screen.m_nSelectedTrack = Screen.m_nHighlightRow + Screen.m_nFirstVisibleTrack;
    else if(Screen.m_nHotSpot == HOT_SCROLL_DOWN)
    {
        if(Game.m_Tracks.m_uiNumFiles > Screen.m_nFirstVisibleTrack + TRACK_LIST_ROWS)
            Screen.m_nFirstVisibleTrack++;
    }
    else if(Screen.m_nHotSpot == HOT_SCROLL_UP && Screen.m_nFirstVisibleTrack > 0)
        Screen.m_nFirstVisibleTrack--;
}

bool InSliderRow(int32_t iX, int32_t iY, int32_t iTop, int32_t iBottom)
{
    return iX >= SLIDER_LEFT_X && iX <= SLIDER_RIGHT_X && iY >= iTop && iY <= iBottom;
}

// A volume jumps to the place of the release; the sliders don't drag. The effects click sounds after the new
// volume is set, so the player hears how loud it now is.
void OnOptionsClick(CGame& Game, int32_t iX, int32_t iY)
{
    if(ReturnOnHotSpot(Game))
        return;
    if(InSliderRow(iX, iY, EFFECTS_ROW_TOP, EFFECTS_ROW_BOTTOM))
    {
        Game.m_Sound.SetEffectsVolume(iX - SLIDER_ORIGIN_X);
        Click(Game);
    }
    else if(InSliderRow(iX, iY, MUSIC_ROW_TOP, MUSIC_ROW_BOTTOM))
        Game.m_Sound.SetMusicVolume(iX - SLIDER_ORIGIN_X);
}

// At most one row of the click table runs. False when the player picked Quit.
bool OnClick(CGame& Game, int32_t iX, int32_t iY)
{
    switch(Game.m_Graphics.m_nScreenState)
    {
    case SCREEN_MAIN_MENU: return OnMainMenuClick(Game);
    case SCREEN_SINGLE_PLAYER: OnSinglePlayerClick(Game); break;
    case SCREEN_LOBBY: OnLobbyClick(Game); break;
    case SCREEN_CONNECT: OnConnectClick(Game); break;
    case SCREEN_OPTIONS: OnOptionsClick(Game, iX, iY); break;
    case SCREEN_CREDITS: ReturnOnHotSpot(Game); break;
    default: break;
    }
    return true;
}

// The arrow keys are tested for being held, so the eye runs on while one is down.
void MoveAlongPath(CLevel& Level, float fWheel)
{
    if(fWheel > 0.0f)
        Level.MoveBack(WHEEL_STEP);
    else if(fWheel < 0.0f)
        Level.MoveForward(WHEEL_STEP);
    if(KeyDown(DIK_LEFT))
        Level.MoveForward(ARROW_STEP);
    else if(KeyDown(DIK_RIGHT))
        Level.MoveBack(ARROW_STEP);
}

void Turn(CGraphicsEngine& Camera, float fDx, float fDy)
{
    if(fDx > 0.0f)
        Camera.TurnRight(fDx / TURN_DIVISOR);
    else
        Camera.TurnLeft(-fDx / TURN_DIVISOR);
    if(fDy > 0.0f)
        Camera.TurnDown(fDy / TURN_DIVISOR);
    else
        Camera.TurnUp(-fDy / TURN_DIVISOR);
}

// The mouse aims, the left button shoots, the right one swaps the two balls, the wheel and the arrows ride
// the camera path and the middle button changes to the next path.
void OnPlayInput(CGame& Game, bool bLeft, bool bRight)
{
    float fDx = 0.0f;
    float fDy = 0.0f;
    GetMouseMotion(fDx, fDy);
    MoveAlongPath(Game.m_Level, GetMouseWheel());
    if(MouseButtonPressed(BUTTON_MIDDLE))
        Game.m_Level.NextCameraPath();
    Turn(Game.m_Graphics, fDx, fDy);
    if(bLeft)
    {
        Game.m_Logic.Fire();
        Game.m_Sound.PlaySound(SOUND_SHOOT); // on every click, also one that the fire delay holds back
    }
    if(bRight)
        Game.m_Logic.SwapColours();
}
} // namespace

// The button edges are read here and nowhere else, as each reading clears them. The click that starts a level
// is still set when the play input runs, so it fires the level's first shot in the same pass.
bool CScreenFlow::Step()
{
    const bool bLeft = MouseButtonPressed(BUTTON_LEFT);
    const bool bRight = MouseButtonPressed(BUTTON_RIGHT);
    const int32_t iX = static_cast<int32_t>(GetMouseX());
    const int32_t iY = static_cast<int32_t>(GetMouseY());
    CGame& Game = *g_pGame;
    int& nScreen = Game.m_Graphics.m_nScreenState;
    if(nScreen == SCREEN_LOGO)
    {
        if(timeGetTime() - Game.m_nStartTime > LOGO_TIME_MS || bLeft || bRight)
            nScreen = SCREEN_MAIN_MENU;
        return true;
    }
    if(bLeft && !OnClick(Game, iX, iY))
        return false;
    if(nScreen == SCREEN_PLAY)
        OnPlayInput(Game, bLeft, bRight);
    return true;
}

void CScreenFlow::OnChar(char cCharacter)
{
    if(g_bChatOpen)
        return;
    if(cCharacter == ESCAPE)
    {
        Quit();
        return;
    }
    const bool bInPlay = g_pGame->m_Graphics.m_nScreenState == SCREEN_PLAY;
    if(cCharacter == '0' || (cCharacter == ' ' && bInPlay))
        SpendPowerupOn(TARGET_SELF);
    else if(cCharacter >= '1' && cCharacter <= '8')
    {
        // The digits address the player table by slot, the player's own slot included.
        const CPlayerSlot& Slot = g_pGame->m_Network.m_Players[cCharacter - '1'];
        if(Slot.m_bPresent)
            SpendPowerupOn(static_cast<int>(Slot.m_nId));
    }
    else if(bInPlay)
        Fly(static_cast<char>(std::tolower(static_cast<unsigned char>(cCharacter))));
}

// Escape leaves the game from every screen: the engine lets go of the device first, then the window goes.
void CScreenFlow::Quit()
{
    g_pGame->m_Graphics.ReleaseResources();
    if(g_pWindow)
        g_pWindow->Destroy();
}

void CScreenFlow::SpendPowerupOn(int iTarget)
{
    g_pGame->m_Network.m_nTarget = iTarget;
    g_pGame->m_Powerups.UsePowerup();
}

// The fly keys matter only on a level without a camera path: elsewhere the eye goes back to its path.
void CScreenFlow::Fly(char cLowerCase)
{
    CGraphicsEngine& Camera = g_pGame->m_Graphics;
    switch(cLowerCase)
    {
    case 'e': Camera.MoveForward(FLY_STEP); break;
    case 'd': Camera.MoveBack(FLY_STEP); break;
    case 's': Camera.MoveLeft(FLY_STEP); break;
    case 'f': Camera.MoveRight(FLY_STEP); break;
    case 't': Camera.MoveUp(FLY_STEP); break;
    case 'g': Camera.MoveDown(FLY_STEP); break;
    default: break;
    }
}
