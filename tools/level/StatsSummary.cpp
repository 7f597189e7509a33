#include "level/StatsSummary.h"

#include "common/Json.h"
#include "sim/SimRun.h"

#include <algorithm>

void CPlayerSummary::Add(const CSimResult& Result)
{
    m_uiRuns++;
    if(Result.m_Outcome == "won")
        m_vWinMs.push_back(Result.Milliseconds());
    else if(Result.m_bClockRanOut)
        m_uiLossesToClock++;
    m_ulShots += Result.m_Count.m_ulShotsFired;
    if(Result.m_uiBallsAtStart > Result.m_uiBallsLeft)
        m_ulBallsCleared += Result.m_uiBallsAtStart - Result.m_uiBallsLeft;
}

// The median of an even count is the mean of the two middle values.
void CPlayerSummary::Write(std::ostream& Stream) const
{
    Stream << "{\"pace_ms\":" << m_Kind.m_uiPaceMs << ",\"aim_error_deg\":";
    WriteJsonNumber(Stream, m_Kind.m_fAimErrorDeg);
    Stream << ",\"runs\":" << m_uiRuns << ",\"wins\":" << m_vWinMs.size() << ",\"win_rate\":";
    WriteJsonNumber(Stream, m_uiRuns == 0 ? 0.0f : static_cast<float>(m_vWinMs.size()) / static_cast<float>(m_uiRuns));
    Stream << ",\"median_ms_to_win\":";
    std::vector<uint64_t> vSorted = m_vWinMs;
    std::sort(vSorted.begin(), vSorted.end());
    const size_t Count = vSorted.size();
    if(Count == 0)
        Stream << "null";
    else
        Stream << (vSorted[(Count - 1) / 2] + vSorted[Count / 2]) / 2;
    Stream << ",\"losses_to_clock\":" << m_uiLossesToClock << ",\"shots_per_ball\":";
    WriteJsonNumber(
        Stream, m_ulBallsCleared == 0 ? 0.0f : static_cast<float>(m_ulShots) / static_cast<float>(m_ulBallsCleared));
    Stream << "}";
}
