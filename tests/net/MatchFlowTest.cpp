#include "TestSupport.h"
#include "net/GameOnTheNetwork.h"
#include "net/Messages.h"
#include "platform/interfaces/Clock.h"

#include <fstream>
#include <regex>
#include <unistd.h>

namespace
{
struct CBotMatch
{
    std::string m_Outcome;
    std::string m_Rows; // without the numbers, which a client's own row carries as 0 between two tables
};

// The matches a bot reported, read from its JSON line.
std::vector<CBotMatch> MatchesOf(const std::string& Report)
{
    static const std::regex MATCH(R"re(\{"track":\d+,"outcome":"(won|lost)","score":\d+,"rows":\[([^\]]*)\]\})re");
    static const std::regex NUMBER(R"("number":\d+,)");
    std::vector<CBotMatch> vMatches;
    for(auto it = std::sregex_iterator(Report.begin(), Report.end(), MATCH); it != std::sregex_iterator(); ++it)
        vMatches.push_back({(*it)[1], std::regex_replace((*it)[2].str(), NUMBER, "")});
    return vMatches;
}

// A folder for bots to run in: a track list of one short level whose chain can't reach the end of its track
// before the clock ends the match, ten seconds in; so a match ends by the clock or by a cleared level.
class CQuickLevel
{
public:
    CQuickLevel() : m_List("quick.txt", "data/tracks/Track List.txt")
    {
        const std::string List = m_List.Path();
        m_Folder = List.substr(0, List.find("/data/"));
        std::ofstream Level(m_Folder + "/data/tracks/quick.txt");
        Level << "Playtime: 0 min 10 sec\nInitial camera yaw and pitch: 0.00 and 52.00\nCamera: 6 points, degree 3 :\n"
              << "0, 67.77, -46.95\n0, 67.77, -46.95\n0, 67.77, -46.95\n2, 67.77, -46.95\n4.5, 67.77, -46.95\n"
              << "7, 67.77, -46.95\nTrack: 12 points, degree 3 balls 30 interval 400 points follow\n";
        for(int i = 0; i < 12; i++)
            Level << -66 + 12 * i << ", 2, " << 30 + (i % 3) * 4 << "\n";
        Level << "End\n";
    }
    std::vector<std::string> Bot(std::vector<std::string> vArgs) const
    {
        vArgs.insert(vArgs.begin(), {"--port", m_Port});
        return BotCommand(vArgs);
    }
    const std::string& Folder() const { return m_Folder; }

private:
    CTempFile m_List;
    std::string m_Folder;
    std::string m_Port = std::to_string(FreeLoopbackPort());
};

using MatchFlowOnHost = CHostingGame;
using MatchFlowOnHostOfTwo = CHostOfTwo;
using MatchFlowOnClient = CJoinedGame;
} // namespace

// The first update leaves in the tick that takes the game past its first second, then one in every tick.
TEST_F(MatchFlowOnClient, TheFirstScoreUpdateLeavesAfterASecondAndThenOneEveryTick)
{
    SetManualClock(0);
    m_Game.m_Clock = CGameClock();
    m_Game.m_nScore = 77;
    CNetwork& Host = m_Host.m_Net;
    auto Frame = [this] {
        AdvanceManualClock(10);
        m_Game.m_Clock.Update(timeGetTime());
        m_Game.m_Network.Tick();
    };
    for(int i = 0; i < 100; i++)
        Frame();
    PumpAWhile();
    EXPECT_EQ(Host.m_Scores[1].m_nScore, 0u) << "nothing in the first second";
    Frame();
    EXPECT_EQ(m_Game.m_Network.m_Scores[1].m_nNumber, 0u) << "the own row as the client wrote it";
    EXPECT_EQ(m_Game.m_Network.m_Scores[1].m_nScore, 77u);
    ASSERT_TRUE(Pump([&] { return Host.m_Scores[1].m_nScore == 77; }));
    EXPECT_EQ(Host.m_Scores[1].m_nNumber, 2u);
    m_Game.m_nScore = 78;
    Frame();
    ASSERT_TRUE(Pump([&] { return Host.m_Scores[1].m_nScore == 78; }));
    CWireFrame Table;
    EXPECT_TRUE(m_Other.ReadUntil(NET_SCORE_TABLE, Table, 1000));
    UseSystemClock();
}

// With three in, the first to lose is marked out everywhere and the match goes on; with two in, the loss
// makes the other the winner.
TEST_F(MatchFlowOnHostOfTwo, AFirstLossMarksThePlayerOutAndTheLossOfTheLastButOneEndsTheMatch)
{
    CNetwork& Network = m_Game.m_Network;
    EXPECT_EQ(Network.CountPlayersIn(), 3u);
    ASSERT_TRUE(m_A.Send(WireFrame(NET_PLAYER_OUT, m_uiA, 1, MARK_PAYLOAD)));
    CWireFrame Table;
    ASSERT_TRUE(Pump([&] { return m_B.ReadUntil(NET_PLAYER_TABLE, Table, 0) && Table.m_vPayload[9 + 8] == 1; }));
    EXPECT_TRUE(Network.m_Players[1].m_bFinished);
    EXPECT_EQ(Network.CountPlayersIn(), 2u);
    Network.OnPlayerLost();
    CWireFrame Win;
    ASSERT_TRUE(Pump([&] { return m_B.ReadUntil(NET_YOU_WIN, Win, 0); }));
    EXPECT_EQ(Win.m_uiFrom, 0u);
    EXPECT_FALSE(Network.m_Players[0].m_bFinished) << "the match is over: nobody is marked";
}

// At the end of the host's clock the highest score wins; of equal scores the later slot.
TEST_F(MatchFlowOnHostOfTwo, AtTheEndOfTheClockTheLaterOfEqualScoresWinsAndTheHostLoses)
{
    CNetwork& Network = m_Game.m_Network;
    Network.m_Scores[0].m_nScore = 300;
    Network.m_Scores[1].m_nScore = 500;
    Network.m_Scores[2].m_nScore = 500;
    CScoreRow aRanked[MAX_PLAYERS];
    Network.RankPlayers(aRanked);
    EXPECT_EQ(aRanked[0].m_nId, 0u);
    EXPECT_EQ(aRanked[2].m_nId, m_uiB);
    m_Game.m_Logic.m_bActive = true;
    Network.OnTimeUp();
    CWireFrame End;
    ASSERT_TRUE(Pump([&] { return m_B.ReadUntil(NET_YOU_WIN, End, 0); }));
    EXPECT_EQ(End.m_uiTo, m_uiB);
    ASSERT_TRUE(m_A.ReadUntil(NET_YOU_LOSE, End, 1000));
    EXPECT_EQ(End.m_uiTo, m_uiA);
    EXPECT_FALSE(m_Game.m_Logic.m_bActive);
    EXPECT_FALSE(m_Game.m_Level.m_bWon);
    EXPECT_EQ(m_Game.m_Graphics.m_nScreenState, SCREEN_RESULTS);
}

TEST_F(MatchFlowOnHost, AHostAloneWhoseClockEndsWins)
{
    m_Game.m_Logic.m_bActive = true;
    m_Game.m_Network.OnTimeUp();
    EXPECT_TRUE(m_Game.m_Level.m_bWon);
    EXPECT_EQ(m_Game.m_Graphics.m_nScreenState, SCREEN_RESULTS);
}

// A client's clock's end asks for the ranking only once the host is out, and the host's answer ends its level.
TEST_F(MatchFlowOnClient, AClientAsksForTheRankingOnlyWithTheHostOut)
{
    CNetwork& Network = m_Game.m_Network;
    CNetwork& Host = m_Host.m_Net;
    m_Game.m_Logic.m_bActive = true;
    Network.OnTimeUp();
    PumpAWhile();
    EXPECT_TRUE(m_Game.m_Logic.m_bActive) << "the host is in: the client plays on";

    Host.m_Players[0].m_bFinished = true;
    Host.m_Scores[1].m_nScore = 900;
    Host.SendPlayerTable(0, true);
    ASSERT_TRUE(Pump([&] { return Network.m_Players[0].m_bFinished; }));
    Network.OnTimeUp();
    ASSERT_TRUE(Pump([this] { return !m_Game.m_Logic.m_bActive; }));
    EXPECT_TRUE(m_Game.m_Level.m_bWon) << "the highest score";
    CWireFrame Lose;
    EXPECT_TRUE(m_Other.ReadUntil(NET_YOU_LOSE, Lose, 1000));

    // With the host out, this client's loss leaves one player in, who wins.
    Network.OnPlayerLost();
    CWireFrame Win;
    ASSERT_TRUE(Pump([&] { return m_Other.ReadUntil(NET_YOU_WIN, Win, 0); }));
    EXPECT_EQ(Win.m_uiFrom, 1u);
}

TEST_F(MatchFlowOnClient, AClientOutOfThreeReportsItsOwnSlotAndTheHostMarksItEverywhere)
{
    m_Game.m_Network.OnPlayerLost();
    ASSERT_TRUE(Pump([this] { return m_Game.m_Network.m_Players[1].m_bFinished; }));
    EXPECT_TRUE(m_Host.m_Net.m_Players[1].m_bFinished);
    EXPECT_FALSE(m_Host.m_Net.m_Players[2].m_bFinished);
    EXPECT_EQ(m_Game.m_Network.CountPlayersIn(), 2u);
}

// Back in the lobby the link, the ids and the table stay; the stack, the chat and the score go.
TEST_F(MatchFlowOnClient, ResetMatchClearsTheMatchAndKeepsTheTable)
{
    CNetwork& Network = m_Game.m_Network;
    m_Game.m_Powerups.PushLetter('H');
    std::strcpy(m_Game.m_Powerups.m_szNotice, "Player 3 has used HALT on you");
    std::strcpy(Network.m_szLobbyLines[0], "3: hello");
    std::strcpy(Network.m_szChatInput, "typed");
    Network.m_nLobbyLines = 1;
    Network.m_Players[1].m_bFinished = true;
    Network.m_Scores[2].m_nScore = 1234;
    m_Game.m_nScore = 999;
    const std::vector<uint32_t> vIds = ListedIds(Network);
    Network.ResetMatch();
    EXPECT_EQ(m_Game.m_Powerups.m_nStackCount, 0u);
    EXPECT_STREQ(m_Game.m_Powerups.m_szNotice, "");
    EXPECT_STREQ(Network.m_szLobbyLines[0], "");
    EXPECT_STREQ(Network.m_szChatInput, "");
    EXPECT_EQ(Network.m_nLobbyLines, 0u);
    EXPECT_FALSE(Network.m_Players[1].m_bFinished);
    EXPECT_EQ(Network.m_Scores[2].m_nScore, 0u);
    EXPECT_EQ(m_Game.m_nScore, 0u);
    EXPECT_EQ(ListedIds(Network), vIds);
    EXPECT_TRUE(Network.m_bRunning);
}

// Seven bots race one level to its end: all report the same final rows and exactly one winner. The seventh
// and eighth clients are accepted without slots and stay out of the race; a ninth is not accepted at all.
TEST(MatchFlow, SevenBotsRaceOneMatchAgreeOnTheRowsAndHaveOneWinner)
{
    const CQuickLevel Level;
    CChildProcess aBots[10];
    ASSERT_TRUE(aBots[0].Start(Level.Bot({"--host", "--start-when", "7", "--seed", "1"}), Level.Folder()));
    usleep(300000);
    for(int i = 1; i < 10; i++)
    {
        ASSERT_TRUE(
            aBots[i].Start(Level.Bot({"--join", "127.0.0.1", "--seed", std::to_string(i + 1)}), Level.Folder()));
        usleep(100000);
    }
    // While the seven race, the seventh and eighth clients hold ids and no slots, and the ninth waits unheard.
    usleep(3000000);
    for(int i = 9; i >= 7; i--) // the waiting one first, before a place frees for it
    {
        EXPECT_EQ(aBots[i].Stop(10000), 0);
        EXPECT_NE(aBots[i].Output().find(R"("number":0,)"), std::string::npos) << aBots[i].Output();
        EXPECT_NE(aBots[i].Output().find(R"("matches":[])"), std::string::npos) << aBots[i].Output();
    }
    EXPECT_NE(aBots[8].Output().find(R"({"my_id":8,)"), std::string::npos) << "accepted, with an id";
    EXPECT_NE(aBots[9].Output().find(R"({"my_id":0,)"), std::string::npos) << "never accepted";
    for(int i = 0; i < 7; i++)
        ASSERT_EQ(aBots[i].Wait(90000), 0) << aBots[i].Errors();
    int iWinners = 0;
    const std::vector<CBotMatch> vHost = MatchesOf(aBots[0].Output());
    ASSERT_EQ(vHost.size(), 1u) << aBots[0].Output();
    for(int i = 0; i < 7; i++)
    {
        const std::vector<CBotMatch> vMatches = MatchesOf(aBots[i].Output());
        ASSERT_EQ(vMatches.size(), 1u) << aBots[i].Output();
        EXPECT_EQ(vMatches[0].m_Rows, vHost[0].m_Rows) << "bot " << i;
        iWinners += vMatches[0].m_Outcome == "won" ? 1 : 0;
    }
    EXPECT_EQ(iWinners, 1);
}

// A client leaves in the middle of a match and the host then vanishes: the last client plays on alone,
// reaches its results and goes back to the lobby; a second match follows on a host that stays.
TEST(MatchFlow, PlayersWhoLeaveOrVanishMidMatchLeaveTheOthersPlaying)
{
    const CQuickLevel Level;
    CChildProcess Host, Leaver, Last;
    ASSERT_TRUE(Host.Start(Level.Bot({"--host", "--start-when", "3", "--idle"}), Level.Folder()));
    usleep(300000);
    ASSERT_TRUE(Leaver.Start(Level.Bot({"--join", "127.0.0.1", "--idle", "--leave-after", "3"}), Level.Folder()));
    usleep(200000);
    ASSERT_TRUE(Last.Start(Level.Bot({"--join", "127.0.0.1", "--seed", "3"}), Level.Folder()));
    ASSERT_EQ(Leaver.Wait(10000), 0);
    usleep(1000000);
    Host.Kill(); // no chance to say goodbye
    ASSERT_EQ(Last.Wait(90000), 0) << Last.Errors();
    EXPECT_EQ(MatchesOf(Last.Output()).size(), 1u) << Last.Output();
    EXPECT_NE(Last.Output().find(R"("players":[{"id":0,"present":true,"finished":false},{"id":2,)"), std::string::npos)
        << "the leaver's slot went, the vanished host's stayed: " << Last.Output();
}

// A host and two clients play two matches in a row, and report the same rows for each.
TEST(MatchFlow, BotsPlayTwoMatchesInARowAndAgreeOnBoth)
{
    const CQuickLevel Level;
    CChildProcess aBots[3];
    ASSERT_TRUE(
        aBots[0].Start(Level.Bot({"--host", "--start-when", "3", "--matches", "2", "--seed", "5"}), Level.Folder()));
    usleep(300000);
    for(int i = 1; i < 3; i++)
        ASSERT_TRUE(aBots[i].Start(Level.Bot({"--join", "127.0.0.1", "--matches", "2", "--seed", std::to_string(i)}),
                                   Level.Folder()));
    for(CChildProcess& Bot : aBots)
        ASSERT_EQ(Bot.Wait(120000), 0) << Bot.Errors();
    const std::vector<CBotMatch> vHost = MatchesOf(aBots[0].Output());
    ASSERT_EQ(vHost.size(), 2u) << aBots[0].Output();
    for(const CChildProcess& Bot : aBots)
    {
        const std::vector<CBotMatch> vMatches = MatchesOf(Bot.Output());
        ASSERT_EQ(vMatches.size(), 2u) << Bot.Output();
        for(size_t m = 0; m < 2; m++)
            EXPECT_EQ(vMatches[m].m_Rows, vHost[m].m_Rows) << "match " << m;
    }
}
