#include "app/ScreenFlow.h"

#include "app/Game.h"

#include <cctype>

bool g_bChatOpen = false;

namespace
{
constexpr float FLY_STEP = 1.1f;
constexpr int TARGET_SELF = -1;
} // namespace

void CScreenFlow::OnChar(char cCharacter)
{
    if(g_bChatOpen)
        return;
    const bool bInPlay = g_pGame->m_Graphics.m_nScreenState == SCREEN_PLAY;
    if(cCharacter == '0' || (cCharacter == ' ' && bInPlay))
        SpendPowerupOn(TARGET_SELF);
    else if(cCharacter >= '1' && cCharacter <= '8')
    {
        // The digits address the player table by slot, the player's own slot included.
        const CPlayerSlot& Slot = g_pGame->m_Network.m_Players[cCharacter - '1'];
        if(Slot.m_bPresent)
            SpendPowerupOn(static_cast<int>(Slot.m_nId));
    }
    else if(bInPlay)
        Fly(static_cast<char>(std::tolower(static_cast<unsigned char>(cCharacter))));
}

void CScreenFlow::SpendPowerupOn(int iTarget)
{
    g_pGame->m_Network.m_nTarget = iTarget;
    g_pGame->m_Powerups.UsePowerup();
}

// The fly keys matter only on a level without a camera path: elsewhere the eye goes back to its path.
void CScreenFlow::Fly(char cLowerCase)
{
    CGraphicsEngine& Camera = g_pGame->m_Graphics;
    switch(cLowerCase)
    {
    case 'e': Camera.MoveForward(FLY_STEP); break;
    case 'd': Camera.MoveBack(FLY_STEP); break;
    case 's': Camera.MoveLeft(FLY_STEP); break;
    case 'f': Camera.MoveRight(FLY_STEP); break;
    case 't': Camera.MoveUp(FLY_STEP); break;
    case 'g': Camera.MoveDown(FLY_STEP); break;
    default: break;
    }
}
