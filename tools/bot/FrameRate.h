#pragma once
#include <cstdint>

// How steadily the frames ran: every frame is counted, and so is each whole second of the run, in windows of
// 1000 ms one after the other from the first frame. The slowest window shows a stall that an average over a
// long run would hide.
class CFrameRate
{
public:
    void OnFrame(uint32_t uiNowMs);
    uint32_t Frames() const { return m_uiFrames; }
    // The fewest frames of any window that has ended by then; a run that has not yet lasted one window gives
    // its frame count.
    uint32_t SlowestSecond(uint32_t uiNowMs) const;

private:
    void CloseWindows(uint32_t uiNowMs);

    uint32_t m_uiFrames = 0;
    uint32_t m_uiWindowStartMs = 0;
    uint32_t m_uiInWindow = 0;         // frames of the window under way
    uint32_t m_uiSlowest = UINT32_MAX; // no window has ended yet
};
