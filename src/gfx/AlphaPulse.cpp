#include "gfx/AlphaPulse.h"

namespace
{
constexpr float STEP = 0.01f;
constexpr float HIGHEST = 0.9f;
constexpr float LOWEST = 0.5f;
} // namespace

void CAlphaPulse::Tick(uint32_t uiDelta)
{
    m_Timer.Update(uiDelta);
    if(!m_Timer.IsExpired())
        return;
    m_Timer.Set(STEP_MS);
    if(m_bRising)
    {
        m_fAlpha += STEP;
        if(m_fAlpha > HIGHEST)
        {
            m_fAlpha = HIGHEST;
            m_bRising = false;
        }
    }
    else
    {
        m_fAlpha -= STEP;
        if(m_fAlpha < LOWEST)
        {
            m_fAlpha = LOWEST;
            m_bRising = true;
        }
    }
}
