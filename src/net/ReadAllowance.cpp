#include "net/ReadAllowance.h"

#include <algorithm>

CReadAllowance::CReadAllowance(uint32_t uiRate, uint32_t uiNowMs)
    : m_uiRate(uiRate), m_uiLeft(READ_BURST), m_uiLastMs(uiNowMs)
{
}

// The millisecond counter wraps; the difference of two readings is right across the wrap all the same.
void CReadAllowance::Refill(uint32_t uiNowMs)
{
    const uint64_t ulElapsed = static_cast<uint32_t>(uiNowMs - m_uiLastMs);
    const uint64_t ulGrown = m_uiLeft + ulElapsed * m_uiRate / 1000;
    m_uiLeft = static_cast<uint32_t>(std::min<uint64_t>(ulGrown, READ_BURST));
    m_uiLastMs = uiNowMs;
}

void CReadAllowance::Take(uint32_t uiBytes)
{
    m_uiLeft -= std::min(uiBytes, m_uiLeft);
}
