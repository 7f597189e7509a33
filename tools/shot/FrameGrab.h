#pragma once
#include "platform/native/GlRenderDevice.h"
#include "platform/native/SdlWindow.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class CGame;

// A hidden window with the real OpenGL device and a game that draws on it: the frame grabber's pictures and
// the level preview's first frame come from here. The caller seeds the game's random numbers and sets the
// hand-set clock before Open, since building the game already draws the colours in hand.
class CFrameGrab
{
public:
    CFrameGrab();
    ~CFrameGrab();
    CFrameGrab(const CFrameGrab&) = delete;
    CFrameGrab& operator=(const CFrameGrab&) = delete;

    // False with a reason when there is no display, no OpenGL or no font.
    bool Open(std::string& Reason);
    CGame& Game() { return *m_pGame; }
    // Starts the level and runs its rules for that many frames of 10 ms each.
    void PlayLevel(const std::string& LevelFile, uint32_t uiFrames);
    // The picture last drawn: 800x600 RGBA, top row first.
    bool ReadFrame(std::vector<uint8_t>& vRgba);

private:
    CSdlWindow m_Window;
    CGlRenderDevice m_Device;
    std::unique_ptr<CGame> m_pGame;
    bool m_bFonts = false;
};
