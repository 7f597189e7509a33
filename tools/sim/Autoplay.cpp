#include "sim/Autoplay.h"

#include "app/Game.h"
#include "sim/BallMotion.h"
#include "sim/PathRiding.h"
#include "sim/PlayerInput.h"
#include "sim/RunCount.h"
#include "sim/ShotPath.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace
{
constexpr float DEGREES_PER_UNIT = 0.25f; // what one unit of turn amount turns the camera by
constexpr double RADIANS_TO_DEGREES = 57.29577951308232;

enum
{
    GAIN_NONE = 0, // another colour: the shot would only lengthen the chain
    GAIN_PAIR = 1, // a lone ball of the shot's colour: the shot makes a pair
    GAIN_RUN = 2,  // a ball of the shot's colour touching another: the shot bursts them
};

struct CTarget
{
    const CBall* m_pBall;
    int m_iGain;
    float m_fDanger; // how far along its track the ball has come, 0 at the start and 1 at the end
};

int Gain(const CTrack& Track, std::list<CBall*>::const_iterator itBall, uint8_t ucColour)
{
    const CBall& Ball = **itBall;
    if(Ball.m_ucColour != ucColour)
        return GAIN_NONE;
    const bool bRunBack =
        Ball.m_bLinkBack && itBall != Track.m_lstBalls.begin() && (*std::prev(itBall))->m_ucColour == ucColour;
    const bool bRunAhead = Ball.m_bLinkAhead && std::next(itBall) != Track.m_lstBalls.end() &&
                           (*std::next(itBall))->m_ucColour == ucColour;
    return bRunBack || bRunAhead ? GAIN_RUN : GAIN_PAIR;
}

// Every ball the colour would do some good on, best first: the larger gain, then the greater danger.
std::vector<CTarget> RankTargets(const CLevel& Level, uint8_t ucColour)
{
    std::vector<CTarget> vTargets;
    for(const CTrack& Track : Level.m_vTracks)
    {
        const float fPoints = static_cast<float>(std::max(Track.m_Spline.m_uiNumPoints, 1u));
        for(auto it = Track.m_lstBalls.begin(); it != Track.m_lstBalls.end(); ++it)
        {
            const int iGain = (*it)->m_ucState == BALL_BURST ? GAIN_NONE : Gain(Track, it, ucColour);
            if(iGain != GAIN_NONE)
                vTargets.push_back({*it, iGain, static_cast<float>((*it)->m_uiPoint) / fPoints});
        }
    }
    std::stable_sort(vTargets.begin(), vTargets.end(), [](const CTarget& a, const CTarget& b) {
        return a.m_iGain != b.m_iGain ? a.m_iGain > b.m_iGain : a.m_fDanger > b.m_fDanger;
    });
    return vTargets;
}

// Turn amounts, right and down, that bring the sight from the eye onto a point; the yaw the short way round.
void TurnAmounts(const CGraphicsEngine& Camera, const CPoint3& Target, float& fRight, float& fDown)
{
    const CVector3 v = Target - Camera.m_vEye;
    const double dYaw = std::atan2(v.x(), v.z()) * RADIANS_TO_DEGREES;
    const double dPitch = -std::atan2(v.y(), std::hypot(v.x(), v.z())) * RADIANS_TO_DEGREES;
    double dTurn = std::fmod(dYaw - Camera.m_fYaw, 360.0);
    if(dTurn > 180.0)
        dTurn -= 360.0;
    else if(dTurn < -180.0)
        dTurn += 360.0;
    fRight = static_cast<float>(dTurn / DEGREES_PER_UNIT);
    fDown = static_cast<float>((dPitch - Camera.m_fPitch) / DEGREES_PER_UNIT);
}

struct CAim
{
    int m_iGain = GAIN_NONE;
    float m_fRight = 0.0f;
    float m_fDown = 0.0f;
};

// What the player has seen of the balls' motion, and the frame time that the shots are moved by.
struct CMotionView
{
    const CBallMotion& m_Motion;
    uint32_t m_uiDeltaMs;
};

// Where to aim so that a shot meets the ball: where it will be after the flight to there, worked out twice,
// since the flight's length depends on the point aimed at.
CPoint3 LeadPoint(const CPoint3& Eye, const CBall& Ball, const CBallMotion& Motion)
{
    CPoint3 Lead = Ball.m_Position;
    for(int i = 0; i < 2; i++)
        Lead = Motion.PositionAfter(Ball, Distance(Eye, Lead) / SHOT_SPEED);
    return Lead;
}

// Tried on a copy of the camera, so that looking costs the player nothing.
const CBall* PredictAfterTurn(const CGame& Game, const CAim& Aim, const CMotionView& View, float fRange)
{
    CGraphicsEngine Sight;
    Sight.m_pLevel = Game.m_Graphics.m_pLevel;
    Sight.m_vEye = Game.m_Graphics.m_vEye;
    Sight.m_vLookAt = Game.m_Graphics.m_vLookAt;
    Sight.m_fYaw = Game.m_Graphics.m_fYaw;
    Sight.m_fPitch = Game.m_Graphics.m_fPitch;
    TurnBy(Sight, Aim.m_fRight, Aim.m_fDown);
    return PredictHit(Game.m_Level, Sight, View.m_uiDeltaMs, fRange, &View.m_Motion);
}

// The best target of the colour that a shot would really reach. A shot that another ball of the same colour
// stops first does good as well: two balls of a colour that stand a little apart each catch the shot aimed at
// the other.
CAim BestAim(const CGame& Game, uint8_t ucColour, const CMotionView& View)
{
    for(const CTarget& Target : RankTargets(Game.m_Level, ucColour))
    {
        CAim Aim;
        Aim.m_iGain = Target.m_iGain;
        const CPoint3 Lead = LeadPoint(Game.m_Graphics.m_vEye, *Target.m_pBall, View.m_Motion);
        TurnAmounts(Game.m_Graphics, Lead, Aim.m_fRight, Aim.m_fDown);
        const float fRange = Distance(Game.m_Graphics.m_vEye, Lead) + HIT_DISTANCE;
        const CBall* pHit = PredictAfterTurn(Game, Aim, View, fRange);
        if(pHit == Target.m_pBall || (pHit != nullptr && pHit->m_ucColour == ucColour && pHit->m_ucState != BALL_BURST))
            return Aim;
    }
    return {};
}

bool AnyBallRolls(const CLevel& Level)
{
    return std::any_of(Level.m_vTracks.begin(), Level.m_vTracks.end(),
                       [](const CTrack& Track) { return !Track.m_lstBalls.empty(); });
}

// A colour that can do no good anywhere is fired where it touches nothing, to get the next one sooner:
// along the present sight if that is clear, else at the sky or the ground.
bool AimAtNothing(const CGame& Game, const CMotionView& View, CAim& Aim)
{
    const float fRange = static_cast<float>(SHOT_LIFE) * SHOT_SPEED;
    for(float fDown : {0.0f, -360.0f, 360.0f})
    {
        Aim.m_fDown = fDown;
        if(PredictAfterTurn(Game, Aim, View, fRange) == nullptr)
            return true;
    }
    return false;
}

// HALT, CLEAR and MAKE always help. A slowing ends with every track at 300 ms a ball, and an exchange of
// colours is a gamble, so those go when the chains are close to their ends or to make room on a full stack.
// In a network game a letter that harms is kept for a rival.
bool WorthSpending(const CGame& Game)
{
    const CPowerupManager& Powerups = Game.m_Powerups;
    if(Powerups.m_nStackCount == 0 || !AnyBallRolls(Game.m_Level))
        return false;
    const char cOldest = Powerups.m_acStack[0];
    if(Game.m_Network.m_bNetGame && HarmsWhereItLands(cOldest))
        return false;
    if(cOldest == 'H' || cOldest == 'C' || cOldest == 'M')
        return true;
    return Powerups.m_nStackCount == POWERUP_STACK_SIZE || FurthestLead(Game.m_Level).m_fAlong > 0.8f;
}
} // namespace

// Faster chains, a lost stack, a stolen letter and scrambled colours: no player wants these on its own level.
bool HarmsWhereItLands(char cLetter)
{
    return cLetter == 'I' || cLetter == 'E' || cLetter == 'T' || cLetter == 'R';
}

CAutoplay::CAutoplay(uint32_t uiDeltaMs, const CPlayStyle& Style)
    : m_uiDeltaMs(uiDeltaMs), m_Style(Style), m_AimRandom(Style.m_uiSeed)
{
}

void CAutoplay::Play(CGame& Game, CRunCount& Count)
{
    if(!Game.m_Logic.m_bActive)
        return;
    m_uiSinceShot += m_uiDeltaMs;
    m_Motion.Observe(Game.m_Level, m_uiDeltaMs);
    if(WorthSpending(Game) && PressPowerupKey(Game, ' '))
        Count.m_ulPowerupsUsed++;
    RideTowardsDanger(Game);
    if(Game.m_nFireDelay != 0 || m_uiSinceShot < m_Style.m_uiPaceMs || !AnyBallRolls(Game.m_Level))
        return;
    if(AimAndFire(Game))
    {
        Count.m_ulShotsFired++;
        m_uiSinceShot = 0;
    }
}

void CAutoplay::MissAim(CGame& Game)
{
    if(m_Style.m_fAimErrorDeg <= 0.0f)
        return;
    std::uniform_real_distribution<float> Size(0.0f, m_Style.m_fAimErrorDeg / DEGREES_PER_UNIT);
    std::uniform_real_distribution<float> Direction(0.0f, 6.2831853f);
    const float fSize = Size(m_AimRandom);
    const float fDirection = Direction(m_AimRandom);
    TurnBy(Game.m_Graphics, fSize * std::cos(fDirection), fSize * std::sin(fDirection));
}

bool CAutoplay::AimAndFire(CGame& Game)
{
    const CMotionView View{m_Motion, m_uiDeltaMs};
    CAim Aim = BestAim(Game, Game.m_Level.m_ucShotColour, View);
    if(Aim.m_iGain != GAIN_RUN)
    {
        const CAim Next = BestAim(Game, Game.m_Level.m_ucNextColour, View);
        if(Next.m_iGain > Aim.m_iGain)
        {
            Game.m_Logic.SwapColours();
            Aim = Next;
        }
    }
    if(Aim.m_iGain == GAIN_NONE && !AimAtNothing(Game, View, Aim))
        return false;
    TurnBy(Game.m_Graphics, Aim.m_fRight, Aim.m_fDown);
    MissAim(Game);
    return FireShot(Game);
}
