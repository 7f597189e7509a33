#pragma once
#include <cstdint>
#include <ostream>
#include <vector>

struct CSimResult;

// The two kinds of player a level is measured with: the autoplayer at the game's own pace with a true aim,
// and a casual player who takes a while between shots and aims a little off, as a person does.
struct CPlayerKind
{
    const char* m_pName;
    uint32_t m_uiPaceMs;
    float m_fAimErrorDeg;
};
constexpr CPlayerKind EXPERT_PLAYER = {"expert", 0, 0.0f};
constexpr CPlayerKind CASUAL_PLAYER = {"casual", 800, 0.5f};

// What one kind of player did over many seeds.
class CPlayerSummary
{
public:
    explicit CPlayerSummary(const CPlayerKind& Kind) : m_Kind(Kind) {}
    void Add(const CSimResult& Result);
    // {"pace_ms","aim_error_deg","runs","wins","win_rate","median_ms_to_win","losses_to_clock","shots_per_ball"}
    void Write(std::ostream& Stream) const;

private:
    CPlayerKind m_Kind;
    uint32_t m_uiRuns = 0;
    uint32_t m_uiLossesToClock = 0;
    std::vector<uint64_t> m_vWinMs;
    uint64_t m_ulShots = 0;
    uint64_t m_ulBallsCleared = 0;
};
