#pragma once
#include <cstdint>
#include <string>

// Until the level ends, but never longer than this many frames: a level that sets no play time runs a day.
constexpr uint64_t DEFAULT_FRAME_CAP = 2000000;

// What one run of the simulator is asked to do.
struct CSimOptions
{
    std::string m_LevelFile;
    uint32_t m_uiSeed = 1;
    uint32_t m_uiDeltaMs = 10;
    uint64_t m_ulFrames = DEFAULT_FRAME_CAP;
    uint32_t m_uiRound = 1;
    std::string m_ScriptFile;
    std::string m_TraceFile;
    bool m_bAutoplay = false;
    uint32_t m_uiPaceMs = 0;     // the autoplayer's least time between two shots
    float m_fAimErrorDeg = 0.0f; // and the most its aim is off
    bool m_bHelp = false;
};

// The one-line synopsis, shown with every mistake on the command line.
extern const char* const SIM_USAGE;
// The synopsis with a line on each option, for --help.
extern const char* const SIM_HELP;

// Reads the arguments behind the program name. On a mistake returns false with a one-line reason.
bool ParseSimOptions(int iArgCount, const char* const* ppArgs, CSimOptions& Options, std::string& Error);
