#pragma once
#include "play/Ball.h"

#include <cstdint>
#include <list>

class CLevel;
class CTrack;

typedef std::list<CBall*>::iterator CBallIter;

// Straight-line distance between two places, in 32-bit float, as every rule of play measures.
inline float Distance(const CPoint3& a, const CPoint3& b)
{
    return (a - b).Length();
}

// The rule book of a running level: chains roll, shots fly and land, runs burst, gaps close, and the level
// is won or lost. It changes the level it points at and reaches the rest of the game through the game object.
class CChainLogic
{
public:
    // The frame's steps, in their fixed order; nothing while no level is active.
    void Tick();
    void EndLevel(bool bWon);
    void CheckCleared();
    void CountLiveBalls();

    // Chain advance
    void AdvanceChains();
    bool AddBall(CTrack& Track);
    void UpdateChains();
    void PushBall(CTrack& Track, const CPoint3& RearPosition, CBall& Ball);
    void UpdateLinks();

    // Launcher and shots
    void Fire();
    void SwapColours();
    void UpdateShots();
    void ReplaceMissingColours();

    // Insertion
    void TestHits();
    void OnHit(CTrack& Track, CBallIter itShot, CBallIter itBall);
    bool IsShotAhead(const CTrack& Track, const CBall& Ball, const CBall& Shot) const;
    void InsertShot(CTrack& Track, CBallIter itBall, CBallIter itShot);

    // Matching, collapse and scoring
    uint32_t CountRun(const CTrack& Track, CBallIter itBall, uint8_t ucColour, uint32_t uiStart);
    void MarkPowerupBall();
    void RemoveBursts(CTrack& Track);
    void UpdateRetreats();

    static bool IsHit(const CBall& Shot, const CBall& Ball);
    static bool IsNear(const CBall& a, const CBall& b, float fLimit);

    CLevel* m_pLevel = nullptr;
    bool m_bActive = false; // a level is being played on this machine

private:
    void PushChain(CTrack& Track);
    void MoveRearBall(CTrack& Track, float fStep);
    void MovePusher(CTrack& Track, float fStep);
    CBallIter RetreatStretch(CTrack& Track, CBallIter itFirst, uint32_t uiPoints);
};
