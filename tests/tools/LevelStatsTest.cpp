#include "tools/SimSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace
{
const std::string LEVEL = "tests/data/level1.txt";
constexpr int SEEDS = 3;

// What the simulator says of the same player over the same seeds: wins and the median time of a win.
void ExpectSameAsSimulator(const std::string& Stats, const std::string& Player, const std::string& Options)
{
    std::vector<double> vWinMs;
    for(int iSeed = 1; iSeed <= SEEDS; iSeed++)
    {
        const CCommandResult Run = Simulate(LEVEL + " --autoplay --seed " + std::to_string(iSeed) + Options);
        if(Run.m_Output.find("\"outcome\":\"won\"") != std::string::npos)
            vWinMs.push_back(Field(Run.m_Output, "ms"));
    }
    std::sort(vWinMs.begin(), vWinMs.end());
    EXPECT_EQ(PlayerField(Stats, Player, "wins"), static_cast<double>(vWinMs.size())) << Player;
    ASSERT_FALSE(vWinMs.empty()) << Player;
    EXPECT_EQ(PlayerField(Stats, Player, "median_ms_to_win"), vWinMs[(vWinMs.size() - 1) / 2]) << Player;
}
} // namespace

// The measurement is the simulator's own play: its numbers are those of trelvane-sim run seed by seed.
TEST(LevelTool, StatsAgreeWithTheSimulator)
{
    const CCommandResult Stats =
        RunCommand("'" TRELVANE_LEVEL_BINARY "' stats " + LEVEL + " --seeds " + std::to_string(SEEDS));
    ASSERT_EQ(Stats.m_iExitCode, 0) << Stats.m_Output;
    EXPECT_EQ(Field(Stats.m_Output, "seeds"), SEEDS);
    EXPECT_EQ(Field(Stats.m_Output, "length_diameters"), 93.531);
    EXPECT_EQ(Field(Stats.m_Output, "balls"), 80);
    EXPECT_EQ(Field(Stats.m_Output, "interval_ms"), 663);
    EXPECT_EQ(PlayerField(Stats.m_Output, "idle", "ms"), Field(Simulate(LEVEL).m_Output, "ms"));
    ExpectSameAsSimulator(Stats.m_Output, "expert", "");
    ExpectSameAsSimulator(Stats.m_Output, "casual", " --pace 800 --aim-error 0.5");
    EXPECT_EQ(PlayerField(Stats.m_Output, "casual", "pace_ms"), 800);

    for(const std::string& Bad : {std::string(), "--seeds 0 " + LEVEL, "--seeds x " + LEVEL, "--round 0 " + LEVEL,
                                  std::string("/no/such.txt"), LEVEL + " " + LEVEL})
        EXPECT_EQ(RunCommand("'" TRELVANE_LEVEL_BINARY "' stats " + Bad).m_iExitCode, 2) << Bad;
}
