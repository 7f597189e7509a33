#include "TestSupport.h"
#include "tools/SimSupport.h"
#include "tracks/TrackList.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace
{
const char* const FIRST_LEVEL = "tests/data/level1.txt";
const char* const SUMMARY_KEYS[] = {"outcome",      "frames",      "ms",       "score",   "balls_on_tracks",
                                    "balls_queued", "shots_fired", "stats",    "triples", "chains",
                                    "max_chain",    "combos",      "max_combo"};

size_t CountLines(const std::string& Text)
{
    size_t Lines = 0;
    for(char c : Text)
        Lines += c == '\n' ? 1 : 0;
    return Lines;
}

// One object on one line, braces and brackets nested properly; the texts hold no brackets inside strings.
bool IsOneJsonObject(const std::string& Line)
{
    std::string Open;
    for(char c : Line)
    {
        if(c == '{' || c == '[')
            Open.push_back(c);
        else if(c == '}' || c == ']')
        {
            if(Open.empty() || Open.back() != (c == '}' ? '{' : '['))
                return false;
            Open.pop_back();
        }
    }
    return Open.empty() && Line.size() > 2 && Line.front() == '{' && Line.back() == '}';
}

std::vector<std::string> ReadLines(const char* pFileName)
{
    std::ifstream Stream(pFileName);
    std::vector<std::string> vLines;
    for(std::string Line; std::getline(Stream, Line);)
        vLines.push_back(Line);
    return vLines;
}

void ExpectSummary(const CCommandResult& Run, const std::string& Outcome)
{
    ASSERT_EQ(Run.m_iExitCode, 0) << Run.m_Output;
    ASSERT_EQ(CountLines(Run.m_Output), 1u) << Run.m_Output;
    EXPECT_TRUE(IsOneJsonObject(Run.m_Output.substr(0, Run.m_Output.size() - 1))) << Run.m_Output;
    for(const char* pKey : SUMMARY_KEYS)
        EXPECT_NE(Run.m_Output.find("\"" + std::string(pKey) + "\":"), std::string::npos) << pKey;
    EXPECT_NE(Run.m_Output.find("\"outcome\":\"" + Outcome + "\""), std::string::npos) << Run.m_Output;
}

void ExpectOneLineError(const CCommandResult& Run)
{
    EXPECT_EQ(Run.m_iExitCode, 2) << Run.m_Output;
    EXPECT_EQ(CountLines(Run.m_Output), 1u) << Run.m_Output;
    EXPECT_EQ(Run.m_Output.find("\"outcome\""), std::string::npos) << Run.m_Output;
}
} // namespace

TEST(Simulator, LevelWithoutTracksIsWonInTheFirstFrame)
{
    CTempFile Level("Playtime: 1 min 0 sec\nEnd\n");
    const CCommandResult Run = Simulate(Level.Path());
    ExpectSummary(Run, "won");
    EXPECT_EQ(Field(Run.m_Output, "frames"), 1);
    EXPECT_EQ(Field(Run.m_Output, "ms"), 10);
    EXPECT_EQ(Field(Run.m_Output, "score"), 0);
}

TEST(Simulator, IdleRunOnAShippedLevelIsLostWithTheChainStillThere)
{
    const CCommandResult Run = Simulate(FIRST_LEVEL);
    ExpectSummary(Run, "lost");
    EXPECT_GT(Field(Run.m_Output, "frames"), 100);
    EXPECT_GT(Field(Run.m_Output, "balls_on_tracks"), 0);
    EXPECT_EQ(Field(Run.m_Output, "shots_fired"), 0);
    EXPECT_EQ(Field(Run.m_Output, "triples") + Field(Run.m_Output, "chains"), 0);
}

TEST(Simulator, AFrameCapStopsARunThatIsStillGoing)
{
    const CCommandResult Run = Simulate(std::string(FIRST_LEVEL) + " --frames 25");
    ExpectSummary(Run, "running");
    EXPECT_EQ(Field(Run.m_Output, "frames"), 25);
}

TEST(Simulator, LaterRoundsRollFasterAndAreLostSooner)
{
    const CCommandResult First = Simulate(FIRST_LEVEL);
    const CCommandResult Fifth = Simulate(std::string(FIRST_LEVEL) + " --round 5");
    ExpectSummary(Fifth, "lost");
    EXPECT_LT(Field(Fifth.m_Output, "frames"), Field(First.m_Output, "frames"));
}

// A shot tried inside the fire delay doesn't leave and isn't counted.
TEST(Simulator, ScriptedShotsCountOnlyWhenTheyLeave)
{
    CTempFile Script("# two shots get away\n0 aim 0 60\n0 fire\n10 fire\n\n100 turn 50 -25\n100 fire\n", "shots.txt");
    const CCommandResult Run = Simulate(std::string(FIRST_LEVEL) + " --frames 200 --script " + Script.Path());
    ExpectSummary(Run, "running");
    EXPECT_EQ(Field(Run.m_Output, "shots_fired"), 2);
}

TEST(Simulator, ScriptMistakesStopTheRunNamingTheLine)
{
    CTempFile Script("0 fire\n\n5 jump\n", "bad.txt");
    CCommandResult Run = Simulate(std::string(FIRST_LEVEL) + " --script " + Script.Path());
    ExpectOneLineError(Run);
    EXPECT_NE(Run.m_Output.find(":3:"), std::string::npos) << Run.m_Output;

    for(const char* pLine :
        {"0 aim 10", "0 aim 400 0", "x fire", "0 turn 1 y", "0 forward -1", "7 power 9", "7 power 1 2"})
    {
        CTempFile Bad(std::string(pLine) + "\n", "bad.txt");
        ExpectOneLineError(Simulate(std::string(FIRST_LEVEL) + " --script " + Bad.Path()));
    }
}

TEST(Simulator, BadCommandLinesGiveOneLineAndExitTwo)
{
    ExpectOneLineError(Simulate("data/tracks/no-such-level.txt"));
    ExpectOneLineError(Simulate("data/tracks"));
    ExpectOneLineError(Simulate(""));
    for(const char* pOptions : {"--bogus", "--seed", "--seed x", "--dt 0", "--frames -5", "--round 0",
                                "--trace /no/such/folder/trace.txt", "--script /no/such/script.txt", "extra.txt",
                                "--pace x", "--pace -1", "--aim-error -0.1", "--aim-error 46", "--aim-error nan"})
        ExpectOneLineError(Simulate(std::string(FIRST_LEVEL) + " " + pOptions));
    const CCommandResult Help = Simulate("--help");
    EXPECT_EQ(Help.m_iExitCode, 0);
    EXPECT_NE(Help.m_Output.find("--autoplay"), std::string::npos);
}

TEST(Simulator, TraceHasOneObjectPerFrame)
{
    CTempFile Trace("", "trace.jsonl");
    ExpectSummary(Simulate(std::string(FIRST_LEVEL) + " --frames 300 --trace " + Trace.Path()), "running");
    const std::vector<std::string> vLines = ReadLines(Trace.Path());
    ASSERT_EQ(vLines.size(), 300u);
    for(size_t i = 0; i < vLines.size(); i++)
    {
        ASSERT_TRUE(IsOneJsonObject(vLines[i])) << vLines[i];
        ASSERT_EQ(Field(vLines[i], "frame"), i);
        ASSERT_NE(vLines[i].find("\"shots\":["), std::string::npos) << vLines[i];
    }
    EXPECT_NE(vLines.back().find("{\"c\":"), std::string::npos) << "balls have entered: " << vLines.back();
}

// Fired at the sky, a shot touches nothing and rises a fifth of a unit in each millisecond.
TEST(Simulator, TraceFollowsAShotInFlight)
{
    CTempFile Script("0 aim 0 -89\n0 fire\n", "up.txt");
    CTempFile Trace("", "trace.jsonl");
    const CCommandResult Run = Simulate(std::string(FIRST_LEVEL) + " --frames 20 --dt 25 --script " + Script.Path() +
                                        " --trace " + Trace.Path());
    ExpectSummary(Run, "running");
    EXPECT_EQ(Field(Run.m_Output, "ms"), 500);
    const std::vector<std::string> vLines = ReadLines(Trace.Path());
    ASSERT_EQ(vLines.size(), 20u);
    for(size_t i = 1; i < vLines.size(); i++)
        EXPECT_NEAR(Field(vLines[i], "y") - Field(vLines[i - 1], "y"), 25 * 0.2 * 0.99985, 0.001) << vLines[i];
}

TEST(Simulator, DamagedLevelIsPlayedAfterAWarning)
{
    CTempFile Level("Playtime: 1 min 0 sec\nTrack: 4 points");
    const CCommandResult Run = Simulate(Level.Path());
    EXPECT_EQ(Run.m_iExitCode, 0);
    EXPECT_NE(Run.m_Output.find("warning: "), std::string::npos) << Run.m_Output;
    EXPECT_NE(Run.m_Output.find("{\"outcome\":\"won\""), std::string::npos) << Run.m_Output;
}

TEST(Simulator, AutoplayClearsTheFirstLevelTheSameWayEachTime)
{
    const std::string Arguments = std::string(FIRST_LEVEL) + " --autoplay --seed 3";
    const CCommandResult Run = Simulate(Arguments);
    ExpectSummary(Run, "won");
    EXPECT_GT(Field(Run.m_Output, "triples") + Field(Run.m_Output, "chains"), 10);
    EXPECT_EQ(Field(Run.m_Output, "balls_on_tracks") + Field(Run.m_Output, "balls_queued"), 0);
    EXPECT_EQ(Simulate(Arguments).m_Output, Run.m_Output);
}

// A casual hand fires no more often than its pace and aims off by its own dice: the balls stay those of the
// seed, so the first balls to enter are the same and only what the shots do differs.
TEST(Simulator, PaceAndAimErrorChangeTheShotsButNotTheBalls)
{
    const std::string Level = std::string(FIRST_LEVEL) + " --autoplay --frames 3000";
    CTempFile Sure("", "sure.jsonl"), Casual("", "casual.jsonl");
    const CCommandResult Fast = Simulate(Level + " --trace " + Sure.Path());
    const CCommandResult Slow = Simulate(Level + " --pace 800 --aim-error 2 --trace " + Casual.Path());
    EXPECT_GT(Field(Fast.m_Output, "shots_fired"), 38);
    EXPECT_LE(Field(Slow.m_Output, "shots_fired"), 30000 / 800);
    EXPECT_GE(Field(Slow.m_Output, "shots_fired"), 30000 / 800 - 2);
    const auto Balls = [](const std::string& Line) { return Line.substr(0, Line.find(",\"shots\"")); };
    EXPECT_EQ(Balls(ReadLines(Sure.Path()).at(80)), Balls(ReadLines(Casual.Path()).at(80))) << "before a shot lands";
    EXPECT_NE(Simulate(Level + " --aim-error 2").m_Output, Fast.m_Output);
}

// A combo puts a powerup on a ball; bursting it earns the letter, and the power key spends it.
TEST(Simulator, ScriptedPowerKeysSpendWhatCombosEarn)
{
    CTrackList List;
    ASSERT_TRUE(List.Load(TRACK_LIST_FILE));
    std::string Script;
    for(int iFrame = 0; iFrame < 20000; iFrame++)
        Script += std::to_string(iFrame) + " power\n";
    CTempFile ScriptFile(Script, "power.txt");
    bool bEarnedAndSpent = false;
    for(const std::string& Level : List.m_vFiles)
    {
        const CCommandResult Run = Simulate("'" + Level + "' --autoplay --script " + ScriptFile.Path());
        ASSERT_EQ(Run.m_iExitCode, 0) << Run.m_Output;
        EXPECT_LE(Field(Run.m_Output, "powerups_used"), Field(Run.m_Output, "powerups_earned")) << Run.m_Output;
        bEarnedAndSpent |= Field(Run.m_Output, "powerups_earned") >= 1 && Field(Run.m_Output, "powerups_used") >= 1 &&
                           Run.m_Output.find("\"stack\":\"\"") != std::string::npos;
    }
    EXPECT_TRUE(bEarnedAndSpent) << "no shipped level earned a powerup under autoplay";
}
