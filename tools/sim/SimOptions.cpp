#include "sim/SimOptions.h"

#include "common/NumberParse.h"

const char* const SIM_USAGE = "trelvane-sim LEVEL_FILE [--seed N] [--dt MS] [--frames N] [--round R] [--script FILE] "
                              "[--autoplay [--pace MS] [--aim-error DEG]] [--trace FILE]";

const char* const SIM_HELP =
    "usage: trelvane-sim LEVEL_FILE [--seed N] [--dt MS] [--frames N] [--round R] [--script FILE]\n"
    "                    [--autoplay [--pace MS] [--aim-error DEG]] [--trace FILE]\n"
    "Plays a level by the game's own rules, without a window, and prints one line of JSON with the result.\n"
    "  --seed N       seed of the game's random numbers (default 1)\n"
    "  --dt MS        milliseconds in each frame, 1 to 60000 (default 10)\n"
    "  --frames N     stop after N frames (default: when the level ends, at most 2000000 frames)\n"
    "  --round R      round of the run, which speeds the chains up (default 1)\n"
    "  --script FILE  player actions, one a line: FRAME aim YAW PITCH | turn DX DY | fire | swap | path |\n"
    "                 forward N | back N | power [PLAYER]\n"
    "  --autoplay     aim and fire as a player would, riding the camera paths towards the chain in most danger\n"
    "  --pace MS      the autoplayer waits at least MS milliseconds between two shots (default 0: the game's\n"
    "                 own fire delay of 500 ms alone)\n"
    "  --aim-error DEG  every aim of the autoplayer lands a random angle of up to DEG degrees off, 0 to 45\n"
    "                 (default 0); the balls stay those of the seed\n"
    "  --trace FILE   write every frame's balls and shots as one line of JSON each\n"
    "  --help         show this text\n";

namespace
{
constexpr uint32_t MAX_DELTA_MS = 60000; // a minute a frame is already far beyond any real frame
constexpr uint32_t MAX_PACE_MS = 3600000;
constexpr float MAX_AIM_ERROR_DEG = 45.0f;

bool StoreAimError(const std::string& Value, float& fDegrees)
{
    float fValue = 0.0f;
    if(!ParseFinite(Value, fValue) || fValue < 0.0f || fValue > MAX_AIM_ERROR_DEG)
        return false;
    fDegrees = fValue;
    return true;
}

// Stores the value of one option that takes one; false when the text is not a value the option accepts.
bool StoreValue(const std::string& Name, const std::string& Value, CSimOptions& Options)
{
    if(Name == "--seed")
        return ParseU32(Value, 0, UINT32_MAX, Options.m_uiSeed);
    if(Name == "--dt")
        return ParseU32(Value, 1, MAX_DELTA_MS, Options.m_uiDeltaMs);
    if(Name == "--round")
        return ParseU32(Value, 1, UINT32_MAX, Options.m_uiRound);
    if(Name == "--pace")
        return ParseU32(Value, 0, MAX_PACE_MS, Options.m_uiPaceMs);
    if(Name == "--aim-error")
        return StoreAimError(Value, Options.m_fAimErrorDeg);
    if(Name == "--frames")
        return ParseUnsigned(Value, UINT64_MAX, Options.m_ulFrames);
    std::string& Text = Name == "--script" ? Options.m_ScriptFile : Options.m_TraceFile;
    Text = Value;
    return !Value.empty();
}

bool TakesValue(const std::string& Name)
{
    for(const char* pName : {"--seed", "--dt", "--frames", "--round", "--script", "--trace", "--pace", "--aim-error"})
    {
        if(Name == pName)
            return true;
    }
    return false;
}
} // namespace

bool ParseSimOptions(int iArgCount, const char* const* ppArgs, CSimOptions& Options, std::string& Error)
{
    for(int i = 0; i < iArgCount; i++)
    {
        const std::string Arg = ppArgs[i];
        if(Arg == "--help")
            Options.m_bHelp = true;
        else if(Arg == "--autoplay")
            Options.m_bAutoplay = true;
        else if(TakesValue(Arg))
        {
            if(i + 1 >= iArgCount)
                return Reject(Error, Arg + " needs a value");
            const std::string Value = ppArgs[++i];
            if(!StoreValue(Arg, Value, Options))
                return Reject(Error, std::string("bad value '").append(Value).append("' for ").append(Arg));
        }
        else if(Arg.empty() || Arg[0] == '-')
            return Reject(Error, "unknown option '" + Arg + "'");
        else if(!Options.m_LevelFile.empty())
            return Reject(Error, "more than one level file: '" + Arg + "'");
        else
            Options.m_LevelFile = Arg;
    }
    if(Options.m_LevelFile.empty() && !Options.m_bHelp)
        return Reject(Error, "no level file given");
    return true;
}
