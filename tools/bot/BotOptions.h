#pragma once
#include <cstdint>
#include <string>

// What one bot is asked to do.
struct CBotOptions
{
    bool m_bHost = false;
    std::string m_Address; // the host to join; empty for a host
    uint32_t m_uiPort = 666;
    uint32_t m_uiSeed = 0;
    bool m_bSeedGiven = false;
    uint32_t m_uiTrack = 0;
    uint32_t m_uiStartWhen = 0;    // 0: the host never starts a match
    uint32_t m_uiStartUntilMs = 0; // 0: the host starts matches for as long as it runs
    uint32_t m_uiMatches = 1;
    std::string m_Chat;
    bool m_bChat = false;
    bool m_bIdle = false;
    uint32_t m_uiLeaveAfterMs = 0; // 0: never
    uint32_t m_uiQuitAfterMs = 600000;
    bool m_bHelp = false;
};

extern const char* const BOT_USAGE;
extern const char* const BOT_HELP;

// Reads the arguments behind the program name. On a mistake returns false with a one-line reason.
bool ParseBotOptions(int iArgCount, const char* const* ppArgs, CBotOptions& Options, std::string& Error);
