// Draws one frame of the game with the real device and saves it as an 800x600 PNG: a level after some
// frames of play, or a menu screen.
#include "app/Game.h"
#include "net/Log.h"
#include "platform/interfaces/Clock.h"
#include "platform/interfaces/GameMatrix.h"
#include "platform/native/DataFolder.h"
#include "platform/native/PngFile.h"
#include "shot/FrameGrab.h"
#include "shot/ShotOptions.h"

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace
{
int Fail(const std::string& Reason)
{
    std::fprintf(stderr, "trelvane-shot: %s\n", Reason.c_str());
    return EXIT_FAILURE;
}

// The level's rules run frame by frame on a hand-set clock; the frame saved is a play frame drawn last,
// with the view turned as asked.
void PlayLevel(CFrameGrab& Grab, const CShotOptions& Options)
{
    Grab.PlayLevel(Options.m_LevelFile, Options.m_uiFrames);
    CGame& Game = Grab.Game();
    if(Options.m_bAim)
    {
        Game.m_Graphics.m_fYaw = Options.m_fYaw;
        Game.m_Graphics.m_fPitch = Options.m_fPitch;
    }
    Game.m_Graphics.RenderPlayFrame();
}

// Where a point of the world lands on the 800x600 screen through the frame's view and projection; false
// behind the eye.
bool Project(const CGraphicsEngine& Camera, const CPoint3& Point, float& fX, float& fY)
{
    const std::array<float, 4> afClip =
        Transformed(Camera.m_matProjection, Transformed(Camera.m_matView, {Point.x(), Point.y(), Point.z(), 1.0f}));
    if(afClip[3] <= 0.0f)
        return false;
    fX = (afClip[0] / afClip[3] + 1.0f) * 400.0f;
    fY = (1.0f - afClip[1] / afClip[3]) * 300.0f;
    return true;
}

// One line for each chain ball in view: its place on screen, its colour and whether it carries a powerup.
void ListBalls(const CGame& Game)
{
    for(const CTrack& Track : Game.m_Level.m_vTracks)
    {
        for(const CBall* pBall : Track.m_lstBalls)
        {
            float fX, fY;
            if(Project(Game.m_Graphics, pBall->m_Position, fX, fY) && fX >= 0 && fX < 800 && fY >= 0 && fY < 600)
                std::printf("ball %.0f %.0f %u %d\n", fX, fY, pBall->m_ucColour, pBall->m_bPowerup ? 1 : 0);
        }
    }
}

int Grab(const CShotOptions& Options)
{
    CFrameGrab Grab;
    std::string Reason;
    if(!Grab.Open(Reason))
        return Fail(Reason);
    CGame& Game = Grab.Game();
    if(Options.m_LevelFile.empty())
    {
        Game.m_Graphics.m_nScreenState = Options.m_iMenuState;
        Game.m_Graphics.RenderMenuFrame();
    }
    else
        PlayLevel(Grab, Options);
    if(Options.m_bListBalls)
        ListBalls(Game);
    std::vector<uint8_t> vPixels;
    const bool bSaved = Grab.ReadFrame(vPixels) && SavePng(Options.m_OutFile.c_str(), vPixels, 800, 600);
    return bSaved ? EXIT_SUCCESS : Fail("cannot write " + Options.m_OutFile);
}
} // namespace

int main(int iArgCount, char** ppArgs)
{
    CShotOptions Options;
    std::string Error;
    if(!ParseShotOptions(iArgCount - 1, ppArgs + 1, Options, Error))
        return Fail(Error + " (usage: " + SHOT_USAGE + ")");
    FindToolData(); // the pictures of the menus and of the level
    SetManualClock(0);
    SetLogSink([](const char*) {}); // a frame grab has no network to tell of
    std::srand(Options.m_uiSeed);
    return Grab(Options);
}
