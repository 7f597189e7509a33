#include "math/BSpline.h"
#include "platform/interfaces/ErrorBox.h"
#include "tracks/Level.h"
#include "tracks/TrackList.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace
{
// A winding polygon of the kind a designer draws: a helix with a slow climb.
std::vector<CPoint3> Helix(int iPoints)
{
    std::vector<CPoint3> v;
    for(int i = 0; i < iPoints; i++)
        v.emplace_back(20.0f * std::cos(i * 0.4f), 0.3f * i, 20.0f * std::sin(i * 0.4f));
    return v;
}

void BuildCurve(benchmark::State& State)
{
    const std::vector<CPoint3> vPolygon = Helix(static_cast<int>(State.range(1)));
    for(auto _ : State)
    {
        CBSpline Spline;
        Spline.m_uiDegree = static_cast<uint32_t>(State.range(0));
        Spline.m_vControlPoints = vPolygon;
        Spline.Build();
        benchmark::DoNotOptimize(Spline.m_vPoints.data());
    }
}
BENCHMARK(BuildCurve)->Args({3, 100})->Args({8, 40})->Unit(benchmark::kMicrosecond);

void LoadLevel(benchmark::State& State)
{
    CTrackList List;
    if(!List.Load(TRACK_LIST_FILE) || List.m_vFiles.empty())
    {
        State.SkipWithError("run from the folder that holds data/");
        return;
    }
    for(auto _ : State)
    {
        CLevel Level;
        Level.Load(List.m_vFiles[0].c_str(), 1);
        benchmark::DoNotOptimize(Level.m_ucNumTracks);
    }
}
BENCHMARK(LoadLevel)->Unit(benchmark::kMicrosecond);
} // namespace
