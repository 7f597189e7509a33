#pragma once
#include "math/BSpline.h"
#include "play/Ball.h"
#include "tracks/CurveLines.h"

#include <cstdint>
#include <list>
#include <vector>

// A curve that a chain of balls rolls along, with the queue of balls yet to enter it. The track owns its
// balls and its pusher. A copy is a copy of the record: it starts with no balls, as each ball has one holder.
class CTrack
{
public:
    CTrack();
    CTrack(const CTrack& Other);
    CTrack(CTrack&& Other) noexcept;
    CTrack& operator=(CTrack Other) noexcept;
    ~CTrack();

    // Makes the queue of balls: colours fall in stretches, as a ball repeats the one before it more often
    // than chance would have it.
    void FillColourQueue(uint32_t uiBalls);
    void FreeBalls();

    uint32_t m_uiInterval = 0; // milliseconds in which the chain rolls the length of one ball
    CBall* m_pPusher = nullptr;
    std::vector<uint32_t> m_vColourCounts; // balls of each colour yet to clear, queued and rolling
    std::vector<uint8_t> m_vColourQueue;   // taken from the back
    uint32_t m_uiElapsed = 0;
    uint8_t m_ucLastColour;
    CCurveLines m_Lines;
    CBSpline m_Spline;
    std::list<CBall*> m_lstBalls; // rear ball first, lead ball last

private:
    void Swap(CTrack& Other) noexcept;
};
