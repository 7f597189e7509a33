#include "sim/SimRun.h"

#include "app/Game.h"
#include "net/Log.h"
#include "platform/interfaces/Clock.h"
#include "platform/interfaces/ErrorBox.h"
#include "platform/twins/RecordingRenderDevice.h"
#include "sim/Autoplay.h"
#include "sim/SimReport.h"
#include "sim/SimScript.h"
#include "tracks/GameFile.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>

namespace
{
std::vector<std::string> g_vErrors; // what the game would have shown in error boxes

void RecordError(const char* pText)
{
    g_vErrors.emplace_back(pText);
}

// The game's own opening test, so that the simulator refuses exactly the files the game would; a folder
// opens as a file on some systems but is never a level.
bool CanOpenLevel(const std::string& FileName, std::string& Reason)
{
    std::ifstream Stream;
    std::error_code Ignored;
    if(std::filesystem::is_directory(FileName, Ignored))
        Reason = FileName + " is a folder, not a level file";
    else if(!OpenGameFile(FileName.c_str(), Stream))
        Reason = g_vErrors.empty() ? "cannot open " + FileName : g_vErrors.back();
    return Reason.empty();
}

// Player actions go in before each frame, the frame runs on the manual clock, and the trace sees its result.
CRunCount RunLevel(CGame& Game, const CSimOptions& Options, CSimScript& Script, std::ostream* pTrace)
{
    CAutoplay Player(Options.m_uiDeltaMs, {Options.m_uiPaceMs, Options.m_fAimErrorDeg, Options.m_uiSeed});
    CRunCount Count;
    Count.m_uiDeltaMs = Options.m_uiDeltaMs;
    while(Count.m_ulFrames < Options.m_ulFrames && Game.m_Logic.m_bActive)
    {
        Script.Apply(Count.m_ulFrames, Game, Count);
        if(Options.m_bAutoplay)
            Player.Play(Game, Count);
        AdvanceManualClock(Options.m_uiDeltaMs);
        const uint32_t uiStackBefore = Game.m_Powerups.m_nStackCount;
        Game.Tick(); // a tick can only add letters: the keys spend them between ticks
        if(Game.m_Powerups.m_nStackCount > uiStackBefore)
            Count.m_ulPowerupsEarned += Game.m_Powerups.m_nStackCount - uiStackBefore;
        if(pTrace)
            WriteTraceFrame(*pTrace, Count.m_ulFrames, Game);
        Count.m_ulFrames++;
    }
    return Count;
}
} // namespace

bool RunSimulation(const CSimOptions& Options, CSimScript& Script, const CSimOutput& Output, CSimResult& Result,
                   std::string& Reason)
{
    SetErrorHandler(RecordError);
    SetLogSink([](const char*) {}); // a level on its own has no network to tell of
    SetManualClock(0);
    g_vErrors.clear();
    if(!CanOpenLevel(Options.m_LevelFile, Reason))
        return false;
    g_vErrors.clear();
    // The one seeding, before the game exists: building the game already draws the colours in hand.
    std::srand(Options.m_uiSeed);
    CRecordingRenderDevice Device; // the play frame aims the camera, and the shots leave along its sight
    Device.m_bRecording = false;
    const auto pGame = std::make_unique<CGame>();
    g_pGame = pGame.get();
    pGame->m_Graphics.m_pDevice = &Device;
    pGame->m_Tracks.m_uiRound = Options.m_uiRound;
    pGame->StartLevel(Options.m_LevelFile.c_str());
    Result.m_vWarnings = g_vErrors;
    Result.m_uiBallsAtStart = pGame->m_Level.BallsToClear();

    Result.m_Count = RunLevel(*pGame, Options, Script, Output.m_pTrace);
    Result.m_Outcome = Outcome(*pGame);
    Result.m_uiBallsLeft = pGame->m_Level.BallsToClear();
    Result.m_bClockRanOut = pGame->m_Level.m_Countdown.IsExpired();
    if(Output.m_pSummary)
        WriteSummary(*Output.m_pSummary, *pGame, Result.m_Count);
    g_pGame = nullptr;
    return true;
}
