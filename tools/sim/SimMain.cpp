#include "app/Game.h"
#include "net/Log.h"
#include "platform/Clock.h"
#include "platform/ErrorBox.h"
#include "platform/RecordingRenderDevice.h"
#include "sim/Autoplay.h"
#include "sim/SimOptions.h"
#include "sim/SimReport.h"
#include "sim/SimScript.h"
#include "tracks/GameFile.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace
{
constexpr int EXIT_BAD_INPUT = 2;

std::vector<std::string> g_vErrors; // what the game would have shown in error boxes

void RecordError(const char* pText)
{
    g_vErrors.emplace_back(pText);
}

int Fail(const std::string& Reason)
{
    std::cerr << "trelvane-sim: " << Reason << "\n";
    return EXIT_BAD_INPUT;
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

// A level that loads with faults is still played, as the game would play it; the faults are told first.
void ReportWarnings()
{
    for(const std::string& Text : g_vErrors)
        std::cerr << "trelvane-sim: warning: " << Text << "\n";
    g_vErrors.clear();
}

struct CRun
{
    const CSimOptions& m_Options;
    CSimScript& m_Script;
    std::ofstream* m_pTrace;
};

// Player actions go in before each frame, the frame runs on the manual clock, and the trace sees its result.
CRunCount RunLevel(CGame& Game, const CRun& Run)
{
    const CAutoplay Player(Run.m_Options.m_uiDeltaMs);
    CRunCount Count;
    Count.m_uiDeltaMs = Run.m_Options.m_uiDeltaMs;
    while(Count.m_ulFrames < Run.m_Options.m_ulFrames && Game.m_Logic.m_bActive)
    {
        Run.m_Script.Apply(Count.m_ulFrames, Game, Count);
        if(Run.m_Options.m_bAutoplay)
            Player.Play(Game, Count);
        AdvanceManualClock(Run.m_Options.m_uiDeltaMs);
        const uint32_t uiStackBefore = Game.m_Powerups.m_nStackCount;
        Game.Tick(); // a tick can only add letters: the keys spend them between ticks
        if(Game.m_Powerups.m_nStackCount > uiStackBefore)
            Count.m_ulPowerupsEarned += Game.m_Powerups.m_nStackCount - uiStackBefore;
        if(Run.m_pTrace)
            WriteTraceFrame(*Run.m_pTrace, Count.m_ulFrames, Game);
        Count.m_ulFrames++;
    }
    return Count;
}

int Simulate(const CSimOptions& Options, CSimScript& Script, std::ofstream* pTrace)
{
    SetErrorHandler(RecordError);
    SetLogSink([](const char*) {}); // a level on its own has no network to tell of
    SetManualClock(0);
    std::string Reason;
    if(!CanOpenLevel(Options.m_LevelFile, Reason))
        return Fail(Reason);
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
    ReportWarnings();

    const CRunCount Count = RunLevel(*pGame, {Options, Script, pTrace});
    WriteSummary(std::cout, *pGame, Count);
    g_pGame = nullptr;
    if(pTrace && !pTrace->flush())
        return Fail("cannot write trace " + Options.m_TraceFile);
    return std::cout.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
} // namespace

int main(int iArgCount, char** ppArgs)
{
    CSimOptions Options;
    std::string Error;
    if(!ParseSimOptions(iArgCount - 1, ppArgs + 1, Options, Error))
        return Fail(Error + " (usage: " + SIM_USAGE + ")");
    if(Options.m_bHelp)
    {
        std::cout << SIM_HELP;
        return EXIT_SUCCESS;
    }
    CSimScript Script;
    if(!Options.m_ScriptFile.empty() && !Script.Load(Options.m_ScriptFile, Error))
        return Fail(Error);
    std::ofstream Trace;
    if(!Options.m_TraceFile.empty())
    {
        Trace.open(Options.m_TraceFile, std::ios::out | std::ios::trunc);
        if(!Trace)
            return Fail("cannot open trace " + Options.m_TraceFile + " for writing");
    }
    return Simulate(Options, Script, Trace.is_open() ? &Trace : nullptr);
}
