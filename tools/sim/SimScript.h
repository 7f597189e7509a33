#pragma once
#include <cstdint>
#include <string>
#include <vector>

class CGame;
struct CRunCount;

enum class ESimAction
{
    Aim,  // yaw and pitch in degrees, set outright
    Turn, // mouse counts across and down
    Fire,
    Swap,
    Path,    // on to the next camera path
    Forward, // steps along the camera path
    Back,
    Power, // spends the oldest powerup letter, on the player's own level or a player's number
};

struct CScriptStep
{
    uint64_t m_ulFrame = 0;
    ESimAction m_Action = ESimAction::Fire;
    double m_adArgs[2] = {0.0, 0.0}; // exact for every argument type a step takes
};

// A player's actions, each before the game frame it names, in the file's order within a frame.
class CSimScript
{
public:
    // Reads a whole script before the run starts, so that a mistake anywhere stops it before frame 0.
    bool Load(const std::string& FileName, std::string& Error);
    // Does what the script asks before the given frame; frames must come in increasing order. Counts the
    // shots that really left and the powerups really spent.
    void Apply(uint64_t ulFrame, CGame& Game, CRunCount& Count);

private:
    std::vector<CScriptStep> m_vSteps; // in frame order
    size_t m_Next = 0;
};
