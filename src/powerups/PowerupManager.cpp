#include "powerups/PowerupManager.h"

#include "app/Game.h"
#include "powerups/PowerupTable.h"

#include <cstdlib>
#include <cstring>

CPowerupManager::CPowerupManager()
{
    std::memset(m_acStack, ' ', sizeof(m_acStack));
}

void CPowerupManager::EarnPowerup()
{
    if(m_nStackCount == POWERUP_STACK_SIZE)
        return;
    const bool bNetGame = g_pGame && g_pGame->m_Network.m_bNetGame;
    const int iRoll = std::rand() % (bNetGame ? NUM_POWERUPS : NUM_SINGLE_PLAY_POWERUPS);
    for(int i = 0; i < NUM_POWERUPS; i++)
    {
        if(bNetGame ? i == iRoll : g_aPowerups[i].m_iSingleRoll == iRoll)
            PushLetter(g_aPowerups[i].m_cLetter);
    }
}

void CPowerupManager::PushLetter(char cLetter)
{
    if(m_nStackCount < POWERUP_STACK_SIZE)
        m_acStack[m_nStackCount++] = cLetter;
}
