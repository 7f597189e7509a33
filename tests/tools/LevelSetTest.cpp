#include "tools/SimSupport.h"
#include "tracks/Level.h"
#include "tracks/TrackList.h"

#include <gtest/gtest.h>

// Every shipped level is a real game at round 1: a good player wins it on any seed, it takes a while to
// win, it lasts long enough for an idle player to act before a ball runs off, and the play time allows a win.
TEST(LevelSet, EveryShippedLevelIsWinnableAndGivesARealGame)
{
    CTrackList List;
    ASSERT_TRUE(List.Load(TRACK_LIST_FILE));
    for(const std::string& Level : List.m_vFiles)
    {
        for(int iSeed = 1; iSeed <= 3; iSeed++)
        {
            const CCommandResult Won = Simulate("'" + Level + "' --autoplay --seed " + std::to_string(iSeed));
            EXPECT_NE(Won.m_Output.find("\"outcome\":\"won\""), std::string::npos) << Level << ": " << Won.m_Output;
            if(Won.m_Output.find("\"outcome\":\"won\"") != std::string::npos)
            {
                    EXPECT_GE(Field(Won.m_Output, "ms"), 45000) << Level << " is won in seconds";
            }
        }
        const CCommandResult Idle = Simulate("'" + Level + "'");
        EXPECT_NE(Idle.m_Output.find("\"outcome\":\"lost\""), std::string::npos) << Level << ": " << Idle.m_Output;
        EXPECT_GE(Field(Idle.m_Output, "ms"), 30000) << Level << " is lost before the player can act";

        CLevel Loaded;
        Loaded.Load(Level.c_str(), 1);
        const CCommandResult Won = Simulate("'" + Level + "' --autoplay");
        EXPECT_LT(Field(Won.m_Output, "ms"), Loaded.m_Countdown.m_nRemaining * 0.8) << Level << ": too little time";
    }
}
