#include "app/Game.h"
#include "platform/interfaces/Clock.h"

#include <benchmark/benchmark.h>

namespace
{
// A game with touching chains of the given length on each track, and a few shots in flight, so that one
// tick does all its work: the push pass, links, hit tests against every ball, and the counts.
struct CBusyLevel
{
    CGame m_Game;

    CBusyLevel(int iTracks, int iBallsPerTrack)
    {
        SetManualClock(0);
        m_Game.m_Clock = CGameClock();
        g_pGame = &m_Game;
        m_Game.m_bInGame = true;
        m_Game.m_Logic.m_bActive = true;
        m_Game.m_Level.m_vTracks.resize(static_cast<size_t>(iTracks));
        for(int t = 0; t < iTracks; t++)
            Fill(m_Game.m_Level.m_vTracks[static_cast<size_t>(t)], t, iBallsPerTrack);
        for(int i = 0; i < 7; i++)
        {
            CBall* pShot = new CBall;
            pShot->m_Position = CPoint3(-50.0f, 0.0f, static_cast<float>(i));
            pShot->m_vDirection = CVector3(0.0f, 1.0f, 0.0f);
            pShot->m_usLife = 0xFFFF;
            m_Game.m_Level.m_lstShots.push_back(pShot);
        }
    }
    ~CBusyLevel() { g_pGame = nullptr; }

    static void Fill(CTrack& Track, int iTrack, int iBalls)
    {
        const uint32_t uiPoints = static_cast<uint32_t>(iBalls) * 14 + 100;
        for(uint32_t i = 0; i < uiPoints; i++)
            Track.m_Spline.m_vPoints.emplace_back(static_cast<float>(i) * 0.2f, 0.0f, 10.0f * iTrack);
        Track.m_Spline.m_uiNumPoints = uiPoints;
        Track.m_vColourCounts.assign(NUM_COLOURS, 0);
        Track.m_uiInterval = 4000000000u; // the chains barely creep, so every tick finds the same work
        Track.m_vColourQueue.assign(10, 0);
        for(int i = 0; i < iBalls; i++)
        {
            CBall* pBall = new CBall;
            pBall->m_uiPoint = static_cast<uint32_t>(i) * 14;
            pBall->m_Position = Track.m_Spline.m_vPoints[pBall->m_uiPoint];
            pBall->m_ucColour = static_cast<uint8_t>(i / 2 % NUM_COLOURS); // pairs: no run forms
            Track.m_lstBalls.push_back(pBall);
            Track.m_vColourCounts[pBall->m_ucColour]++;
        }
    }
};

void ChainTick(benchmark::State& State)
{
    const int iTracks = static_cast<int>(State.range(0)), iBalls = static_cast<int>(State.range(1));
    CBusyLevel Level(iTracks, iBalls / iTracks);
    if(!Level.m_Game.m_Logic.m_bActive)
        State.SkipWithError("the level ended while it was being set up");
    for(auto _ : State)
    {
        AdvanceManualClock(10);
        Level.m_Game.m_Clock.Update(timeGetTime());
        Level.m_Game.m_Logic.Tick();
    }
    if(!Level.m_Game.m_Logic.m_bActive)
        State.SkipWithError("the level ended during the run: the numbers would measure an idle tick");
    // Time per ball per tick: flat across sizes when a tick grows linearly with the balls in play.
    State.counters["per_ball"] = benchmark::Counter(
        static_cast<double>(iBalls), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(ChainTick)->ArgsProduct({{1, 7}, {100, 500, 1000, 2000}})->Unit(benchmark::kMicrosecond);
} // namespace
