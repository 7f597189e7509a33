#include "shot/ShotOptions.h"

#include "common/NumberParse.h"

#include <vector>

const char* const SHOT_USAGE = "trelvane-shot LEVEL_FILE OUT.png [--frames N] [--seed N] [--yaw Y --pitch P] "
                               "[--balls] | trelvane-shot --menu STATE OUT.png";

namespace
{
constexpr uint64_t MAX_FRAMES = 10000000;

bool StoreOption(const std::string& Name, const std::string& Value, CShotOptions& Options, bool& bYaw, bool& bPitch)
{
    uint64_t ulValue = 0;
    if(Name == "--frames" && ParseUnsigned(Value, MAX_FRAMES, ulValue))
        Options.m_uiFrames = static_cast<uint32_t>(ulValue);
    else if(Name == "--seed" && ParseUnsigned(Value, UINT32_MAX, ulValue))
        Options.m_uiSeed = static_cast<uint32_t>(ulValue);
    else if(Name == "--yaw" && ParseFinite(Value, Options.m_fYaw))
        bYaw = true;
    else if(Name == "--pitch" && ParseFinite(Value, Options.m_fPitch))
        bPitch = true;
    else
        return false;
    return true;
}

bool ParseMenu(const std::vector<std::string>& vArgs, CShotOptions& Options, std::string& Error)
{
    int32_t iState = 0;
    if(vArgs.size() != 3 || !ParseSigned(vArgs[1], iState) || vArgs[2].empty())
        return Reject(Error, "--menu takes a screen state and an output file");
    Options.m_iMenuState = iState;
    Options.m_OutFile = vArgs[2];
    return true;
}
} // namespace

bool ParseShotOptions(int iArgCount, const char* const* ppArgs, CShotOptions& Options, std::string& Error)
{
    const std::vector<std::string> vArgs(ppArgs, ppArgs + iArgCount);
    if(!vArgs.empty() && vArgs[0] == "--menu")
        return ParseMenu(vArgs, Options, Error);
    if(vArgs.size() < 2 || vArgs[0].rfind("--", 0) == 0 || vArgs[1].rfind("--", 0) == 0)
        return Reject(Error, "a level file and an output file come first");
    Options.m_LevelFile = vArgs[0];
    Options.m_OutFile = vArgs[1];
    bool bYaw = false, bPitch = false;
    size_t i = 2;
    while(i < vArgs.size())
    {
        if(vArgs[i] == "--balls")
        {
            Options.m_bListBalls = true;
            i += 1;
        }
        else if(i + 1 < vArgs.size() && StoreOption(vArgs[i], vArgs[i + 1], Options, bYaw, bPitch))
            i += 2;
        else
            return Reject(Error, "bad option " + vArgs[i]);
    }
    if(bYaw != bPitch)
        return Reject(Error, "--yaw and --pitch go together");
    Options.m_bAim = bYaw;
    return true;
}
