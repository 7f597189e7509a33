#include "tools/SimSupport.h"
#include "tracks/TrackList.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace
{
constexpr int SEEDS = 10;

// What the level tool's measurement says of one level.
struct CLevelStats
{
    std::string m_File;
    double m_dIdleMs = -1;
    double m_dExpertWinRate = -1;
    double m_dCasualWinRate = -1;
    double m_dCasualRuns = -1;
    double m_dCasualWins = -1;
    double m_dCasualClockLosses = -1;
};

CLevelStats Parse(const std::string& File, const std::string& Json)
{
    CLevelStats Stats;
    Stats.m_File = File;
    Stats.m_dIdleMs = PlayerField(Json, "idle", "ms");
    Stats.m_dExpertWinRate = PlayerField(Json, "expert", "win_rate");
    Stats.m_dCasualWinRate = PlayerField(Json, "casual", "win_rate");
    Stats.m_dCasualRuns = PlayerField(Json, "casual", "runs");
    Stats.m_dCasualWins = PlayerField(Json, "casual", "wins");
    Stats.m_dCasualClockLosses = PlayerField(Json, "casual", "losses_to_clock");
    return Stats;
}

// Every level of the list measured at round 1, two at a time, each into a file of its own.
std::vector<CLevelStats> MeasureAll(const std::vector<std::string>& vFiles)
{
    std::ostringstream List;
    for(size_t i = 0; i < vFiles.size(); i++)
        List << i << " " << vFiles[i] << "\n";
    const CTempFile ListFile(List.str(), "list.txt");
    const std::string ListPath = ListFile.Path();
    const std::string Dir = ListPath.substr(0, ListPath.rfind('/'));
    const CCommandResult Run = RunCommand("xargs -P 2 -L 1 sh -c '\"" TRELVANE_LEVEL_BINARY "\" stats \"$1\" --seeds " +
                                          std::to_string(SEEDS) + " > \"" + Dir + "/$0.json\"' < '" + ListPath + "'");
    EXPECT_EQ(Run.m_iExitCode, 0) << Run.m_Output;
    std::vector<CLevelStats> vStats;
    for(size_t i = 0; i < vFiles.size(); i++)
    {
        std::ifstream Report(Dir + "/" + std::to_string(i) + ".json");
        const std::string Json((std::istreambuf_iterator<char>(Report)), std::istreambuf_iterator<char>());
        vStats.push_back(Parse(vFiles[i], Json));
    }
    return vStats;
}
} // namespace

// The shipped levels as a run through them: every one is won by a good player, the first ones by nearly
// everybody and the last ones by a casual player only now and then, an idle player loses ever sooner, and on
// some level it is the clock that beats the casual player.
TEST(LevelSet, TheLevelsOfTheListRiseFromEasyToHard)
{
#ifdef TRELVANE_SANITIZED
    GTEST_SKIP() << "hundreds of whole levels: the optimised build measures the shipped data";
#endif
    CTrackList List;
    ASSERT_TRUE(List.Load(TRACK_LIST_FILE));
    ASSERT_EQ(List.m_vFiles.size(), 20u);
    const std::vector<CLevelStats> vStats = MeasureAll(List.m_vFiles);
    bool bClockBeatsCasual = false;
    for(size_t i = 0; i < vStats.size(); i++)
    {
        const CLevelStats& Level = vStats[i];
        EXPECT_GE(Level.m_dExpertWinRate, 0.8) << Level.m_File;
        EXPECT_GT(Level.m_dIdleMs, 15000) << Level.m_File << " is lost before a player can act";
        if(i < 3)
        {
            EXPECT_GE(Level.m_dCasualWinRate, 0.9) << Level.m_File;
        }
        if(i >= vStats.size() - 3)
        {
            EXPECT_GE(Level.m_dCasualWinRate, 0.2) << Level.m_File;
            EXPECT_LE(Level.m_dCasualWinRate, 0.5) << Level.m_File;
        }
        const double dCasualLosses = Level.m_dCasualRuns - Level.m_dCasualWins;
        bClockBeatsCasual = bClockBeatsCasual || (dCasualLosses > 0 && Level.m_dCasualClockLosses * 2 > dCasualLosses);
    }
    EXPECT_GT(vStats.front().m_dIdleMs, 120000) << "the first level is lost idle in " << vStats.front().m_dIdleMs;
    EXPECT_LT(vStats.back().m_dIdleMs, 60000) << "the last level is lost idle in " << vStats.back().m_dIdleMs;
    EXPECT_TRUE(bClockBeatsCasual) << "on no level is the clock the casual player's danger";
}

TEST(LevelSet, EveryLevelOfTheListPassesTheCheckWithoutAWarning)
{
    CTrackList List;
    ASSERT_TRUE(List.Load(TRACK_LIST_FILE));
    std::string Files;
    for(const std::string& File : List.m_vFiles)
        Files += " '" + File + "'";
    const CCommandResult Check = RunCommand("'" TRELVANE_LEVEL_BINARY "' check" + Files);
    EXPECT_EQ(Check.m_iExitCode, 0);
    EXPECT_EQ(Check.m_Output, "");
}
