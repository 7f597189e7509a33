#include "bot/BotOptions.h"

#include "common/NumberParse.h"

const char* const BOT_USAGE = "trelvane-bot (--host | --join ADDRESS) [--port P] [--seed N] [--track N] "
                              "[--start-when N] [--start-until S] [--matches N] [--chat TEXT] [--idle] "
                              "[--leave-after S] [--quit-after S]";

const char* const BOT_HELP =
    "usage: trelvane-bot (--host | --join ADDRESS) [--port P] [--seed N] [--track N] [--start-when N]\n"
    "                    [--start-until S] [--matches N] [--chat TEXT] [--idle] [--leave-after S]\n"
    "                    [--quit-after S]\n"
    "A network player without a window: the game's own rules and link, 10 ms frames in real time, levels\n"
    "played by the simulator's autoplayer. At the end it prints one line of JSON, and the same line at\n"
    "once on SIGUSR1 while it runs on.\n"
    "  --host            open a game and wait for players\n"
    "  --join ADDRESS    join the game hosted at ADDRESS\n"
    "  --port P          TCP port (default 666, the game's own)\n"
    "  --seed N          seed of the random numbers (default: the clock)\n"
    "  --track N         host: the index in the track list of the level to start (default 0)\n"
    "  --start-when N    host: start a match once N players are listed, and again after each match\n"
    "  --start-until S   host: start no match after S seconds (default: no limit)\n"
    "  --matches N       end after N matches played and their results seen (default 1)\n"
    "  --chat TEXT       send TEXT as a lobby line once joined\n"
    "  --idle            never shoot or spend a powerup\n"
    "  --leave-after S   leave the game after S seconds, and end\n"
    "  --quit-after S    end after S seconds whatever happens (default 600); so does an interrupt\n"
    "  --help            show this text\n";

namespace
{
constexpr uint32_t MAX_SECONDS = 86400 * 7;

bool ReadSeconds(const std::string& Text, uint32_t& uiMs)
{
    uint32_t uiSeconds = 0;
    if(!ParseU32(Text, 1, MAX_SECONDS, uiSeconds))
        return false;
    uiMs = uiSeconds * 1000;
    return true;
}

bool StoreValue(const std::string& Name, const std::string& Value, CBotOptions& Options)
{
    if(Name == "--join")
    {
        Options.m_Address = Value;
        return !Value.empty();
    }
    if(Name == "--chat")
    {
        Options.m_Chat = Value;
        Options.m_bChat = true;
        return true;
    }
    if(Name == "--port")
        return ParseU32(Value, 1, 65535, Options.m_uiPort);
    if(Name == "--seed")
        return Options.m_bSeedGiven = ParseU32(Value, 0, UINT32_MAX, Options.m_uiSeed);
    if(Name == "--track")
        return ParseU32(Value, 0, UINT32_MAX, Options.m_uiTrack);
    if(Name == "--start-when")
        return ParseU32(Value, 1, 7, Options.m_uiStartWhen);
    if(Name == "--matches")
        return ParseU32(Value, 1, UINT32_MAX, Options.m_uiMatches);
    if(Name == "--start-until")
        return ReadSeconds(Value, Options.m_uiStartUntilMs);
    if(Name == "--leave-after")
        return ReadSeconds(Value, Options.m_uiLeaveAfterMs);
    return ReadSeconds(Value, Options.m_uiQuitAfterMs);
}

bool TakesValue(const std::string& Name)
{
    for(const char* pName : {"--join", "--port", "--seed", "--track", "--start-when", "--start-until", "--matches",
                             "--chat", "--leave-after", "--quit-after"})
    {
        if(Name == pName)
            return true;
    }
    return false;
}

bool ReadArgument(int iArgCount, const char* const* ppArgs, int& i, CBotOptions& Options, std::string& Error)
{
    const std::string Arg = ppArgs[i];
    if(Arg == "--help")
        Options.m_bHelp = true;
    else if(Arg == "--host")
        Options.m_bHost = true;
    else if(Arg == "--idle")
        Options.m_bIdle = true;
    else if(!TakesValue(Arg))
        return Reject(Error, "unknown argument '" + Arg + "'");
    else if(i + 1 >= iArgCount)
        return Reject(Error, Arg + " needs a value");
    else if(!StoreValue(Arg, ppArgs[++i], Options))
        return Reject(Error, std::string("bad value '").append(ppArgs[i]).append("' for ").append(Arg));
    return true;
}
} // namespace

bool ParseBotOptions(int iArgCount, const char* const* ppArgs, CBotOptions& Options, std::string& Error)
{
    for(int i = 0; i < iArgCount; i++)
    {
        if(!ReadArgument(iArgCount, ppArgs, i, Options, Error))
            return false;
    }
    if(Options.m_bHelp)
        return true;
    if(Options.m_bHost == !Options.m_Address.empty())
        return Reject(Error, "give either --host or --join ADDRESS");
    if(!Options.m_bHost && (Options.m_uiStartWhen > 0 || Options.m_uiStartUntilMs > 0))
        return Reject(Error, "only a host starts matches");
    return true;
}
