#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
// A level that the check passes: one straight track of 120 units in front of a camera that sees both ends.
std::string CleanLevel()
{
    std::string Text = "Background: bg_dawn.png\n"
                       "Playtime: 2 min 0 sec\n"
                       "Initial camera yaw and pitch: 0 and 11\n"
                       "Camera: 4 points, degree 3 :\n"
                       "0, 30, -150\n0, 30, -150\n0, 30, -149\n0, 30, -148\n"
                       "Track: 15 points, degree 3 balls 20 interval 1000 points follow\n";
    for(int x = -70; x <= 70; x += 10)
        Text += std::to_string(x) + ", 0, 0\n";
    return Text + "End\n";
}

std::string Replaced(std::string Text, const std::string& From, const std::string& To)
{
    Text.replace(Text.find(From), From.size(), To);
    return Text;
}

CCommandResult Check(const std::string& Arguments)
{
    return RunCommand("'" TRELVANE_LEVEL_BINARY "' check " + Arguments);
}

// What the check says of the text, with the temporary file's name taken off each line.
std::string CheckText(const std::string& Text, int* pExitCode = nullptr)
{
    const CTempFile File(Text);
    CCommandResult Result = Check(File.Path());
    if(pExitCode)
        *pExitCode = Result.m_iExitCode;
    for(size_t At = 0; (At = Result.m_Output.find(File.Path(), At)) != std::string::npos;)
        Result.m_Output.erase(At, std::string(File.Path()).size());
    return Result.m_Output;
}
} // namespace

TEST(LevelTool, CheckPlacesEveryErrorWhereItStands)
{
    const std::string Clean = CleanLevel();
    const std::pair<std::string, std::string> aCases[] = {
        {Clean.substr(0, Clean.find("10, 0, 0")),
         ":16:2: error: the file ends before its E, where x of point 7 of the track's 15 should stand\n"},
        {Replaced(Clean, "balls 20", "balls x2"), ":9:34: error: bad number 'x2' for the track's number of balls\n"},
        {Replaced(Clean, "Playtime", "hello\nPlaytime"),
         ":2:1: error: 'hello' stands between sections, where the game skips everything up to the next section "
         "letter (B, C, I, P, T or E)\n"},
        {Replaced(Replaced(Clean, "15 points", "3 points"), "-40, 0, 0", "End\n"),
         ":9:1: error: track 1 has 3 points: a curve needs at least 4\n"},
        {Replaced(Replaced(Clean, "15 points, degree 3", "4 points, degree 4"), "-30, 0, 0", "End\n"),
         ":9:1: error: degree 4 is too high for the 4 points of track 1: its curve stays empty\n"},
        {Replaced(Clean, "interval 1000", "interval 1"),
         ":9:1: error: the interval of track 1 comes to 0 ms in round 1: give it at least 2\n"},
        {Replaced(Clean, "balls 20 ", "balls 20000 "),
         ":9:1: warning: track 1 is 119.00 long but its 10000 balls need 27600.00: it is shorter than its chain\n"
         ":9:34: error: 20000 balls: the game takes no more than 10000\n"},
        {Replaced(Clean, "bg_dawn.png", "a_background_name_of_30_chars"),
         ":1:1: warning: the picture data/hud/images/a_background_name_of_30 does not exist\n"
         ":1:13: error: a picture name of 29 characters: the game takes the first 23\n"},
    };
    for(const auto& [Text, Expected] : aCases)
    {
        int iExitCode = 0;
        EXPECT_EQ(CheckText(Text, &iExitCode), Expected);
        EXPECT_EQ(iExitCode, 1) << Expected;
    }
}

TEST(LevelTool, CheckWarnsOfWhatPlaysBadly)
{
    const std::string Clean = CleanLevel();
    const std::string Crossing = "Track: 4 points, degree 3 balls 10 interval 1000 points follow\n"
                                 "0, -10, -60\n0, 0, -20\n0, 0, 20\n0, 10, 60\n";
    const std::string Far = "Track: 4 points, degree 3 balls 10 interval 1000 points follow\n"
                            "0, 0, 800\n0, 0, 840\n0, 0, 880\n0, 0, 920\n";
    const std::pair<std::string, std::string> aCases[] = {
        {Replaced(Replaced(Clean, "2 min", "0 min"), "balls 20", "balls 0"),
         ":2:1: warning: a play time of 0: the level is lost at once\n:9:1: warning: track 1 has no balls\n"},
        {Replaced(Clean, "End", Crossing + "End"),
         ":25:1: warning: tracks 1 and 2 pass within 0.00 of each other near (0, 0, 0): their balls would run "
         "through each other\n"},
        {Replaced(Clean, "End", Far + "End"),
         ":25:1: warning: track 2's start is farther than 750 from every camera path: it can't be seen\n"
         ":25:1: warning: track 2's end is farther than 750 from every camera path: it can't be seen\n"
         ":25:1: warning: track 2: neither its start nor its end is in the first view\n"},
        {"Playtime: 1 min 0 sec\nEnd\n",
         ":1:1: warning: no background section: the level keeps the picture of the level before\n"
         ":1:1: warning: no initial camera section: the level starts looking where the level before left off\n"
         ":1:1: warning: no camera path: the eye stands at 0, 0, 0\n"
         ":1:1: warning: no track: the level is won at once\n"},
    };
    for(const auto& [Text, Expected] : aCases)
    {
        int iExitCode = 1;
        EXPECT_EQ(CheckText(Text, &iExitCode), Expected);
        EXPECT_EQ(iExitCode, 0) << "warnings alone are no failure: " << Expected;
    }
}

TEST(LevelTool, CheckPassesACleanLevelAndRefusesBadInput)
{
    int iExitCode = 1;
    EXPECT_EQ(CheckText(CleanLevel(), &iExitCode), "");
    EXPECT_EQ(iExitCode, 0);
    for(const char* pArguments : {"", "/no/such/level.txt", "data/tracks", "--fast data/tracks/01-first-light.txt"})
    {
        const CCommandResult Result = Check(pArguments);
        EXPECT_EQ(Result.m_iExitCode, 2) << pArguments;
        EXPECT_EQ(Result.m_Output.find("trelvane-level: "), 0u) << Result.m_Output;
        EXPECT_EQ(Result.m_Output.find('\n'), Result.m_Output.size() - 1) << Result.m_Output;
    }
    EXPECT_EQ(RunCommand("'" TRELVANE_LEVEL_BINARY "' --help").m_iExitCode, 0);
}
