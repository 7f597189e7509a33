#include "sim/SimOptions.h"

#include "common/NumberParse.h"

const char* const SIM_USAGE = "trelvane-sim LEVEL_FILE [--seed N] [--dt MS] [--frames N] [--round R] [--script FILE] "
                              "[--autoplay] [--trace FILE]";

const char* const SIM_HELP =
    "usage: trelvane-sim LEVEL_FILE [--seed N] [--dt MS] [--frames N] [--round R] [--script FILE] [--autoplay] "
    "[--trace FILE]\n"
    "Plays a level by the game's own rules, without a window, and prints one line of JSON with the result.\n"
    "  --seed N       seed of the game's random numbers (default 1)\n"
    "  --dt MS        milliseconds in each frame, 1 to 60000 (default 10)\n"
    "  --frames N     stop after N frames (default: when the level ends, at most 2000000 frames)\n"
    "  --round R      round of the run, which speeds the chains up (default 1)\n"
    "  --script FILE  player actions, one a line: FRAME aim YAW PITCH | turn DX DY | fire | swap | path |\n"
    "                 forward N | back N | power [PLAYER]\n"
    "  --autoplay     aim and fire as a player would\n"
    "  --trace FILE   write every frame's balls and shots as one line of JSON each\n"
    "  --help         show this text\n";

namespace
{
constexpr uint32_t MAX_DELTA_MS = 60000; // a minute a frame is already far beyond any real frame

// Stores the value of one option that takes one; false when the text is not a value the option accepts.
bool StoreValue(const std::string& Name, const std::string& Value, CSimOptions& Options)
{
    if(Name == "--seed")
        return ParseU32(Value, 0, UINT32_MAX, Options.m_uiSeed);
    if(Name == "--dt")
        return ParseU32(Value, 1, MAX_DELTA_MS, Options.m_uiDeltaMs);
    if(Name == "--round")
        return ParseU32(Value, 1, UINT32_MAX, Options.m_uiRound);
    if(Name == "--frames")
        return ParseUnsigned(Value, UINT64_MAX, Options.m_ulFrames);
    std::string& Text = Name == "--script" ? Options.m_ScriptFile : Options.m_TraceFile;
    Text = Value;
    return !Value.empty();
}

bool TakesValue(const std::string& Name)
{
    for(const char* pName : {"--seed", "--dt", "--frames", "--round", "--script", "--trace"})
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
