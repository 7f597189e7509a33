#include "powerups/PowerupTable.h"

const CPowerupInfo g_aPowerups[NUM_POWERUPS] = {
    {'D', "DECREASE", "Decrease speed", 23, 0},
    {'I', "INCREASE", "Increase speed", 13, -1},
    {'H', "HALT", "Halt movement", 24, 1},
    {'M', "MAKE", "Make powerup spheres", 29, 2},
    {'Z', "ZERO", "Destroy all balls", 25, -1},
    {'C', "CLEAR", "Clear balls in beginning", 26, 3},
    {'E', "EMPTY", "Empty powerup stack", 20, -1},
    {'T', "TAKE", "Take target's powerups", 17, -1},
    {'R', "RANDOM", "Randomize colors on spline", 15, -1},
    {'X', "EXCHANGE", "Replace one color with a random color", 30, 4},
};

const CPowerupInfo* FindPowerup(char cLetter)
{
    for(const CPowerupInfo& Info : g_aPowerups)
    {
        if(Info.m_cLetter == cLetter)
            return &Info;
    }
    return nullptr;
}
