#include "platform/interfaces/Clock.h"

#include <chrono>

namespace
{
bool g_bManual = false;
uint32_t g_uiManualNow = 0;
} // namespace

uint32_t timeGetTime()
{
    if(g_bManual)
        return g_uiManualNow;
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<uint32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

void SetManualClock(uint32_t uiNow)
{
    g_bManual = true;
    g_uiManualNow = uiNow;
}

void AdvanceManualClock(uint32_t uiMs)
{
    g_uiManualNow += uiMs;
}

void UseSystemClock()
{
    g_bManual = false;
}
