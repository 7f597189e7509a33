#include "net/Messages.h"
#include "net/NetTestSupport.h"
#include "net/Socket.h"

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <unistd.h>

#include <memory>

namespace
{
std::vector<uint32_t> Ids(std::initializer_list<uint32_t> Ids)
{
    return Ids;
}

std::vector<uint8_t> NumberedLine(uint32_t uiLine)
{
    return WireText("line " + std::to_string(uiLine) + std::string(60, '.'));
}
} // namespace

// Three clients join one after another; a fourth that speaks only the wire layout is told its id, its own
// arrival and then the whole table, in that order and in those bytes.
TEST(NetworkLink, ClientsJoiningInTurnGetTheNextIdsAndEveryMachineHoldsTheSameTable)
{
    CPeer Host, a, b, c;
    ASSERT_TRUE(StartHost(Host));
    ASSERT_TRUE(JoinClient(Host, a));
    ASSERT_TRUE(JoinClient(Host, b, {&a}));
    ASSERT_TRUE(JoinClient(Host, c, {&a, &b}));
    EXPECT_EQ(a.m_Net.m_nMyId, 1u);
    EXPECT_EQ(b.m_Net.m_nMyId, 2u);
    EXPECT_EQ(c.m_Net.m_nMyId, 3u);
    ASSERT_TRUE(PumpUntil({&Host, &a, &b, &c}, [&] {
        return ListedIds(a.m_Net) == ListedIds(Host.m_Net) && ListedIds(b.m_Net) == ListedIds(Host.m_Net);
    }));
    EXPECT_EQ(ListedIds(Host.m_Net), Ids({0, 1, 2, 3}));
    EXPECT_EQ(c.m_Net.GetPlayerNumber(3), 4u);

    CWireClient Wire;
    ASSERT_TRUE(Wire.Connect(PortOf(Host)));
    std::vector<CWireFrame> vFrames(3);
    size_t Read = 0;
    ASSERT_TRUE(PumpUntil({&Host, &a, &b, &c}, [&] {
        while(Read < 3 && Wire.Read(vFrames[Read], 0))
            Read++;
        return Read == 3;
    }));
    const std::vector<uint8_t> vId = WireU32(4);
    EXPECT_EQ(vFrames[0].m_uiType, 0u);
    EXPECT_EQ(vFrames[0].m_vPayload, vId);
    EXPECT_EQ(vFrames[1].m_uiType, 1u);
    EXPECT_EQ(vFrames[1].m_vPayload, vId);
    ASSERT_EQ(vFrames[2].m_uiType, 6u);
    const std::vector<uint8_t>& vTable = vFrames[2].m_vPayload;
    ASSERT_EQ(vTable.size(), 68u);
    EXPECT_EQ(vTable[0], 5);
    for(uint8_t i = 0; i < 5; i++)
    {
        EXPECT_EQ(vTable[4 + 8 * i], i) << "entry " << int(i);
        EXPECT_EQ(vTable[8 + 8 * i], 1) << "present";
        EXPECT_EQ(vTable[9 + 8 * i], 0) << "finished";
    }
    ASSERT_TRUE(PumpUntil({&Host, &a, &b, &c}, [&] {
        return ListedIds(a.m_Net).size() == 5 && ListedIds(c.m_Net) == ListedIds(Host.m_Net);
    }));
}

// A departure reaches every other machine; the one behind closes the gap everywhere alike, the host's
// client list moves its last entry into the freed place, and the next newcomer gets a fresh id.
TEST(NetworkLink, ADepartureReachesEveryoneAndNoIdIsGivenTwice)
{
    CPeer Host, a, b, c;
    ASSERT_TRUE(StartHost(Host));
    ASSERT_TRUE(JoinClient(Host, a));
    ASSERT_TRUE(JoinClient(Host, b, {&a}));
    ASSERT_TRUE(JoinClient(Host, c, {&a, &b}));
    CWireClient Watcher;
    uint32_t uiWatcher = 0;
    ASSERT_TRUE(JoinWire(Host, Watcher, uiWatcher));
    EXPECT_EQ(uiWatcher, 4u);

    a.m_Net.Shutdown();
    ASSERT_TRUE(PumpUntil({&Host, &b, &c}, [&] {
        return ListedIds(b.m_Net) == Ids({0, 2, 3, 4}) && ListedIds(c.m_Net) == Ids({0, 2, 3, 4});
    }));
    EXPECT_EQ(ListedIds(Host.m_Net), Ids({0, 2, 3, 4}));
    EXPECT_EQ(Host.m_Net.m_nClients, 3u);
    EXPECT_EQ(Host.m_Net.m_Clients[0].m_nId, 4u) << "the last client moved into the freed place";
    CWireFrame Left;
    ASSERT_TRUE(Watcher.ReadUntil(2, Left, 1000));
    EXPECT_EQ(Left.m_vPayload, WireU32(1));
    EXPECT_EQ(b.m_Net.GetPlayerNumber(2), 2u);

    CPeer d;
    ASSERT_TRUE(JoinClient(Host, d, {&b, &c}));
    EXPECT_EQ(d.m_Net.m_nMyId, 5u);
    ASSERT_TRUE(PumpUntil({&Host, &b, &c, &d}, [&] { return ListedIds(b.m_Net) == Ids({0, 2, 3, 4, 5}); }));
    EXPECT_EQ(ListedIds(d.m_Net), ListedIds(Host.m_Net));
}

// Eight clients are taken; the table lists seven players, so the last two hold ids without slots. The ninth
// connection is never accepted and hears nothing.
TEST(NetworkLink, TheNinthClientIsNotAcceptedAndHearsNothing)
{
    CPeer Host;
    ASSERT_TRUE(StartHost(Host, 8));
    std::vector<std::unique_ptr<CWireClient>> vClients;
    for(int i = 0; i < 9; i++)
    {
        vClients.push_back(std::make_unique<CWireClient>());
        ASSERT_TRUE(vClients.back()->Connect(PortOf(Host)));
    }
    ASSERT_TRUE(PumpUntil({&Host}, [&] { return Host.m_Net.m_nClients == 8; }));
    PumpFor({&Host}, 300);
    EXPECT_EQ(Host.m_Net.m_nClients, 8u);
    EXPECT_EQ(Host.m_Net.m_nPlayers, 7u);
    CWireFrame Frame;
    int iHeard = 0;
    for(const auto& pClient : vClients)
        iHeard += pClient->Read(Frame, 100) ? 1 : 0;
    EXPECT_EQ(iHeard, 8);
    EXPECT_EQ(Host.m_Net.GetPlayerNumber(8), 0u) << "the eighth client has an id and no slot";
}

TEST(NetworkLink, AFrameOfTheLimitGoesOutAndNoSendReachesPastItsPlace)
{
    CPeer Host, a;
    ASSERT_TRUE(StartHost(Host));
    ASSERT_TRUE(JoinClient(Host, a));
    std::vector<uint8_t> vPayload(NET_MAX_FRAME - NET_HEADER_SIZE, 'x');
    CNetMessage Message{static_cast<uint32_t>(vPayload.size()), NET_GAME_CHAT, 1, 0, vPayload.data()};
    EXPECT_TRUE(a.m_Net.SendToServer(Message));
    Message.m_nSize++;
    vPayload.push_back('y');
    Message.m_pData = vPayload.data();
    EXPECT_FALSE(a.m_Net.SendToServer(Message));
    ASSERT_TRUE(PumpUntil(
        {&Host}, [&] { return Host.m_Net.HasMessage(); }, 3000, false));
    uint8_t aPayload[NET_PAYLOAD_BUFFER];
    CNetMessage Received;
    Received.m_pData = aPayload;
    ASSERT_TRUE(Host.m_Net.GetMessage(Received));
    EXPECT_EQ(Received.m_nSize, NET_MAX_FRAME - NET_HEADER_SIZE);
    PumpFor({&Host}, 100);
    EXPECT_FALSE(Host.m_Net.HasMessage()) << "the frame over the limit was never sent";

    EXPECT_FALSE(a.m_Net.SendToAll(Message)) << "only a host sends to all";
    Message.m_nSize = 1;
    EXPECT_TRUE(Host.m_Net.SendToClient(Message, 77)) << "nobody holds id 77: nothing to fail";
}

// Given no address, a client joins a host on its own machine; with no host there, the link stays down.
TEST(NetworkLink, AClientWithoutAnAddressJoinsThisMachineAndOneWithoutAHostStaysAlone)
{
    CPeer Host, a;
    ASSERT_TRUE(StartHost(Host));
    ASSERT_TRUE(a.m_Net.Init(&a.m_Events, NET_MODE_CLIENT, PortOf(Host), "", NET_MAX_FRAME, GAME_MAX_CLIENTS));
    EXPECT_STREQ(a.m_Net.m_szServer, "LOCALHOST");
    ASSERT_TRUE(PumpUntil({&Host, &a}, [&] { return a.m_Net.m_nMyId == 1; }));

    CLogRecorder Log;
    CPeer Alone;
    const uint16_t usPort = FreeLoopbackPort();
    EXPECT_FALSE(Alone.m_Net.Init(&Alone.m_Events, NET_MODE_CLIENT, usPort, "127.0.0.1", NET_MAX_FRAME, 8));
    EXPECT_EQ(Log.Lines().back(),
              "error: CreateClient(Port:" + std::to_string(usPort) + " to Server-IP:127.0.0.1) failed");
    EXPECT_FALSE(Alone.m_Net.m_bRunning);
    EXPECT_FALSE(Alone.m_Net.HasMessage());
    EXPECT_EQ(Alone.m_Net.GetPlayerNumber(Alone.m_Net.m_nMyId), 1u) << "alone in the lobby as Player 1";
}

// A frame split into single bytes is relayed whole; a frame announcing more than any message cuts off its
// sender alone, who then leaves like anyone else, and the others talk on.
TEST(NetworkLink, SplitFramesArriveWholeAndAnOversizedFrameCutsOffOnlyItsSender)
{
    CLogRecorder Log;
    CPeer Host;
    ASSERT_TRUE(StartHost(Host));
    CWireClient Speaker, Listener, Rogue;
    uint32_t uiSpeaker = 0, uiListener = 0, uiRogue = 0;
    ASSERT_TRUE(JoinWire(Host, Speaker, uiSpeaker));
    ASSERT_TRUE(JoinWire(Host, Listener, uiListener));
    ASSERT_TRUE(JoinWire(Host, Rogue, uiRogue));

    const std::vector<uint8_t> vLine = WireFrame(NET_LOBBY_CHAT, uiSpeaker, 1, WireText("2: one byte at a time"));
    for(uint8_t byByte : vLine)
    {
        ASSERT_TRUE(Speaker.Send({byByte}));
        PumpFor({&Host}, 2);
    }
    CWireFrame Relayed;
    ASSERT_TRUE(Listener.ReadUntil(NET_LOBBY_CHAT, Relayed, 2000));
    EXPECT_EQ(Relayed.m_uiFrom, uiSpeaker);
    EXPECT_EQ(Relayed.m_vPayload, WireText("2: one byte at a time"));

    ASSERT_TRUE(Rogue.Send(WireFrame(NET_GAME_CHAT, uiRogue, 0, std::vector<uint8_t>(NET_MAX_PAYLOAD + 1, 'z'))));
    ASSERT_TRUE(PumpUntil({&Host}, [&] { return Host.m_Net.m_nPlayers == 3; }));
    EXPECT_EQ(Log.Count("cut off"), 1u);
    EXPECT_TRUE(Rogue.SeesClose(1000));
    CWireFrame Left;
    ASSERT_TRUE(Listener.ReadUntil(NET_PLAYER_LEFT, Left, 1000));
    EXPECT_EQ(Left.m_vPayload, WireU32(uiRogue));
    ASSERT_TRUE(Speaker.Send(WireFrame(NET_LOBBY_CHAT, uiSpeaker, 2, WireText("2: still here"))));
    ASSERT_TRUE(PumpUntil({&Host}, [&] { return Listener.ReadUntil(NET_LOBBY_CHAT, Relayed, 0); }));
    EXPECT_EQ(Relayed.m_vPayload, WireText("2: still here"));
}

// A client that stops reading never holds the host up: what it has no room for waits in its own queue
// until that passes its limit, then it is cut off and leaves like anyone else, while a client that reads
// gets every line, whole and in order.
TEST(NetworkLink, AClientThatStopsReadingIsCutOffAndTheOthersHearEveryLineInOrder)
{
    CLogRecorder Log;
    CPeer Host;
    ASSERT_TRUE(StartHost(Host));
    CWireClient Speaker, Listener, Sleeper;
    uint32_t uiSpeaker = 0, uiListener = 0, uiSleeper = 0;
    ASSERT_TRUE(JoinWire(Host, Sleeper, uiSleeper));
    const int iSmall = 4096;
    setsockopt(Sleeper.m_Socket, SOL_SOCKET, SO_RCVBUF, &iSmall, sizeof(iSmall));
    ASSERT_TRUE(JoinWire(Host, Speaker, uiSpeaker));
    ASSERT_TRUE(JoinWire(Host, Listener, uiListener));

    const uint32_t uiLines = 6000; // half a megabyte of chat: several times what may wait for the sleeper
    uint32_t uiHeard = 0;
    bool bInOrder = true;
    const auto fnHear = [&] {
        CWireFrame Frame;
        while(Speaker.Read(Frame, 0)) // its own lines come back to it too
        {
        }
        while(Listener.Read(Frame, 0))
        {
            if(Frame.m_uiType != NET_LOBBY_CHAT)
                continue;
            bInOrder = bInOrder && Frame.m_vPayload == NumberedLine(uiHeard);
            uiHeard++;
        }
        return false;
    };
    for(uint32_t uiSent = 0; uiSent < uiLines; uiSent += 100)
    {
        std::vector<uint8_t> vBatch;
        for(uint32_t i = uiSent; i < uiSent + 100; i++)
        {
            const std::vector<uint8_t> vFrame = WireFrame(NET_LOBBY_CHAT, uiSpeaker, 1, NumberedLine(i));
            vBatch.insert(vBatch.end(), vFrame.begin(), vFrame.end());
        }
        ASSERT_TRUE(Speaker.Send(vBatch));
        PumpUntil(
            {&Host}, [&] { return fnHear() || uiHeard >= uiSent + 100; }, 3000);
        ASSERT_EQ(uiHeard, uiSent + 100);
    }
    EXPECT_TRUE(bInOrder);
    EXPECT_EQ(Log.Count("wait for a peer that does not read"), 1u);
    ASSERT_TRUE(PumpUntil({&Host}, [&] { return Host.m_Net.m_nPlayers == 3; }));
    EXPECT_EQ(ListedIds(Host.m_Net), std::vector<uint32_t>({0, uiSpeaker, uiListener}));
}

// Real bots: a host and three clients join in turn, the last says hello, the second leaves; every bot that
// stays ends with the same table (the host is stopped first, which leaves the clients' tables as they were),
// and the lobby line reached those who were there when it was sent.
TEST(NetworkLink, BotsJoiningChattingAndLeavingAgreeOnTheTable)
{
    const std::string Port = std::to_string(FreeLoopbackPort());
    CChildProcess Host, First, Second, Third;
    ASSERT_TRUE(Host.Start(BotCommand({"--host", "--port", Port})));
    usleep(300000);
    ASSERT_TRUE(First.Start(BotCommand({"--join", "127.0.0.1", "--port", Port})));
    usleep(300000);
    ASSERT_TRUE(Second.Start(BotCommand({"--join", "127.0.0.1", "--port", Port, "--leave-after", "1"})));
    usleep(300000);
    ASSERT_TRUE(Third.Start(BotCommand({"--join", "127.0.0.1", "--port", Port, "--chat", "hello all"})));
    ASSERT_EQ(Second.Wait(10000), 0) << Second.Errors();
    usleep(1500000);
    for(CChildProcess* pBot : {&Host, &First, &Third})
        ASSERT_EQ(pBot->Stop(10000), 0) << pBot->Errors();
    const std::string Table =
        R"("players":[{"id":0,"present":true,"finished":false},{"id":1,"present":true,"finished":false},)"
        R"({"id":3,"present":true,"finished":false}])";
    for(CChildProcess* pBot : {&Host, &First, &Third})
    {
        EXPECT_NE(pBot->Output().find(Table), std::string::npos) << pBot->Output();
        EXPECT_NE(pBot->Output().find(R"("lobby_lines":["4: hello all"])"), std::string::npos) << pBot->Output();
    }
    EXPECT_NE(Second.Output().find(R"({"my_id":2,"number":3,)"), std::string::npos) << Second.Output();
    EXPECT_NE(Third.Output().find(R"({"my_id":3,"number":3,)"), std::string::npos) << Third.Output();
}
