#include "shot/FrameGrab.h"

#include "app/Game.h"
#include "gfx/Fonts.h"
#include "platform/interfaces/Clock.h"

namespace
{
constexpr uint32_t FRAME_MS = 10;
}

CFrameGrab::CFrameGrab() = default;

CFrameGrab::~CFrameGrab()
{
    if(m_bFonts)
        ReleaseFonts();
    if(g_pGame == m_pGame.get())
        g_pGame = nullptr;
}

bool CFrameGrab::Open(std::string& Reason)
{
    const char* pReason = "";
    if(!m_Window.Create("Trelvane", &pReason, true))
    {
        Reason = std::string("no window: ") + pReason;
        return false;
    }
    m_pGame = std::make_unique<CGame>();
    g_pGame = m_pGame.get();
    m_pGame->m_Graphics.m_fnOpenDevice = [this]() -> IRenderDevice* {
        return m_Device.Init(m_Window) ? &m_Device : nullptr;
    };
    if(!m_pGame->m_Graphics.Init())
    {
        Reason = "no OpenGL device";
        return false;
    }
    InitFonts();
    m_bFonts = true;
    return true;
}

void CFrameGrab::PlayLevel(const std::string& LevelFile, uint32_t uiFrames)
{
    m_pGame->StartLevel(LevelFile.c_str());
    for(uint32_t i = 0; i < uiFrames; i++)
    {
        AdvanceManualClock(FRAME_MS);
        m_pGame->Tick();
    }
}

bool CFrameGrab::ReadFrame(std::vector<uint8_t>& vRgba)
{
    return m_Device.ReadPixels(vRgba);
}
