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

// The effect runs before the letters move up, so that EMPTY leaves nothing behind it.
void CPowerupManager::UsePowerup()
{
    if(m_nStackCount == 0)
        return;
    g_pGame->m_Sound.PlaySound(SOUND_POWER);
    m_nStackCount--;
    const CPowerupInfo* pInfo = FindPowerup(m_acStack[0]);
    CNetwork& Network = g_pGame->m_Network;
    // Aimed at a player, the letter acts on that player's machine; aimed at oneself it is simply used up.
    if(Network.m_bNetGame && Network.m_nTarget != -1)
    {
        if(pInfo)
            Network.SendToPlayer(static_cast<uint32_t>(Network.m_nTarget), pInfo->m_uiMessageType);
    }
    else if(pInfo && pInfo->m_pfnEffect)
        (this->*pInfo->m_pfnEffect)();
    PopLetter();
}

void CPowerupManager::PopLetter()
{
    std::memmove(m_acStack, m_acStack + 1, POWERUP_STACK_SIZE - 1);
    m_acStack[POWERUP_STACK_SIZE - 1] = ' ';
}
