#include "tracks/Track.h"

#include <cstdlib>
#include <utility>

CTrack::CTrack() : m_ucLastColour(static_cast<uint8_t>(std::rand() % NUM_BALL_COLOURS)) {}

CTrack::CTrack(const CTrack& Other)
    : m_uiInterval(Other.m_uiInterval), m_vColourCounts(Other.m_vColourCounts), m_vColourQueue(Other.m_vColourQueue),
      m_uiElapsed(Other.m_uiElapsed), m_ucLastColour(Other.m_ucLastColour), m_Lines(Other.m_Lines),
      m_Spline(Other.m_Spline)
{
}

CTrack::CTrack(CTrack&& Other) noexcept : m_ucLastColour(Other.m_ucLastColour)
{
    Swap(Other);
}

CTrack& CTrack::operator=(CTrack Other) noexcept
{
    Swap(Other);
    return *this;
}

CTrack::~CTrack()
{
    FreeBalls();
}

void CTrack::Swap(CTrack& Other) noexcept
{
    std::swap(m_uiInterval, Other.m_uiInterval);
    std::swap(m_pPusher, Other.m_pPusher);
    m_vColourCounts.swap(Other.m_vColourCounts);
    m_vColourQueue.swap(Other.m_vColourQueue);
    std::swap(m_uiElapsed, Other.m_uiElapsed);
    std::swap(m_ucLastColour, Other.m_ucLastColour);
    std::swap(m_Lines, Other.m_Lines);
    std::swap(m_Spline, Other.m_Spline);
    m_lstBalls.swap(Other.m_lstBalls);
}

void CTrack::FreeBalls()
{
    for(CBall* pBall : m_lstBalls)
        delete pBall;
    m_lstBalls.clear();
    delete m_pPusher;
    m_pPusher = nullptr;
}

void CTrack::FillColourQueue(uint32_t uiBalls)
{
    m_vColourCounts.assign(NUM_BALL_COLOURS, 0);
    for(uint32_t i = 0; i < uiBalls; i++)
    {
        uint8_t ucColour = m_ucLastColour;
        if(std::rand() % 100 >= 48)
            ucColour = static_cast<uint8_t>(std::rand() % NUM_BALL_COLOURS);
        m_vColourQueue.push_back(ucColour);
        m_vColourCounts[ucColour]++;
        m_ucLastColour = ucColour;
    }
}
