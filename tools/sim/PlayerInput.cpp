#include "sim/PlayerInput.h"

#include "app/Game.h"

namespace
{
constexpr float MOUSE_COUNTS_PER_UNIT = 5.0f;
}

void TurnBy(CGraphicsEngine& Camera, float fRight, float fDown)
{
    if(fRight > 0.0f)
        Camera.TurnRight(fRight);
    else
        Camera.TurnLeft(-fRight);
    if(fDown > 0.0f)
        Camera.TurnDown(fDown);
    else
        Camera.TurnUp(-fDown);
    Camera.UpdateLookAt();
}

void TurnByMouse(CGame& Game, int iDeltaX, int iDeltaY)
{
    TurnBy(Game.m_Graphics, static_cast<float>(iDeltaX) / MOUSE_COUNTS_PER_UNIT,
           static_cast<float>(iDeltaY) / MOUSE_COUNTS_PER_UNIT);
}

bool FireShot(CGame& Game)
{
    const size_t Before = Game.m_Level.m_lstShots.size();
    Game.m_Logic.Fire();
    return Game.m_Level.m_lstShots.size() > Before;
}

bool PressPowerupKey(CGame& Game, char cKey)
{
    const uint32_t uiBefore = Game.m_Powerups.m_nStackCount;
    Game.m_Flow.OnChar(cKey);
    return Game.m_Powerups.m_nStackCount < uiBefore;
}
