#include "sim/SimOptions.h"
#include "sim/SimRun.h"
#include "sim/SimScript.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

namespace
{
constexpr int EXIT_BAD_INPUT = 2;

int Fail(const std::string& Reason)
{
    std::cerr << "trelvane-sim: " << Reason << "\n";
    return EXIT_BAD_INPUT;
}

int Simulate(const CSimOptions& Options, CSimScript& Script, std::ofstream* pTrace)
{
    CSimResult Result;
    std::string Reason;
    if(!RunSimulation(Options, Script, {pTrace, &std::cout}, Result, Reason))
        return Fail(Reason);
    // A level that loads with faults is still played, as the game would play it; the faults are told too.
    for(const std::string& Text : Result.m_vWarnings)
        std::cerr << "trelvane-sim: warning: " << Text << "\n";
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
