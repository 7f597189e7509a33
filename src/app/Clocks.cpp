#include "app/Clocks.h"

#include "platform/interfaces/Clock.h"

namespace
{
constexpr uint32_t MS_PER_DAY = 86400000;
constexpr uint32_t MS_PER_HOUR = 3600000;
constexpr uint32_t MS_PER_MINUTE = 60000;
constexpr uint32_t MS_PER_SECOND = 1000;
} // namespace

void CTimeSplit::Split(uint32_t uiMs)
{
    m_byDays = static_cast<uint8_t>(uiMs / MS_PER_DAY);
    uiMs -= m_byDays * MS_PER_DAY;
    m_byHours = static_cast<uint8_t>(uiMs / MS_PER_HOUR);
    uiMs -= m_byHours * MS_PER_HOUR;
    m_byMinutes = static_cast<uint8_t>(uiMs / MS_PER_MINUTE);
    uiMs -= m_byMinutes * MS_PER_MINUTE;
    m_bySeconds = static_cast<uint8_t>(uiMs / MS_PER_SECOND);
}

CGameClock::CGameClock() : m_nLastTime(timeGetTime()) {}

void CGameClock::Update(uint32_t uiNow)
{
    m_nNow = uiNow;
    m_nDelta = m_nNow - m_nLastTime;
    m_nLastTime = m_nNow;
    m_nTotal += m_nDelta;
    m_Split.Split(m_nTotal);
}

void CCountdown::Update(uint32_t uiDelta)
{
    if(uiDelta > m_nRemaining)
        m_nRemaining = 0;
    else
        m_nRemaining -= uiDelta;
    m_Split.Split(m_nRemaining);
}
