#pragma once
#include <cstdint>

// A millisecond count split into whole days, hours, minutes and seconds (seconds truncated).
struct CTimeSplit
{
    uint8_t m_byDays = 0;
    uint8_t m_byHours = 0;
    uint8_t m_byMinutes = 0;
    uint8_t m_bySeconds = 0;

    void Split(uint32_t uiMs);
};

// The frame clock: advanced once a frame from the millisecond counter, it gives the frame delta that every
// per-frame rule moves by. It is never paused, reset or clamped; a long frame is simply a long delta.
class CGameClock
{
public:
    CGameClock();
    void Update(uint32_t uiNow);
    uint32_t GetDelta() const { return m_nDelta; }

    uint32_t m_nLastTime;
    uint32_t m_nNow = 0;
    uint32_t m_nDelta = 0;
    uint32_t m_nTotal = 0; // wraps with the counter, as the subtraction does
    CTimeSplit m_Split;
};

// Counts milliseconds down to zero and stays there. The split lags behind Set until the next Update.
class CCountdown
{
public:
    explicit CCountdown(uint32_t uiMs) : m_nRemaining(uiMs) {}
    void Set(uint32_t uiMs) { m_nRemaining = uiMs; }
    void Update(uint32_t uiDelta);
    bool IsExpired() const { return m_nRemaining == 0; }
    uint8_t GetMinutes() const { return m_Split.m_byMinutes; }
    uint8_t GetSeconds() const { return m_Split.m_bySeconds; }

    uint32_t m_nRemaining;
    CTimeSplit m_Split;
};
