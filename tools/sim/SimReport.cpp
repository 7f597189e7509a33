#include "sim/SimReport.h"

#include "app/Game.h"
#include "common/Json.h"

#include <string>

const char* Outcome(const CGame& Game)
{
    if(Game.m_Logic.m_bActive)
        return "running";
    return Game.m_Level.m_bWon ? "won" : "lost";
}

namespace
{
void WriteBall(std::ostream& Stream, const CBall& Ball)
{
    Stream << "{\"c\":" << unsigned(Ball.m_ucColour) << ",\"p\":" << Ball.m_uiPoint
           << ",\"s\":" << unsigned(Ball.m_ucState) << ",\"u\":" << (Ball.m_bPowerup ? 1 : 0) << "}";
}

void WriteShot(std::ostream& Stream, const CBall& Shot)
{
    Stream << "{\"c\":" << unsigned(Shot.m_ucColour);
    const char* apNames[] = {",\"x\":", ",\"y\":", ",\"z\":"};
    for(int i = 0; i < 3; i++)
    {
        Stream << apNames[i];
        WriteJsonNumber(Stream, Shot.m_Position[i]); // three decimals are a hundredth of a ball
    }
    Stream << "}";
}

} // namespace

void WriteSummary(std::ostream& Stream, const CGame& Game, const CRunCount& Count)
{
    uint64_t ulRolling = 0, ulQueued = 0;
    for(const CTrack& Track : Game.m_Level.m_vTracks)
    {
        ulRolling += Track.m_lstBalls.size();
        ulQueued += Track.m_vColourQueue.size();
    }
    const CPlayStats& Stats = Game.m_Stats;
    Stream << "{\"outcome\":\"" << Outcome(Game) << "\",\"frames\":" << Count.m_ulFrames
           << ",\"ms\":" << Count.m_ulFrames * Count.m_uiDeltaMs << ",\"score\":" << Game.m_nScore
           << ",\"balls_on_tracks\":" << ulRolling << ",\"balls_queued\":" << ulQueued
           << ",\"shots_fired\":" << Count.m_ulShotsFired << ",\"powerups_earned\":" << Count.m_ulPowerupsEarned
           << ",\"powerups_used\":" << Count.m_ulPowerupsUsed << ",\"stack\":\""
           << std::string(Game.m_Powerups.m_acStack, Game.m_Powerups.m_nStackCount)
           << "\",\"stats\":{\"triples\":" << Stats.m_nTriples << ",\"chains\":" << Stats.m_nChains
           << ",\"max_chain\":" << Stats.m_nMaxChain << ",\"combos\":" << Stats.m_nCombos
           << ",\"max_combo\":" << Stats.m_nMaxCombo << "}}\n";
}

void WriteTraceFrame(std::ostream& Stream, uint64_t ulFrame, const CGame& Game)
{
    Stream << "{\"frame\":" << ulFrame << ",\"tracks\":";
    WriteJsonArray(Stream, Game.m_Level.m_vTracks, [&Stream](const CTrack& Track) {
        WriteJsonArray(Stream, Track.m_lstBalls, [&Stream](const CBall* pBall) { WriteBall(Stream, *pBall); });
    });
    Stream << ",\"shots\":";
    WriteJsonArray(Stream, Game.m_Level.m_lstShots, [&Stream](const CBall* pShot) { WriteShot(Stream, *pShot); });
    Stream << "}\n";
}
