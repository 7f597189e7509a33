#include "sim/SimScript.h"

#include "app/Game.h"
#include "common/NumberParse.h"
#include "sim/PlayerInput.h"
#include "sim/SimReport.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace
{
struct CActionName
{
    const char* m_pName;
    ESimAction m_Action;
    size_t m_ArgCount;
};

const CActionName ACTIONS[] = {
    {"aim", ESimAction::Aim, 2},   {"turn", ESimAction::Turn, 2},   {"fire", ESimAction::Fire, 0},
    {"swap", ESimAction::Swap, 0}, {"path", ESimAction::Path, 0},   {"forward", ESimAction::Forward, 1},
    {"back", ESimAction::Back, 1}, {"power", ESimAction::Power, 0},
};

// The angles a player can hold: the turns keep the yaw within a circle and the pitch short of straight.
bool ParseAngles(const std::vector<std::string>& vArgs, double* pArgs)
{
    float fYaw = 0.0f, fPitch = 0.0f;
    if(!ParseFinite(vArgs[0], fYaw) || !ParseFinite(vArgs[1], fPitch))
        return false;
    if(fYaw < 0.0f || fYaw > 360.0f || fPitch < -89.0f || fPitch > 89.0f)
        return false;
    pArgs[0] = fYaw;
    pArgs[1] = fPitch;
    return true;
}

bool ParseArgs(ESimAction Action, const std::vector<std::string>& vArgs, double* pArgs)
{
    int32_t aiCounts[2] = {0, 0};
    uint64_t ulSteps = 0;
    switch(Action)
    {
    case ESimAction::Aim: return ParseAngles(vArgs, pArgs);
    case ESimAction::Turn:
        if(!ParseSigned(vArgs[0], aiCounts[0]) || !ParseSigned(vArgs[1], aiCounts[1]))
            return false;
        std::copy(aiCounts, aiCounts + 2, pArgs);
        return true;
    case ESimAction::Power: // the key of a player's number, 0 to 8, as the keyboard has them
        if(vArgs.empty())
            return true;
        if(!ParseUnsigned(vArgs[0], 8, ulSteps))
            return false;
        pArgs[0] = static_cast<double>(ulSteps);
        pArgs[1] = 1.0;
        return true;
    case ESimAction::Forward:
    case ESimAction::Back:
        if(!ParseUnsigned(vArgs[0], UINT32_MAX, ulSteps))
            return false;
        pArgs[0] = static_cast<double>(ulSteps);
        return true;
    default: return true;
    }
}

// Blank for the player's own level, else the digit of the player's number.
char PowerKey(const double* pArgs)
{
    return pArgs[1] != 0.0 ? static_cast<char>('0' + static_cast<int>(pArgs[0])) : ' ';
}

void ApplyStep(const CScriptStep& Step, CGame& Game, CRunCount& Count)
{
    const double* pArgs = Step.m_adArgs;
    switch(Step.m_Action)
    {
    case ESimAction::Aim:
        Game.m_Graphics.m_fYaw = static_cast<float>(pArgs[0]);
        Game.m_Graphics.m_fPitch = static_cast<float>(pArgs[1]);
        Game.m_Graphics.UpdateLookAt();
        break;
    case ESimAction::Turn: TurnByMouse(Game, static_cast<int>(pArgs[0]), static_cast<int>(pArgs[1])); break;
    case ESimAction::Fire: Count.m_ulShotsFired += FireShot(Game) ? 1 : 0; break;
    case ESimAction::Power: Count.m_ulPowerupsUsed += PressPowerupKey(Game, PowerKey(pArgs)) ? 1 : 0; break;
    case ESimAction::Swap: Game.m_Logic.SwapColours(); break;
    case ESimAction::Path: Game.m_Level.NextCameraPath(); break;
    case ESimAction::Forward: Game.m_Level.MoveForward(static_cast<uint32_t>(pArgs[0])); break;
    case ESimAction::Back: Game.m_Level.MoveBack(static_cast<uint32_t>(pArgs[0])); break;
    }
}
// Reads one line that is neither blank nor a comment; on a mistake returns false with the reason.
bool ParseScriptLine(const std::string& Line, CScriptStep& Step, std::string& Error)
{
    std::istringstream Stream(Line);
    std::string Frame, Name, Word;
    std::vector<std::string> vArgs;
    Stream >> Frame >> Name;
    while(Stream >> Word)
        vArgs.push_back(Word);
    if(!ParseUnsigned(Frame, UINT64_MAX, Step.m_ulFrame) || Name.empty())
        return Reject(Error, "expected FRAME ACTION [ARGS]");
    const auto itName = std::find_if(std::begin(ACTIONS), std::end(ACTIONS),
                                     [&Name](const CActionName& Action) { return Name == Action.m_pName; });
    if(itName == std::end(ACTIONS))
        return Reject(Error, "unknown action '" + Name + "'");
    Step.m_Action = itName->m_Action;
    const bool bArgCount =
        vArgs.size() == itName->m_ArgCount || (Step.m_Action == ESimAction::Power && vArgs.size() == 1);
    if(!bArgCount || !ParseArgs(Step.m_Action, vArgs, Step.m_adArgs))
        return Reject(Error, "bad arguments for " + Name);
    return true;
}
} // namespace

bool CSimScript::Load(const std::string& FileName, std::string& Error)
{
    std::ifstream Stream(FileName);
    if(!Stream)
        return Reject(Error, "cannot open script " + FileName);
    std::string Line;
    for(size_t LineNumber = 1; std::getline(Stream, Line); LineNumber++)
    {
        const size_t First = Line.find_first_not_of(" \t\r\v\f");
        if(First == std::string::npos || Line[First] == '#')
            continue;
        CScriptStep Step;
        if(!ParseScriptLine(Line, Step, Error))
            return Reject(Error, FileName + ":" + std::to_string(LineNumber).append(": ").append(Error));
        m_vSteps.push_back(Step);
    }
    if(Stream.bad())
        return Reject(Error, "cannot read script " + FileName);
    std::stable_sort(m_vSteps.begin(), m_vSteps.end(),
                     [](const CScriptStep& a, const CScriptStep& b) { return a.m_ulFrame < b.m_ulFrame; });
    return true;
}

void CSimScript::Apply(uint64_t ulFrame, CGame& Game, CRunCount& Count)
{
    for(; m_Next < m_vSteps.size() && m_vSteps[m_Next].m_ulFrame <= ulFrame; m_Next++)
    {
        if(m_vSteps[m_Next].m_ulFrame == ulFrame)
            ApplyStep(m_vSteps[m_Next], Game, Count);
    }
}
