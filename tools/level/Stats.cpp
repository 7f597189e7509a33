// Measures a level the way the difficulty curve is drawn: an expert and a casual player over many seeds, and
// a player who never shoots.
#include "common/Json.h"
#include "common/NumberParse.h"
#include "level/LevelCommands.h"
#include "level/StatsSummary.h"
#include "play/Ball.h"
#include "sim/SimRun.h"
#include "sim/SimScript.h"
#include "tracks/Level.h"

#include <iostream>

namespace
{
constexpr uint32_t DEFAULT_SEEDS = 20;
constexpr uint32_t MAX_SEEDS = 10000;

struct CStatsOptions
{
    std::string m_LevelFile;
    uint32_t m_uiSeeds = DEFAULT_SEEDS;
    uint32_t m_uiRound = 1;
};

bool ParseStatsOptions(const std::vector<std::string>& vArgs, CStatsOptions& Options, std::string& Error)
{
    for(size_t i = 0; i < vArgs.size(); i++)
    {
        const std::string& Arg = vArgs[i];
        if(Arg == "--seeds" || Arg == "--round")
        {
            uint32_t& uiValue = Arg == "--seeds" ? Options.m_uiSeeds : Options.m_uiRound;
            if(i + 1 >= vArgs.size() || !ParseU32(vArgs[i + 1], 1, Arg == "--seeds" ? MAX_SEEDS : UINT32_MAX, uiValue))
                return Reject(Error, Arg + " needs a whole number from 1");
            i++;
        }
        else if(Arg.empty() || Arg[0] == '-' || !Options.m_LevelFile.empty())
            return Reject(Error, "unexpected argument '" + Arg + "'");
        else
            Options.m_LevelFile = Arg;
    }
    return !Options.m_LevelFile.empty() || Reject(Error, "no level file given");
}

// One run of the simulator: a kind of player on a seed, or without one the player who never shoots.
bool Play(const CStatsOptions& Stats, const CPlayerKind* pKind, uint32_t uiSeed, CSimResult& Result,
          std::string& Reason)
{
    CSimOptions Options;
    Options.m_LevelFile = Stats.m_LevelFile;
    Options.m_uiRound = Stats.m_uiRound;
    Options.m_uiSeed = uiSeed;
    Options.m_bAutoplay = pKind != nullptr;
    Options.m_uiPaceMs = pKind ? pKind->m_uiPaceMs : 0;
    Options.m_fAimErrorDeg = pKind ? pKind->m_fAimErrorDeg : 0.0f;
    CSimScript NoScript;
    return RunSimulation(Options, NoScript, {}, Result, Reason);
}

// One player over every seed; false when the level can't be opened.
bool PlayAllSeeds(const CStatsOptions& Stats, const CPlayerKind& Kind, CPlayerSummary& Summary, std::string& Reason)
{
    for(uint32_t uiSeed = 1; uiSeed <= Stats.m_uiSeeds; uiSeed++)
    {
        CSimResult Result;
        if(!Play(Stats, &Kind, uiSeed, Result, Reason))
            return false;
        Summary.Add(Result);
    }
    return true;
}

void WriteTracks(std::ostream& Stream, const CStatsOptions& Stats)
{
    CLevel Level;
    Level.Load(Stats.m_LevelFile.c_str(), Stats.m_uiRound);
    WriteJsonArray(Stream, Level.m_vTracks, [&Stream](const CTrack& Track) {
        const float fLength = Track.m_Spline.m_vDistances.empty() ? 0.0f : Track.m_Spline.m_vDistances.back();
        Stream << "{\"length_diameters\":";
        WriteJsonNumber(Stream, fLength / BALL_DIAMETER);
        Stream << ",\"balls\":" << Track.m_vColourQueue.size() << ",\"interval_ms\":" << Track.m_uiInterval << "}";
    });
}
} // namespace

int RunStats(const std::vector<std::string>& vArgs)
{
    CStatsOptions Stats;
    std::string Error;
    if(!ParseStatsOptions(vArgs, Stats, Error))
        return FailLevelTool(Error + " (usage: trelvane-level stats FILE [--seeds N] [--round R])");
    CSimResult Idle;
    CPlayerSummary Expert(EXPERT_PLAYER), Casual(CASUAL_PLAYER);
    if(!Play(Stats, nullptr, 1, Idle, Error) || !PlayAllSeeds(Stats, EXPERT_PLAYER, Expert, Error) ||
       !PlayAllSeeds(Stats, CASUAL_PLAYER, Casual, Error))
        return FailLevelTool(Error);
    for(const std::string& Warning : Idle.m_vWarnings)
        std::cerr << "trelvane-level: warning: " << Warning << "\n";

    std::cout << "{\"level\":";
    WriteJsonString(std::cout, Stats.m_LevelFile.c_str());
    std::cout << ",\"round\":" << Stats.m_uiRound << ",\"seeds\":" << Stats.m_uiSeeds << ",\"tracks\":";
    WriteTracks(std::cout, Stats);
    std::cout << ",\"idle\":{\"outcome\":\"" << Idle.m_Outcome << "\",\"ms\":" << Idle.Milliseconds()
              << ",\"clock_ran_out\":" << (Idle.m_bClockRanOut ? "true" : "false") << "},\"expert\":";
    Expert.Write(std::cout);
    std::cout << ",\"casual\":";
    Casual.Write(std::cout);
    std::cout << "}\n";
    return std::cout.flush() ? 0 : LEVEL_EXIT_BAD_INPUT;
}
