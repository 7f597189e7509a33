#include "powerups/PowerupManager.h"

#include "app/Game.h"
#include "gfx/Fonts.h"
#include "powerups/PowerupTable.h"

namespace
{
constexpr int32_t INFO_X = 48;
constexpr int32_t DESCRIPTION_Y = 12;
constexpr int32_t HINT_Y = 33;
} // namespace

// Beside the stack, so nothing shows while it is empty. A network player aims by number, a single player
// can only spend on the own level.
void CPowerupManager::DrawPowerupInfo() const
{
    if(m_nStackCount == 0)
        return;
    const char* pHint =
        g_pGame->m_Network.m_bNetGame ? "Press a number to use powerup on target" : "Press space bar to use powerup";
    DrawGameText(pHint, INFO_X, HINT_Y, TEXT_WHITE, FONT_MEDIUM);
    if(const CPowerupInfo* pInfo = FindPowerup(m_acStack[0]))
        DrawGameText(pInfo->m_pDescription, INFO_X, DESCRIPTION_Y, TEXT_WHITE, FONT_MEDIUM);
}
