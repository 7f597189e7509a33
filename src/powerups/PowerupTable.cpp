#include "powerups/PowerupTable.h"

#include "powerups/PowerupManager.h"

const CPowerupInfo g_aPowerups[NUM_POWERUPS] = {
    {'D', "DECREASE", "Decrease speed", 23, 0, &CPowerupManager::ApplyDecrease},
    {'I', "INCREASE", "Increase speed", 13, -1, &CPowerupManager::ApplyIncrease},
    {'H', "HALT", "Halt movement", 24, 1, &CPowerupManager::ApplyHalt},
    {'M', "MAKE", "Make powerup spheres", 29, 2, &CPowerupManager::ApplyMake},
    {'Z', "ZERO", "Destroy all balls", 25, -1, &CPowerupManager::ApplyZero},
    {'C', "CLEAR", "Clear balls in beginning", 26, 3, &CPowerupManager::ApplyClear},
    {'E', "EMPTY", "Empty powerup stack", 20, -1, &CPowerupManager::ApplyEmpty},
    {'T', "TAKE", "Take target's powerups", 17, -1, nullptr},
    {'R', "RANDOM", "Randomize colors on spline", 15, -1, &CPowerupManager::ApplyRandom},
    {'X', "EXCHANGE", "Replace one color with a random color", 30, 4, &CPowerupManager::ApplyExchange},
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
