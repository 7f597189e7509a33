#include "net/GameOnTheNetwork.h"
#include "net/Messages.h"
#include "platform/interfaces/Clock.h"

#include <gtest/gtest.h>

#include <cstring>
#include <unistd.h>

using ProtocolOnHost = CHostingGame;
using ProtocolOnHostOfTwo = CHostOfTwo;
using ProtocolOnClient = CJoinedGame;

// Each frame that no game could have sent is dropped with one line in the log, a type beyond the table
// without one, and none of them changes the tables or the stack.
TEST_F(ProtocolOnHost, FramesNoGameSendsAreDroppedAndChangeNothing)
{
    CWireClient Rogue;
    uint32_t uiRogue = 0;
    ASSERT_TRUE(Join(Rogue, uiRogue));
    const size_t Before = m_Log.Lines().size();
    std::vector<uint8_t> vTable(68, 0);
    vTable[0] = 9;
    for(const std::vector<uint8_t>& vFrame :
        {WireFrame(32, uiRogue, 0, MARK_PAYLOAD), WireFrame(1000, uiRogue, 0, MARK_PAYLOAD),
         WireFrame(NET_ASSIGN_ID, 0, 0, {7, 0, 0}), WireFrame(NET_LOBBY_CHAT, uiRogue, 1, {'h', 'i'}),
         WireFrame(NET_PLAYER_TABLE, 0, 0, vTable), WireFrame(NET_SCORE_UPDATE, uiRogue, 0, ScoreRow(0, 1, 5, 0)),
         WireFrame(NET_SCORE_UPDATE, uiRogue, 0, ScoreRow(9, 1, 5, 0)),
         WireFrame(NET_PLAYER_OUT, uiRogue, 7, MARK_PAYLOAD), WireFrame(NET_PU_TAKEN, uiRogue, 0, {'q', 0}),
         WireFrame(NET_PU_HALT, uiRogue, 0, {'0', '0'})})
        ASSERT_TRUE(Rogue.Send(vFrame));
    ASSERT_TRUE(Pump([&] { return m_Log.Lines().size() - Before >= 8; }));
    PumpAWhile();
    EXPECT_EQ(m_Log.Lines().size() - Before, 8u);
    EXPECT_EQ(ListedIds(m_Game.m_Network), std::vector<uint32_t>({0, uiRogue}));
    EXPECT_FALSE(m_Game.m_Network.m_Players[1].m_bFinished);
    EXPECT_EQ(m_Game.m_Network.m_Scores[1].m_nScore, 0u);
    EXPECT_EQ(Notice(), "");
    EXPECT_FALSE(m_Game.m_Powerups.m_bHaltOn);
    EXPECT_EQ(m_Game.m_Network.GetPlayerNumber(42), 0u);
}

// A powerup aimed at the host acts on the host, which shows who sent it and passes it on to nobody.
TEST_F(ProtocolOnHostOfTwo, AHaltAimedAtTheHostActsThereAndGoesNoFurther)
{
    CWireClient& Sender = m_A;
    CWireClient& Bystander = m_B;
    SetManualClock(4242);
    ASSERT_TRUE(Sender.Send(WireFrame(NET_PU_HALT, m_uiA, 0, MARK_PAYLOAD)));
    ASSERT_TRUE(Pump([this] { return m_Game.m_Powerups.m_bHaltOn; }));
    EXPECT_EQ(Notice(), "Player 2 has used HALT on you");
    EXPECT_EQ(m_Game.m_Network.m_nNoticeTime, 4242u);
    PumpAWhile();
    CWireFrame Frame;
    EXPECT_FALSE(Bystander.ReadUntil(NET_PU_HALT, Frame, 100));
    UseSystemClock();
}

// Every client's update comes back to every client as the whole table, the host's own row first.
TEST_F(ProtocolOnHostOfTwo, AScoreUpdateComesBackToEveryClientAsTheWholeTable)
{
    m_Game.m_nScore = 500;
    m_Game.m_Network.m_fDanger = 0.25f;
    m_Game.m_Clock.Update(m_Game.m_Clock.m_nLastTime + 1001);
    m_Game.m_Network.Tick(); // past the first second: the host writes its own row
    ASSERT_TRUE(m_A.Send(WireFrame(NET_SCORE_UPDATE, m_uiA, 0, ScoreRow(2, m_uiA, 1234, 0.5f))));
    CWireFrame Table;
    ASSERT_TRUE(Pump([&] { return m_B.ReadUntil(NET_SCORE_TABLE, Table, 0); }));
    ASSERT_EQ(Table.m_vPayload.size(), 164u);
    std::vector<uint8_t> vExpected = WireU32(3);
    for(const std::vector<uint8_t>& vRow :
        {ScoreRow(0, 0, 500, 0.25f), ScoreRow(2, m_uiA, 1234, 0.5f), ScoreRow(3, m_uiB, 0, 0.0f)})
        vExpected.insert(vExpected.end(), vRow.begin(), vRow.end());
    EXPECT_EQ(std::vector<uint8_t>(Table.m_vPayload.begin(), Table.m_vPayload.begin() + 64), vExpected);
}

// A client speaks only for itself: frames in another's name, messages only the host sends, and a slot or a
// row that is not its own are dropped with a line each and reach nobody. What it says for itself goes through.
TEST_F(ProtocolOnHostOfTwo, AClientSpeaksOnlyForItselfAndNothingElseReachesAnyone)
{
    std::vector<uint8_t> vTable(PLAYER_TABLE_SIZE, 0);
    vTable[0] = 1;
    const std::vector<std::vector<uint8_t>> vForged = {
        WireFrame(NET_LOBBY_CHAT, m_uiB, 1, WireText("3: I am B")),
        WireFrame(NET_PU_HALT, m_uiB, 0, MARK_PAYLOAD),
        WireFrame(NET_ASSIGN_ID, m_uiA, 0, WireU32(9)),
        WireFrame(NET_PLAYER_JOINED, m_uiA, 0, WireU32(9)),
        WireFrame(NET_PLAYER_LEFT, m_uiA, 0, WireU32(m_uiB)),
        WireFrame(NET_PLAYER_TABLE, m_uiA, 0, vTable),
        WireFrame(NET_START_GAME, m_uiA, 0, MARK_PAYLOAD),
        WireFrame(NET_SCORE_TABLE, m_uiA, 0, std::vector<uint8_t>(SCORE_TABLE_SIZE, 1)),
        WireFrame(NET_PLAYER_OUT, m_uiA, 2, MARK_PAYLOAD),
        WireFrame(NET_SCORE_UPDATE, m_uiA, 0, ScoreRow(3, m_uiB, 999, 0.5f)),
        WireFrame(NET_SCORE_UPDATE, m_uiA, 0, ScoreRow(3, m_uiA, 999, 0.5f)),
        WireFrame(NET_SCORE_UPDATE, m_uiA, 0, ScoreRow(2, m_uiB, 999, 0.5f)),
    };
    const size_t Before = m_Log.Lines().size();
    for(const std::vector<uint8_t>& vFrame : vForged)
        ASSERT_TRUE(m_A.Send(vFrame));
    ASSERT_TRUE(Pump([&] { return m_Log.Lines().size() - Before >= vForged.size(); }));
    PumpAWhile();
    EXPECT_EQ(m_Log.Lines().size() - Before, vForged.size());
    const CNetwork& Host = m_Game.m_Network;
    EXPECT_EQ(ListedIds(Host), std::vector<uint32_t>({0, m_uiA, m_uiB}));
    EXPECT_FALSE(Host.m_Players[2].m_bFinished);
    EXPECT_EQ(Host.m_Scores[2].m_nScore, 0u);
    EXPECT_EQ(Host.m_nLobbyLines, 0u);
    EXPECT_FALSE(m_Game.m_Powerups.m_bHaltOn);
    CWireFrame Frame;
    EXPECT_FALSE(m_B.Read(Frame, 100)) << "type " << Frame.m_uiType << " reached another client";

    ASSERT_TRUE(m_A.Send(WireFrame(NET_LOBBY_CHAT, m_uiA, 1, WireText("2: I am A"))));
    ASSERT_TRUE(m_A.Send(WireFrame(NET_PLAYER_OUT, m_uiA, 1, MARK_PAYLOAD)));
    ASSERT_TRUE(Pump([&] { return m_B.ReadUntil(NET_LOBBY_CHAT, Frame, 0); }));
    EXPECT_EQ(Frame.m_vPayload, WireText("2: I am A"));
    EXPECT_TRUE(Host.m_Players[1].m_bFinished);
}

// A powerup from one client to another goes through the host unchanged: the target sees the first
// sender's number, and a TAKE sends the oldest letter back the same way.
TEST_F(ProtocolOnClient, PowerupsBetweenClientsTravelThroughTheHostUnchanged)
{
    ASSERT_TRUE(m_Other.Send(WireFrame(NET_PU_HALT, m_uiOther, 1, MARK_PAYLOAD)));
    ASSERT_TRUE(Pump([this] { return m_Game.m_Powerups.m_bHaltOn; }));
    EXPECT_EQ(Notice(), "Player 3 has used HALT on you");

    m_Game.m_Powerups.PushLetter('H');
    m_Game.m_Powerups.PushLetter('Z');
    ASSERT_TRUE(m_Other.Send(WireFrame(NET_PU_TAKE, m_uiOther, 1, MARK_PAYLOAD)));
    CWireFrame Taken;
    ASSERT_TRUE(Pump([&] { return m_Other.ReadUntil(NET_PU_TAKEN, Taken, 0); }));
    EXPECT_EQ(Notice(), "Player 3 has used TAKE on you");
    EXPECT_EQ(Stack(), "Z");
    EXPECT_EQ(Taken.m_uiFrom, 1u);
    EXPECT_EQ(Taken.m_uiTo, m_uiOther);
    EXPECT_EQ(Taken.m_vPayload, std::vector<uint8_t>({'H', 0}));

    m_Game.m_Powerups.ApplyEmpty();
    ASSERT_TRUE(m_Other.Send(WireFrame(NET_PU_TAKE, m_uiOther, 1, MARK_PAYLOAD)));
    PumpAWhile();
    EXPECT_FALSE(m_Other.ReadUntil(NET_PU_TAKEN, Taken, 50)) << "an empty stack gives nothing back";

    for(int i = 0; i < POWERUP_STACK_SIZE; i++)
        m_Game.m_Powerups.PushLetter('D');
    ASSERT_TRUE(m_Other.Send(WireFrame(NET_PU_TAKEN, m_uiOther, 1, {'H', 0})));
    ASSERT_TRUE(Pump([this] { return Notice() == "You have taken powerup from Player 3"; }));
    EXPECT_EQ(Stack(), "DDDDD") << "a full stack loses the letter";

    // Aimed by this game: exactly the Mark frame, from its id to the target's.
    EXPECT_TRUE(m_Game.m_Network.SendToPlayer(m_uiOther, NET_PU_HALT));
    EXPECT_FALSE(m_Game.m_Network.SendToPlayer(1, NET_PU_HALT)) << "never at oneself";
    CWireFrame Halt;
    ASSERT_TRUE(Pump([&] { return m_Other.ReadUntil(NET_PU_HALT, Halt, 0); }));
    EXPECT_EQ(Halt.m_uiSize, 1u);
    EXPECT_EQ(Halt.m_uiFrom, 1u);
    EXPECT_EQ(Halt.m_uiTo, m_uiOther);
    EXPECT_EQ(Halt.m_vPayload, MARK_PAYLOAD);
}

// A client takes the count its lines come with; past the eighth line the first is pushed out, and a count
// of 0 names no line.
TEST_F(ProtocolOnClient, LobbyLinesTakeTheSendersCountAndTheNinthPushesOutTheFirst)
{
    for(uint32_t i = 1; i <= 9; i++)
        ASSERT_TRUE(m_Other.Send(WireFrame(NET_LOBBY_CHAT, m_uiOther, i, WireText("3: line " + std::to_string(i)))));
    CNetwork& Network = m_Game.m_Network;
    ASSERT_TRUE(Pump([&] { return Network.m_nLobbyLines == 9; }));
    EXPECT_STREQ(Network.m_szLobbyLines[0], "3: line 2");
    EXPECT_STREQ(Network.m_szLobbyLines[7], "3: line 9");
    EXPECT_EQ(m_Host.m_Net.m_nLobbyLines, 9u) << "the host counts for itself";

    const size_t Before = m_Log.Lines().size();
    ASSERT_TRUE(m_Other.Send(WireFrame(NET_LOBBY_CHAT, m_uiOther, 0, WireText("3: nowhere"))));
    ASSERT_TRUE(Pump([&] { return m_Log.Count("lobby line 0 dropped") == 1; }));
    EXPECT_EQ(m_Log.Lines().size() - Before, 1u);
    EXPECT_STREQ(Network.m_szLobbyLines[7], "3: line 9");

    // The game's own line comes back through the host before it shows.
    std::strcpy(Network.m_szLobbyInput, "hello");
    Network.SendLobbyChat();
    EXPECT_STREQ(Network.m_szLobbyInput, "");
    CWireFrame Line;
    ASSERT_TRUE(Pump([&] { return m_Other.ReadUntil(NET_LOBBY_CHAT, Line, 0) && Line.m_uiFrom == 1; }));
    EXPECT_EQ(Line.m_vPayload, WireText("2: hello"));
    EXPECT_EQ(Line.m_uiTo, 1u) << "the game's count after the dropped line set it to 0";
    ASSERT_TRUE(Pump([&] { return std::strcmp(Network.m_szLobbyLines[0], "2: hello") == 0; }));
}

// The host's start message starts the level of that index, or nothing when the list has no such entry;
// the end messages end it, unless the game sent them itself or is already out.
TEST_F(ProtocolOnClient, StartAndEndMessagesStartAndEndTheLevel)
{
    m_Game.m_Tracks.Load(TRACK_LIST_FILE);
    CNetwork& Host = m_Host.m_Net;
    ASSERT_TRUE(Host.SendStartGame(99));
    ASSERT_TRUE(Pump([this] { return m_Log.Count("track 99 is not in the track list") == 1; }));
    EXPECT_FALSE(m_Game.m_Logic.m_bActive);
    ASSERT_TRUE(Host.SendStartGame(1));
    ASSERT_TRUE(Pump([this] { return m_Game.m_Logic.m_bActive; }));
    EXPECT_EQ(m_Game.m_Graphics.m_nScreenState, SCREEN_PLAY);
    EXPECT_GT(m_Game.m_Level.m_vTracks.size(), 0u);

    m_Game.m_Network.m_Players[1].m_bFinished = true;
    ASSERT_TRUE(Host.SendEvent(0, NET_YOU_WIN));
    PumpAWhile();
    EXPECT_TRUE(m_Game.m_Logic.m_bActive) << "a player who is out does not win";
    uint8_t ucMark = '0';
    ASSERT_TRUE(Host.SendToClient(CNetMessage{1, NET_YOU_LOSE, 1, 0, &ucMark}, 1));
    PumpAWhile();
    EXPECT_TRUE(m_Game.m_Logic.m_bActive) << "the game's own message comes back to it and is skipped";
    ASSERT_TRUE(Host.SendEvent(0, NET_YOU_LOSE));
    ASSERT_TRUE(Pump([this] { return !m_Game.m_Logic.m_bActive; }));
    EXPECT_EQ(m_Game.m_Graphics.m_nScreenState, SCREEN_RESULTS);
    EXPECT_FALSE(m_Game.m_Level.m_bWon);
}

// A host bot serves peers that know nothing but the wire layout: the join sequence, relayed chat, score
// tables and aimed powerups; a peer sending garbage, unknown types, impossible slots and a huge size harms
// no one but itself.
TEST(Protocol, AHostBotServesWirePeersAndShrugsOffGarbage)
{
    const uint16_t usPort = FreeLoopbackPort();
    CChildProcess Bot;
    ASSERT_TRUE(Bot.Start(BotCommand({"--host", "--port", std::to_string(usPort), "--quit-after", "60"})));
    CWireClient a, b, Rogue;
    for(int i = 0; i < 50 && !a.Connect(usPort); i++)
    {
        a.Close();
        usleep(50000);
    }
    CWireFrame Frame;
    for(uint32_t uiType : {0u, 1u, 6u})
    {
        ASSERT_TRUE(a.Read(Frame, 2000));
        EXPECT_EQ(Frame.m_uiType, uiType);
    }
    ASSERT_TRUE(b.Connect(usPort));
    ASSERT_TRUE(b.ReadUntil(NET_PLAYER_TABLE, Frame, 2000));
    ASSERT_TRUE(Rogue.Connect(usPort));
    ASSERT_TRUE(Rogue.ReadUntil(NET_PLAYER_TABLE, Frame, 2000));
    for(int i = 0; i < 3 && (i == 0 || Frame.m_vPayload[0] != 4); i++)
        ASSERT_TRUE(a.ReadUntil(NET_PLAYER_TABLE, Frame, 2000));
    ASSERT_EQ(Frame.m_vPayload[0], 4) << "host, a, b and the rogue";

    std::vector<uint8_t> vGarbage(300);
    for(size_t i = 0; i < vGarbage.size(); i++)
        vGarbage[i] = static_cast<uint8_t>(i * 37 + 11);
    vGarbage[0] = 40; // a small size first, so the garbage is read as frames for a while
    for(const std::vector<uint8_t>& vBytes :
        {WireFrame(40, 3, 0, MARK_PAYLOAD), WireFrame(NET_PLAYER_OUT, 3, 99, MARK_PAYLOAD),
         WireFrame(NET_SCORE_UPDATE, 3, 0, ScoreRow(200, 3, 9, 0)), vGarbage,
         WireFrame(NET_GAME_CHAT, 3, 0, std::vector<uint8_t>(1000000, 'x'))})
        Rogue.Send(vBytes);
    EXPECT_TRUE(Rogue.SeesClose(2000));

    ASSERT_TRUE(a.Send(WireFrame(NET_LOBBY_CHAT, 1, 1, WireText("2: hi"))));
    ASSERT_TRUE(b.ReadUntil(NET_LOBBY_CHAT, Frame, 2000));
    EXPECT_EQ(Frame.m_vPayload, WireText("2: hi"));
    ASSERT_TRUE(a.Send(WireFrame(NET_SCORE_UPDATE, 1, 0, ScoreRow(2, 1, 777, 0))));
    ASSERT_TRUE(b.ReadUntil(NET_SCORE_TABLE, Frame, 2000));
    EXPECT_EQ(std::vector<uint8_t>(Frame.m_vPayload.begin() + 24, Frame.m_vPayload.begin() + 44),
              ScoreRow(2, 1, 777, 0));
    ASSERT_TRUE(a.Send(WireFrame(NET_PU_HALT, 1, 2, MARK_PAYLOAD)));
    ASSERT_TRUE(b.ReadUntil(NET_PU_HALT, Frame, 2000));
    EXPECT_EQ(Frame.m_uiFrom, 1u);
    EXPECT_EQ(Frame.m_uiTo, 2u);
    EXPECT_FALSE(a.ReadUntil(NET_PU_HALT, Frame, 200)) << "only the target gets it";

    ASSERT_EQ(Bot.Stop(10000), 0) << Bot.Errors();
    const std::string Report = Bot.Output();
    EXPECT_NE(Report.find(R"("players":[{"id":0,"present":true,"finished":false},{"id":1,"present":true,)"),
              std::string::npos)
        << Report;
    EXPECT_NE(Report.find(R"("lobby_lines":["2: hi"])"), std::string::npos) << Report;
}
