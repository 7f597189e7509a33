#include "app/Game.h"
#include "platform/interfaces/Clock.h"
#include "powerups/PowerupManager.h"

#include <algorithm>
#include <cstdlib>

namespace
{
std::vector<CTrack>& Tracks()
{
    return g_pGame->m_Level.m_vTracks;
}

uint8_t RandomColour()
{
    return static_cast<uint8_t>(std::rand() % NUM_COLOURS);
}

// The ball a random number modulo the chain's length picks, counted from the rear.
CBall& RandomBall(CTrack& Track)
{
    auto it = Track.m_lstBalls.begin();
    std::advance(it, std::rand() % Track.m_lstBalls.size());
    return **it;
}

uint32_t AllButRear(uint32_t uiBalls)
{
    return uiBalls - 1;
}

uint32_t ThirtyPercent(uint32_t uiBalls)
{
    return static_cast<uint32_t>(0.3 * uiBalls);
}
} // namespace

// The file's speed is not remembered: once a speed effect ends, every track runs at 300.
void CPowerupManager::SetIntervals(uint32_t uiInterval, bool bOnlyWithBalls)
{
    for(CTrack& Track : Tracks())
    {
        if(!bOnlyWithBalls || !Track.m_lstBalls.empty())
            Track.m_uiInterval = uiInterval;
    }
}

void CPowerupManager::ApplyDecrease()
{
    m_bDecreaseOn = true;
    m_nDecreaseTime = timeGetTime();
    SetIntervals(SLOW_INTERVAL, true);
}

void CPowerupManager::ApplyIncrease()
{
    m_bIncreaseOn = true;
    m_nIncreaseTime = timeGetTime();
    SetIntervals(FAST_INTERVAL, true);
}

void CPowerupManager::ApplyHalt()
{
    m_bHaltOn = true;
    m_nHaltTime = timeGetTime();
}

// Three independent picks on each track: they can land on the same ball.
void CPowerupManager::ApplyMake()
{
    for(CTrack& Track : Tracks())
    {
        for(int i = 0; i < 3 && !Track.m_lstBalls.empty(); i++)
            RandomBall(Track).m_bPowerup = true;
    }
}

// Marks balls behind the rear one for the next removal pass, which pays them out as after a match; the
// effect chimes once for all of them.
void CPowerupManager::BurstAfterRear(uint32_t (*pfnCount)(uint32_t uiBalls))
{
    m_bMuteBursts = true;
    g_pGame->m_Sound.PlaySound(SOUND_CHIMES);
    for(CTrack& Track : Tracks())
    {
        if(Track.m_lstBalls.empty())
            continue;
        uint32_t uiCount = pfnCount(static_cast<uint32_t>(Track.m_lstBalls.size()));
        for(auto it = std::next(Track.m_lstBalls.begin()); it != Track.m_lstBalls.end() && uiCount > 0; ++it, uiCount--)
            (*it)->m_ucState = BALL_BURST;
    }
}

void CPowerupManager::ApplyZero()
{
    BurstAfterRear(AllButRear);
}

void CPowerupManager::ApplyClear()
{
    BurstAfterRear(ThirtyPercent);
}

void CPowerupManager::ApplyEmpty()
{
    m_nStackCount = 0;
    std::fill(m_acStack, m_acStack + POWERUP_STACK_SIZE, ' ');
}

// New colours in stretches: a ball keeps the colour before it a third of the time.
void CPowerupManager::ApplyRandom()
{
    for(CTrack& Track : Tracks())
    {
        uint8_t ucPrevious = 0;
        for(CBall* pBall : Track.m_lstBalls)
        {
            if(std::rand() % 100 >= 34)
                ucPrevious = RandomColour();
            pBall->m_ucColour = ucPrevious;
        }
    }
}

void CPowerupManager::ApplyExchange()
{
    for(CTrack& Track : Tracks())
    {
        if(Track.m_lstBalls.empty())
            continue;
        uint8_t ucNew = RandomColour();
        const uint8_t ucOld = RandomBall(Track).m_ucColour;
        while(ucNew == ucOld)
            ucNew = RandomColour();
        for(CBall* pBall : Track.m_lstBalls)
        {
            if(pBall->m_ucColour == ucOld)
                pBall->m_ucColour = ucNew;
        }
    }
}

// Runs after the play rules of a tick, so the bursts of an effect spent by key before the tick stay silent.
void CPowerupManager::Update()
{
    const uint32_t uiNow = timeGetTime();
    if(m_bDecreaseOn && uiNow - m_nDecreaseTime > DECREASE_MS)
    {
        m_bDecreaseOn = false;
        SetIntervals(AFTER_INTERVAL, false);
    }
    if(m_bIncreaseOn && uiNow - m_nIncreaseTime > INCREASE_MS)
    {
        m_bIncreaseOn = false;
        SetIntervals(AFTER_INTERVAL, false);
    }
    if(m_bHaltOn && uiNow - m_nHaltTime > HALT_MS)
        m_bHaltOn = false;
    m_bMuteBursts = false;
}
