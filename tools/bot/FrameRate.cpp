#include "bot/FrameRate.h"

#include <algorithm>

namespace
{
constexpr uint32_t WINDOW_MS = 1000;
}

void CFrameRate::OnFrame(uint32_t uiNowMs)
{
    if(m_uiFrames == 0)
        m_uiWindowStartMs = uiNowMs;
    CloseWindows(uiNowMs);
    m_uiFrames++;
    m_uiInWindow++;
}

uint32_t CFrameRate::SlowestSecond(uint32_t uiNowMs) const
{
    CFrameRate Closed = *this;
    Closed.CloseWindows(uiNowMs);
    return Closed.m_uiSlowest == UINT32_MAX ? m_uiFrames : Closed.m_uiSlowest;
}

// A gap of more than a window (a stopped process) leaves whole windows without a frame in them.
void CFrameRate::CloseWindows(uint32_t uiNowMs)
{
    if(m_uiFrames == 0)
        return;
    const uint32_t uiEnded = (uiNowMs - m_uiWindowStartMs) / WINDOW_MS;
    if(uiEnded == 0)
        return;
    m_uiSlowest = std::min(m_uiSlowest, uiEnded > 1 ? 0 : m_uiInWindow);
    m_uiWindowStartMs += uiEnded * WINDOW_MS;
    m_uiInWindow = 0;
}
