// Attacks on real games over loopback: a host bot beset by peers that stall, stop reading, flood and churn,
// and client bots that join hostile hosts. Every attack runs in a thread of its own, stops by itself within its
// time, and the honest players' reports show what the attack changed for them.
#include "net/Messages.h"
#include "net/NetTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <arpa/inet.h>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <netinet/in.h>
#include <poll.h>
#include <random>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace
{
typedef std::chrono::steady_clock CClock;

constexpr int ATTACK_MS = 5000;
constexpr int CHURN_MS = 20000; // a thousand joins and departures take the host a few seconds

bool Before(CClock::time_point Deadline)
{
    return CClock::now() < Deadline;
}

CClock::time_point In(int iMs)
{
    return CClock::now() + std::chrono::milliseconds(iMs);
}

// A connect that gives up after a while: a host whose backlog is full drops the handshake, and a plain connect
// would then wait for seconds.
int ConnectWithin(uint16_t usPort, int iMs, int iReceiveBuffer = 0)
{
    const int Socket = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0);
    if(iReceiveBuffer > 0)
        setsockopt(Socket, SOL_SOCKET, SO_RCVBUF, &iReceiveBuffer, sizeof(iReceiveBuffer));
    const sockaddr_in Address = Loopback(usPort);
    connect(Socket, reinterpret_cast<const sockaddr*>(&Address), sizeof(Address));
    pollfd Entry{Socket, POLLOUT, 0};
    int iError = -1;
    socklen_t Length = sizeof(iError);
    if(poll(&Entry, 1, iMs) != 1 || getsockopt(Socket, SOL_SOCKET, SO_ERROR, &iError, &Length) != 0 || iError != 0)
    {
        close(Socket);
        return -1;
    }
    return Socket;
}

// Writes as much as the peer takes until the deadline, reading and dropping what comes back so that only the
// writing is tested; the bytes written.
uint64_t WriteUntil(int Socket, CClock::time_point Deadline, const std::function<std::vector<uint8_t>()>& fnNext)
{
    uint64_t ulWritten = 0;
    std::vector<uint8_t> vBytes = fnNext();
    size_t Done = 0;
    uint8_t aScratch[65536];
    while(Before(Deadline))
    {
        pollfd Entry{Socket, POLLOUT | POLLIN, 0};
        if(poll(&Entry, 1, 20) <= 0)
            continue;
        if((Entry.revents & POLLIN) && recv(Socket, aScratch, sizeof(aScratch), MSG_DONTWAIT) == 0)
            break; // cut off
        const ssize_t iSent = send(Socket, vBytes.data() + Done, vBytes.size() - Done, MSG_DONTWAIT | MSG_NOSIGNAL);
        if(iSent < 0 && errno != EAGAIN)
            break;
        Done += iSent > 0 ? static_cast<size_t>(iSent) : 0;
        ulWritten += iSent > 0 ? static_cast<uint64_t>(iSent) : 0;
        if(Done == vBytes.size())
        {
            vBytes = fnNext();
            Done = 0;
        }
    }
    return ulWritten;
}

void HoldUntil(CClock::time_point Deadline)
{
    while(Before(Deadline))
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
}

// Half a frame, and then nothing at all.
void SendHalfAFrame(uint16_t usPort, CClock::time_point Deadline)
{
    const int Socket = ConnectWithin(usPort, 2000);
    const std::vector<uint8_t> vFrame = WireFrame(NET_LOBBY_CHAT, 0, 0, WireText("never finished"));
    send(Socket, vFrame.data(), vFrame.size() / 2, MSG_NOSIGNAL);
    HoldUntil(Deadline);
    close(Socket);
}

// A small window that is never read: whatever the host sends it piles up on the host's side.
void NeverRead(uint16_t usPort, CClock::time_point Deadline)
{
    const int Socket = ConnectWithin(usPort, 2000, 4096);
    HoldUntil(Deadline);
    close(Socket);
}

// Lobby lines in its own name, as fast as the connection takes them; the bytes sent.
uint64_t FloodChat(uint16_t usPort, CClock::time_point Deadline)
{
    CWireClient Flooder;
    CWireFrame Assign;
    if(!Flooder.Connect(usPort) || !Flooder.ReadUntil(NET_ASSIGN_ID, Assign, 2000) || Assign.m_vPayload.size() != 4)
        return 0;
    const uint32_t uiId = Assign.m_vPayload[0] | Assign.m_vPayload[1] << 8;
    std::vector<uint8_t> vBatch;
    for(int i = 0; i < 100; i++)
    {
        const std::vector<uint8_t> vFrame = WireFrame(NET_LOBBY_CHAT, uiId, 1, WireText("flood flood flood"));
        vBatch.insert(vBatch.end(), vFrame.begin(), vFrame.end());
    }
    return WriteUntil(Flooder.m_Socket, Deadline, [&vBatch] { return vBatch; });
}

// Connections opened and dropped one after another. The host takes one connection at a time into a backlog of
// 32, so a churn faster than that has handshakes dropped by the system; those are given up after a while.
struct CChurn
{
    uint32_t m_uiTried = 0;
    uint32_t m_uiMade = 0;
};

CChurn Churn(uint16_t usPort, uint32_t uiCount, CClock::time_point Deadline)
{
    CChurn Result;
    for(; Result.m_uiTried < uiCount && Before(Deadline); Result.m_uiTried++)
    {
        const int Socket = ConnectWithin(usPort, 200);
        Result.m_uiMade += Socket != -1 ? 1 : 0;
        if(Socket != -1)
            close(Socket);
    }
    return Result;
}

uint64_t ResidentKb(int iPid)
{
    std::ifstream Status("/proc/" + std::to_string(iPid) + "/status");
    std::string Line;
    while(std::getline(Status, Line))
    {
        if(Line.rfind("VmRSS:", 0) == 0)
            return std::strtoull(Line.c_str() + 6, nullptr, 10);
    }
    return 0;
}

// The text of one field of a bot's report: a number, or an array up to its closing bracket.
std::string Field(const std::string& Report, const std::string& Name)
{
    const size_t Start = Report.find("\"" + Name + "\":");
    if(Start == std::string::npos)
        return "";
    const size_t From = Start + Name.size() + 3;
    const size_t To = Report[From] == '[' ? Report.find("]", From) + 1 : Report.find_first_of(",}", From);
    return Report.substr(From, To - From);
}

uint32_t SlowestSecond(const std::string& Report)
{
    return static_cast<uint32_t>(std::strtoul(Field(Report, "slowest_second").c_str(), nullptr, 10));
}

bool SanitizerSpoke(const std::string& Errors)
{
    return Errors.find("AddressSanitizer") != std::string::npos || Errors.find("runtime error:") != std::string::npos;
}

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool SANITIZED = true; // its allocator holds on to freed memory, so resident size says little
#else
constexpr bool SANITIZED = false;
#endif
#else
constexpr bool SANITIZED = false;
#endif
} // namespace

// While one peer stalls on half a frame, one never reads, one floods the lobby and a thousand connections
// come and go in a row, the host keeps over 50 frames a second and a bounded memory, the peer that stopped reading is
// cut off, and a player who joins in the middle of it all is heard by the others and listed by everyone.
TEST(Rogue, StallingFloodingAndChurningPeersNeitherStopTheHostNorSilenceThePlayers)
{
    const uint16_t usPort = FreeLoopbackPort();
    const std::string Port = std::to_string(usPort);
    CChildProcess Host, Listener, Speaker;
    ASSERT_TRUE(Host.Start(BotCommand({"--host", "--port", Port, "--quit-after", "60"})));
    usleep(300000);
    ASSERT_TRUE(Listener.Start(BotCommand({"--join", "127.0.0.1", "--port", Port, "--quit-after", "60"})));
    usleep(700000);
    const uint64_t ulBaseKb = ResidentKb(Host.Pid());

    const CClock::time_point Deadline = In(ATTACK_MS);
    std::atomic<uint64_t> ulFlooded{0};
    CChurn Churned;
    std::vector<std::thread> vAttacks;
    vAttacks.emplace_back(SendHalfAFrame, usPort, Deadline);
    vAttacks.emplace_back(NeverRead, usPort, Deadline);
    vAttacks.emplace_back([&] { ulFlooded = FloodChat(usPort, Deadline); });
    std::atomic<bool> bChurning{true};
    vAttacks.emplace_back([&] {
        Churned = Churn(usPort, 1000, In(CHURN_MS));
        bChurning = false;
    });
    usleep(1500000);
    ASSERT_TRUE(Speaker.Start(BotCommand(
        {"--join", "127.0.0.1", "--port", Port, "--chat", "heard through the storm", "--quit-after", "60"})));
    uint64_t ulPeakKb = 0;
    while(Before(Deadline) || bChurning)
    {
        ulPeakKb = std::max(ulPeakKb, ResidentKb(Host.Pid()));
        usleep(100000);
    }
    for(std::thread& Attack : vAttacks)
        Attack.join();
    usleep(1000000);
    for(CChildProcess* pBot : {&Host, &Listener, &Speaker})
        ASSERT_EQ(pBot->Stop(10000), 0) << pBot->Errors().substr(0, 2000);

    EXPECT_GT(ulFlooded.load(), 512u * 1024) << "the flood never got going";
    EXPECT_EQ(Churned.m_uiTried, 1000u);
    EXPECT_GT(Churned.m_uiMade, 500u);
    const std::string HostReport = Host.Output(), ListenerReport = Listener.Output();
    EXPECT_GE(SlowestSecond(HostReport), 50u) << HostReport;
    EXPECT_GE(SlowestSecond(ListenerReport), 50u) << ListenerReport;
    EXPECT_NE(Host.Errors().find("does not read"), std::string::npos);
    EXPECT_NE(Field(ListenerReport, "lobby_lines").find(": heard through the storm"), std::string::npos);
    EXPECT_EQ(Field(ListenerReport, "players"), Field(HostReport, "players"));
    EXPECT_EQ(Field(Speaker.Output(), "players"), Field(HostReport, "players"));
    EXPECT_EQ(Field(HostReport, "players").rfind("[{\"id\":0,", 0), 0u) << HostReport;
    if(!SANITIZED)
    {
        EXPECT_LT(ulPeakKb, ulBaseKb + 16 * 1024) << "resident memory grew from " << ulBaseKb << " kB";
    }
}

namespace
{
// A host that is no game: it takes one connection and does to it what the behaviour says until the deadline.
typedef std::function<void(int Socket, CClock::time_point Deadline)> CHostileHost;

void ServeOnce(int Listener, const CHostileHost& fnBehave, CClock::time_point Deadline)
{
    pollfd Entry{Listener, POLLIN, 0};
    if(poll(&Entry, 1, 5000) != 1)
        return;
    const int Socket = accept(Listener, nullptr, nullptr);
    fnBehave(Socket, Deadline);
    close(Socket);
}

int ListenOnLoopback()
{
    const int Socket = socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in Address = Loopback(0);
    bind(Socket, reinterpret_cast<const sockaddr*>(&Address), sizeof(Address));
    listen(Socket, 4);
    return Socket;
}

std::vector<uint8_t> RandomBytes(std::mt19937& Random, size_t Count)
{
    std::vector<uint8_t> vBytes(Count);
    for(uint8_t& Byte : vBytes)
        Byte = static_cast<uint8_t>(Random());
    return vBytes;
}

// Frames of every type with sizes up to the limit and any bytes inside, tables most of all.
std::vector<uint8_t> RandomFrames(std::mt19937& Random)
{
    std::vector<uint8_t> vBatch;
    for(int i = 0; i < 50; i++)
    {
        const uint32_t uiTable = Random() % 2 ? NET_PLAYER_TABLE : NET_SCORE_TABLE;
        const uint32_t uiType = Random() % 3 == 0 ? static_cast<uint32_t>(Random() % 40) : uiTable;
        const size_t Size = uiType == NET_PLAYER_TABLE  ? PLAYER_TABLE_SIZE
                            : uiType == NET_SCORE_TABLE ? SCORE_TABLE_SIZE
                                                        : 1 + Random() % NET_MAX_PAYLOAD;
        std::vector<uint8_t> vPayload = RandomBytes(Random, Size);
        if(Size >= 4) // counts around the table's size
            std::copy_n(WireU32(Random() % 12).begin(), 4, vPayload.begin());
        const std::vector<uint8_t> vFrame = WireFrame(uiType, Random() % 9, Random() % 9, vPayload);
        vBatch.insert(vBatch.end(), vFrame.begin(), vFrame.end());
    }
    return vBatch;
}

void SendGarbage(int Socket, CClock::time_point Deadline)
{
    std::mt19937 Random(7);
    WriteUntil(Socket, Deadline, [&Random] { return RandomBytes(Random, 4096); });
}

void SendEndlessTables(int Socket, CClock::time_point Deadline)
{
    std::mt19937 Random(11);
    const std::vector<uint8_t> vAssign = WireFrame(NET_ASSIGN_ID, 0, 0, WireU32(1));
    send(Socket, vAssign.data(), vAssign.size(), MSG_NOSIGNAL);
    WriteUntil(Socket, Deadline, [&Random] { return RandomFrames(Random); });
}

void AnnounceAHugeFrame(int Socket, CClock::time_point Deadline)
{
    const std::vector<uint8_t> vHeader = {0xF0, 0xFF, 0xFF, 0xFF, 6, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
    send(Socket, vHeader.data(), vHeader.size(), MSG_NOSIGNAL);
    HoldUntil(Deadline);
}

void NeverFinishAFrame(int Socket, CClock::time_point Deadline)
{
    std::vector<uint8_t> vFrame = WireFrame(NET_PLAYER_TABLE, 0, 0, std::vector<uint8_t>(NET_MAX_PAYLOAD, 1));
    send(Socket, vFrame.data(), vFrame.size() - 1, MSG_NOSIGNAL);
    HoldUntil(Deadline);
}

void SayNothing(int, CClock::time_point Deadline)
{
    HoldUntil(Deadline);
}
} // namespace

// A client that joins a hostile host keeps its 50 frames a second and ends cleanly, whatever the host sends:
// garbage, endless tables of any content, a frame larger than any message, one that never completes, or
// nothing at all.
TEST(Rogue, AClientOfAHostileHostStaysResponsiveAndEndsCleanly)
{
    const std::vector<std::pair<std::string, CHostileHost>> vHosts = {
        {"garbage", SendGarbage},
        {"endless tables", SendEndlessTables},
        {"huge frame", AnnounceAHugeFrame},
        {"unfinished frame", NeverFinishAFrame},
        {"silence", SayNothing},
    };
    const CClock::time_point Deadline = In(ATTACK_MS);
    std::vector<int> vListeners;
    std::vector<std::thread> vServers;
    std::vector<std::unique_ptr<CChildProcess>> vBots;
    for(const auto& Hostile : vHosts)
    {
        vListeners.push_back(ListenOnLoopback());
        vServers.emplace_back(ServeOnce, vListeners.back(), Hostile.second, Deadline);
        vBots.push_back(std::make_unique<CChildProcess>());
        const std::string Port = std::to_string(BoundPort(vListeners.back()));
        ASSERT_TRUE(vBots.back()->Start(BotCommand({"--join", "127.0.0.1", "--port", Port, "--quit-after", "4"})));
    }
    for(size_t i = 0; i < vHosts.size(); i++)
    {
        CChildProcess& Bot = *vBots[i];
        EXPECT_EQ(Bot.Wait(15000), 0) << vHosts[i].first << ": " << Bot.Errors().substr(0, 2000);
        EXPECT_GE(SlowestSecond(Bot.Output()), 50u) << vHosts[i].first << ": " << Bot.Output();
        EXPECT_FALSE(SanitizerSpoke(Bot.Errors())) << vHosts[i].first;
    }
    EXPECT_NE(vBots[2]->Errors().find("cut off"), std::string::npos);
    for(std::thread& Server : vServers)
        Server.join();
    for(int Listener : vListeners)
        close(Listener);
}
