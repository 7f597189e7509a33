#pragma once
#include <cstdint>
#include <string>

// What one run of the frame grabber is asked to draw.
struct CShotOptions
{
    std::string m_LevelFile; // empty for a menu frame
    std::string m_OutFile;
    int m_iMenuState = 0; // a screen state, with --menu
    uint32_t m_uiFrames = 0;
    uint32_t m_uiSeed = 1;
    bool m_bAim = false;       // --yaw and --pitch were given
    bool m_bListBalls = false; // --balls: print where each ball of the frame stands on screen
    float m_fYaw = 0.0f;
    float m_fPitch = 0.0f;
};

extern const char* const SHOT_USAGE;

// Reads the arguments behind the program name. On a mistake returns false with a one-line reason.
bool ParseShotOptions(int iArgCount, const char* const* ppArgs, CShotOptions& Options, std::string& Error);
