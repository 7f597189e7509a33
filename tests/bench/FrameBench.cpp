#include "app/Game.h"
#include "gfx/Fonts.h"
#include "platform/interfaces/Clock.h"
#include "platform/native/GlRenderDevice.h"
#include "platform/native/SdlWindow.h"

#include <benchmark/benchmark.h>

namespace
{
constexpr uint32_t BALL_SPACING_POINTS = 14; // touching, as the chains roll
constexpr float LAP_RISE = 3.0f;             // each lap of the track lies a ball's height above the last
// The real game drawing its play frame on the OpenGL device, in a shown window as the game has: the first
// shipped level with its track filled with a given number of touching balls, lap over lap as if the level had
// several tracks, all in view, every one its own draw with its own matrix and material.
struct CDrawnLevel
{
    CSdlWindow m_Window;
    CGlRenderDevice m_Device;
    CGame m_Game;
    bool m_bReady = false;

    explicit CDrawnLevel(uint32_t uiBalls)
    {
        const char* pReason = "";
        if(!m_Window.Create("Trelvane", &pReason))
            return;
        g_pGame = &m_Game;
        m_Game.m_Graphics.m_fnOpenDevice = [this]() -> IRenderDevice* {
            return m_Device.Init(m_Window) ? &m_Device : nullptr;
        };
        if(!m_Game.m_Graphics.Init() || !InitFonts())
            return;
        m_Game.StartLevel("tests/data/level1.txt");
        Fill(m_Game.m_Level.m_vTracks.at(0), uiBalls);
        m_bReady = true;
    }
    ~CDrawnLevel()
    {
        ReleaseFonts();
        g_pGame = nullptr;
    }

    static void Fill(CTrack& Track, uint32_t uiBalls)
    {
        const std::vector<CPoint3>& vPoints = Track.m_Spline.m_vPoints;
        for(uint32_t i = 0; i < uiBalls; i++)
        {
            CBall* pBall = new CBall;
            const uint32_t uiAlong = i * BALL_SPACING_POINTS;
            const uint32_t uiPoints = static_cast<uint32_t>(vPoints.size());
            pBall->m_uiPoint = uiAlong % uiPoints;
            pBall->m_Position = vPoints[pBall->m_uiPoint] + CVector3(0.0f, LAP_RISE * (uiAlong / uiPoints), 0.0f);
            pBall->m_ucColour = static_cast<uint8_t>(i % 6);
            pBall->m_bPowerup = i % 10 == 0;
            Track.m_lstBalls.push_back(pBall);
        }
    }
};

void PlayFrame(benchmark::State& State)
{
    CDrawnLevel Level(static_cast<uint32_t>(State.range(0)));
    if(!Level.m_bReady)
    {
        State.SkipWithError("no OpenGL device (run on a display)");
        return;
    }
    for(auto _ : State)
    {
        Level.m_Game.m_Graphics.RenderPlayFrame();
        Level.m_Device.Finish();
    }
}
// The time is the wall clock's; the CPU time is the whole process's, the driver's drawing threads included.
BENCHMARK(PlayFrame)
    ->Arg(0)
    ->Arg(500)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();
} // namespace
