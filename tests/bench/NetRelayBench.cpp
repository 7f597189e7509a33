// How quickly the host passes score updates on, and what that costs it. A real bot hosts; seven wire clients
// in this process send their score rows every 10 ms, each with a new score, and every score table that comes
// back is timed against the send whose score it first shows. The host's CPU time and the bytes it sends are
// read over the same window.
#include "net/Messages.h"
#include "net/NetTestSupport.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sstream>
#include <string>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

namespace
{
using CClock = std::chrono::steady_clock;
using CTime = CClock::time_point;

constexpr uint32_t CLIENTS = 7;
constexpr CClock::duration SEND_PERIOD = std::chrono::milliseconds(10);
constexpr double DEFAULT_SECONDS = 10.0;
constexpr double SMOKE_SECONDS = 1.0;
constexpr double MAX_SECONDS = 3600.0;
constexpr int SETUP_MS = 10000; // for the host to come up, and for each join to be listed
constexpr int CONNECT_RETRY_MS = 50;
constexpr CClock::duration DRAIN = std::chrono::milliseconds(200); // the tables of the last sends on their way
// Should this process die without stopping the host, the host still ends this long after the window.
constexpr int HOST_GRACE_S = 120;
constexpr uint32_t ROUNDS_PER_SECOND = 200000; // wakeups of the loop at the most: one per 5 us
constexpr uint32_t FRAMES_PER_WAKEUP = 1000;   // frames taken from one socket at one wakeup at the most
constexpr float DANGER = 0.25f;
constexpr int EXIT_SETUP_FAILED = 1;
constexpr int EXIT_BAD_USAGE = 2;
constexpr const char* USAGE = "trelvane_net_bench [--seconds S | --smoke]";

struct CBenchClient
{
    CWireClient m_Wire;
    uint32_t m_uiId = 0;
    uint32_t m_uiNumber = 0;       // the row number; 0 when the host's table has no slot for this client
    CWireFrame m_Table;            // the last player table read while joining
    CTime m_Due;                   // when the next update goes out
    std::vector<CTime> m_vSent;    // the send time of each score, score 1 first
    std::vector<uint32_t> m_vSeen; // by client: the highest score of that client seen in a table here
};
using CClients = std::array<CBenchClient, CLIENTS>;

struct CMeasure
{
    std::vector<int64_t> m_vLatencyNs;
    uint64_t m_ulUpdates = 0;
    uint64_t m_ulTables = 0; // score tables received in the window, by all clients
    uint64_t m_ulBytes = 0;  // bytes received in the window, by all clients
    double m_dSeconds = 0.0;
    double m_dHostCpu = 0.0;  // percent of one core
    double m_dBenchCpu = 0.0; // this process's own, likewise
    bool m_bLost = false;     // the host closed a connection
};

bool ParseOptions(int iArgs, char** ppArgs, double& dSeconds)
{
    for(int i = 1; i < iArgs; i++)
    {
        const std::string Arg = ppArgs[i];
        if(Arg == "--smoke")
        {
            dSeconds = SMOKE_SECONDS;
            continue;
        }
        if(Arg != "--seconds" || i + 1 == iArgs)
            return false;
        char* pEnd = nullptr;
        dSeconds = std::strtod(ppArgs[++i], &pEnd);
        if(*pEnd != '\0' || !(dSeconds > 0.0 && dSeconds <= MAX_SECONDS))
            return false;
    }
    return true;
}

// User and system time of a process ("self" or an id), from its stat line.
double CpuSeconds(const std::string& Process)
{
    std::ifstream Stat("/proc/" + Process + "/stat");
    std::string Line;
    std::getline(Stat, Line);
    const size_t NameEnd = Line.rfind(')');
    if(NameEnd == std::string::npos)
        return 0.0;
    std::istringstream Fields(Line.substr(NameEnd + 1));
    std::string Skipped;
    for(int i = 0; i < 11; i++) // the state up to cmajflt
        Fields >> Skipped;
    unsigned long long ullUser = 0, ullSystem = 0;
    Fields >> ullUser >> ullSystem;
    return static_cast<double>(ullUser + ullSystem) / static_cast<double>(sysconf(_SC_CLK_TCK));
}

// The bench's clients send far more often than a player's game does; none of their sends waits for the ack of
// the one before, so that the time measured is the host's.
bool ConnectWhenUp(CWireClient& Wire, uint16_t usPort)
{
    const int iNoDelay = 1;
    for(int i = 0; i < SETUP_MS / CONNECT_RETRY_MS; i++)
    {
        if(Wire.Connect(usPort))
            return setsockopt(Wire.m_Socket, IPPROTO_TCP, TCP_NODELAY, &iNoDelay, sizeof(iNoDelay)) == 0;
        Wire.Close();
        usleep(CONNECT_RETRY_MS * 1000);
    }
    return false;
}

// The table the host sends once it has listed a join comes after that join's notice; with one join at a time
// nothing else comes between them.
bool ReadTableAfterJoin(CBenchClient& Client, uint32_t uiJoinedId)
{
    CWireFrame Joined;
    for(uint32_t i = 0; i <= CLIENTS; i++)
    {
        if(!Client.m_Wire.ReadUntil(NET_PLAYER_JOINED, Joined, SETUP_MS) || Joined.m_vPayload.size() != 4)
            return false;
        if(ReadU32(Joined.m_vPayload.data()) == uiJoinedId)
            return Client.m_Wire.ReadUntil(NET_PLAYER_TABLE, Client.m_Table, SETUP_MS) &&
                   Client.m_Table.m_vPayload.size() == PLAYER_TABLE_SIZE;
    }
    return false;
}

uint32_t ListedCount(const CWireFrame& Table)
{
    return std::min(ReadU32(Table.m_vPayload.data()), TABLE_ENTRIES);
}

uint32_t NumberIn(const CWireFrame& Table, uint32_t uiId)
{
    for(uint32_t i = 0; i < ListedCount(Table); i++)
    {
        if(ReadPlayerEntry(Table.m_vPayload.data(), i).m_nId == uiId)
            return i + 1;
    }
    return 0;
}

// One join at a time, each listed before the next; then everyone reads on to the table of the last join.
bool JoinAll(CClients& aClients, uint16_t usPort)
{
    for(CBenchClient& Client : aClients)
    {
        CWireFrame Assign;
        if(!ConnectWhenUp(Client.m_Wire, usPort) || !Client.m_Wire.ReadUntil(NET_ASSIGN_ID, Assign, SETUP_MS) ||
           Assign.m_vPayload.size() != 4)
            return false;
        Client.m_uiId = ReadU32(Assign.m_vPayload.data());
        if(!ReadTableAfterJoin(Client, Client.m_uiId))
            return false;
    }
    for(uint32_t i = 0; i + 1 < CLIENTS; i++)
    {
        if(!ReadTableAfterJoin(aClients[i], aClients.back().m_uiId))
            return false;
    }
    for(CBenchClient& Client : aClients)
        Client.m_uiNumber = NumberIn(Client.m_Table, Client.m_uiId);
    return true;
}

uint32_t CountSenders(const CClients& aClients)
{
    return static_cast<uint32_t>(std::count_if(aClients.begin(), aClients.end(),
                                               [](const CBenchClient& Client) { return Client.m_uiNumber != 0; }));
}

// All clients in one thread, so that the bench takes as little as it can of the cores it shares with the host:
// sends on a schedule, and one wait on every socket between them.
class CRelayRun
{
public:
    CRelayRun(CClients& aClients, CMeasure& Measure) : m_aClients(aClients), m_Measure(Measure)
    {
        for(const CBenchClient& Client : m_aClients)
            m_vPoll.push_back({Client.m_Wire.m_Socket, POLLIN | POLLRDHUP, 0});
    }

    // The senders take turns across the period, so that the host gets a steady stream rather than bursts.
    void Schedule(CTime Start, double dSeconds)
    {
        const uint32_t uiSenders = CountSenders(m_aClients);
        const size_t Sends =
            static_cast<size_t>(std::ceil(dSeconds / std::chrono::duration<double>(SEND_PERIOD).count()));
        uint32_t uiTurn = 0;
        for(CBenchClient& Client : m_aClients)
        {
            Client.m_vSeen.assign(CLIENTS, 0);
            Client.m_vSent.reserve(Sends + 1);
            if(Client.m_uiNumber != 0)
                Client.m_Due = Start + SEND_PERIOD * uiTurn++ / uiSenders;
        }
        m_Measure.m_vLatencyNs.reserve(Sends * uiSenders * (CLIENTS - 1));
    }

    void Loop(CTime Until, bool bSending)
    {
        const double dSeconds = std::chrono::duration<double>(Until - CClock::now()).count();
        const uint64_t ulRounds = static_cast<uint64_t>(std::max(dSeconds, 0.0) * ROUNDS_PER_SECOND);
        for(uint64_t i = 0; i < ulRounds && !m_Measure.m_bLost; i++)
        {
            const CTime Now = CClock::now();
            if(Now >= Until)
                return;
            if(bSending)
                SendDue(Now);
            if(Wait(bSending ? std::min(NextDue(), Until) : Until))
                ReadReady(bSending);
        }
    }

private:
    void SendDue(CTime Now)
    {
        for(CBenchClient& Client : m_aClients)
        {
            if(Client.m_uiNumber == 0 || Client.m_Due > Now)
                continue;
            Send(Client);
            // A loop that fell a whole period behind starts afresh rather than sending a burst to catch up.
            Client.m_Due += SEND_PERIOD;
            if(Client.m_Due <= Now)
                Client.m_Due = Now + SEND_PERIOD;
        }
    }

    void Send(CBenchClient& Client)
    {
        const uint32_t uiScore = static_cast<uint32_t>(Client.m_vSent.size()) + 1;
        std::vector<uint8_t> vFrame(NET_HEADER_SIZE + SCORE_ROW_SIZE);
        WriteHeader(vFrame.data(), CNetMessage{SCORE_ROW_SIZE, NET_SCORE_UPDATE, Client.m_uiId, 0, nullptr});
        WriteScoreRow(vFrame.data() + NET_HEADER_SIZE,
                      CScoreRow{Client.m_uiNumber, Client.m_uiId, uiScore, DANGER, false});
        Client.m_vSent.push_back(CClock::now());
        if(Client.m_Wire.Send(vFrame))
            m_Measure.m_ulUpdates++;
        else
            m_Measure.m_bLost = true;
    }

    CTime NextDue() const
    {
        CTime Next = CTime::max();
        for(const CBenchClient& Client : m_aClients)
        {
            if(Client.m_uiNumber != 0)
                Next = std::min(Next, Client.m_Due);
        }
        return Next;
    }

    // True when a socket has something; the wait is timed to the microsecond, not the millisecond.
    bool Wait(CTime Until)
    {
        const int64_t llNs =
            std::max<int64_t>(std::chrono::duration_cast<std::chrono::nanoseconds>(Until - CClock::now()).count(), 0);
        const timespec Timeout{static_cast<time_t>(llNs / 1000000000), static_cast<long>(llNs % 1000000000)};
        return ppoll(m_vPoll.data(), m_vPoll.size(), &Timeout, nullptr) > 0;
    }

    // The moment a socket is seen ready is the arrival time of what it holds.
    void ReadReady(bool bInWindow)
    {
        for(uint32_t j = 0; j < CLIENTS; j++)
        {
            if(m_vPoll[j].revents == 0)
                continue;
            const CTime Arrival = CClock::now();
            CWireFrame Frame;
            uint32_t uiFrames = 0;
            while(uiFrames < FRAMES_PER_WAKEUP && m_aClients[j].m_Wire.Read(Frame, 0))
            {
                Take(Frame, j, Arrival, bInWindow);
                uiFrames++;
            }
            if(uiFrames == 0 && (m_vPoll[j].revents & (POLLRDHUP | POLLHUP | POLLERR)))
                m_Measure.m_bLost = true;
        }
    }

    void Take(const CWireFrame& Frame, uint32_t uiReceiver, CTime Arrival, bool bInWindow)
    {
        if(bInWindow)
            m_Measure.m_ulBytes += NET_HEADER_SIZE + Frame.m_uiSize;
        if(Frame.m_uiType != NET_SCORE_TABLE || Frame.m_vPayload.size() != SCORE_TABLE_SIZE)
            return;
        m_Measure.m_ulTables += bInWindow ? 1 : 0;
        const uint32_t uiRows = std::min(ReadU32(Frame.m_vPayload.data()), TABLE_ENTRIES);
        for(uint32_t r = 0; r < uiRows; r++)
            TakeRow(ReadScoreRow(Frame.m_vPayload.data() + 4 + SCORE_ROW_SIZE * r), uiReceiver, Arrival);
    }

    // A sample for each score of another client that this receiver sees for the first time.
    void TakeRow(const CScoreRow& Row, uint32_t uiReceiver, CTime Arrival)
    {
        const uint32_t uiSender = SenderOf(Row.m_nId);
        if(uiSender == CLIENTS || uiSender == uiReceiver)
            return;
        const std::vector<CTime>& vSent = m_aClients[uiSender].m_vSent;
        uint32_t& uiSeen = m_aClients[uiReceiver].m_vSeen[uiSender];
        if(Row.m_nScore <= uiSeen || Row.m_nScore > vSent.size())
            return;
        uiSeen = Row.m_nScore;
        m_Measure.m_vLatencyNs.push_back(
            std::chrono::duration_cast<std::chrono::nanoseconds>(Arrival - vSent[Row.m_nScore - 1]).count());
    }

    // The client of a row, or CLIENTS for the host's own row.
    uint32_t SenderOf(uint32_t uiId) const
    {
        uint32_t i = 0;
        while(i < CLIENTS && m_aClients[i].m_uiId != uiId)
            i++;
        return i;
    }

    CClients& m_aClients;
    CMeasure& m_Measure;
    std::vector<pollfd> m_vPoll;
};

CMeasure Measure(CClients& aClients, const std::string& HostPid, double dSeconds)
{
    CMeasure Result;
    CRelayRun Relay(aClients, Result);
    const double dHostStart = CpuSeconds(HostPid);
    const double dBenchStart = CpuSeconds("self");
    const CTime Start = CClock::now();
    Relay.Schedule(Start, dSeconds);
    Relay.Loop(Start + std::chrono::duration_cast<CClock::duration>(std::chrono::duration<double>(dSeconds)), true);
    const CTime End = CClock::now();
    const double dHostCpu = CpuSeconds(HostPid) - dHostStart;
    const double dBenchCpu = CpuSeconds("self") - dBenchStart;
    Relay.Loop(End + DRAIN, false);
    Result.m_dSeconds = std::chrono::duration<double>(End - Start).count();
    Result.m_dHostCpu = 100.0 * dHostCpu / Result.m_dSeconds;
    Result.m_dBenchCpu = 100.0 * dBenchCpu / Result.m_dSeconds;
    std::sort(Result.m_vLatencyNs.begin(), Result.m_vLatencyNs.end());
    return Result;
}

// Nearest rank, in microseconds.
double PercentileUs(const std::vector<int64_t>& vSortedNs, double dShare)
{
    if(vSortedNs.empty())
        return 0.0;
    const size_t Rank = static_cast<size_t>(std::ceil(dShare * static_cast<double>(vSortedNs.size())));
    return static_cast<double>(vSortedNs[std::max<size_t>(Rank, 1) - 1]) / 1000.0;
}

void Report(const CMeasure& Result, uint32_t uiListed, uint32_t uiSenders)
{
    const std::vector<int64_t>& vNs = Result.m_vLatencyNs;
    const double dP50 = PercentileUs(vNs, 0.5), dP99 = PercentileUs(vNs, 0.99), dMax = PercentileUs(vNs, 1.0);
    const double dBytesPerSecond = static_cast<double>(Result.m_ulBytes) / Result.m_dSeconds;
    std::printf("Score relay through a bot host: %u wire clients, %u players listed, %u clients sending every "
                "10 ms, %.2f s\n",
                CLIENTS, uiListed, uiSenders, Result.m_dSeconds);
    std::printf("  updates sent %llu, score tables received %llu\n",
                static_cast<unsigned long long>(Result.m_ulUpdates),
                static_cast<unsigned long long>(Result.m_ulTables));
    std::printf("  update to table at another client: p50 %.1f us, p99 %.1f us, max %.1f us (%zu samples)\n", dP50,
                dP99, dMax, vNs.size());
    std::printf("  host CPU %.1f %% of one core, host sends %.0f bytes/s; this process %.1f %% of one core\n",
                Result.m_dHostCpu, dBytesPerSecond, Result.m_dBenchCpu);
    std::printf("{\"seconds\":%.3f,\"clients\":%u,\"listed\":%u,\"senders\":%u,\"updates\":%llu,\"tables\":%llu,"
                "\"samples\":%zu,\"p50_us\":%.1f,\"p99_us\":%.1f,\"max_us\":%.1f,\"host_cpu_percent\":%.2f,"
                "\"host_bytes_per_second\":%.0f,\"bench_cpu_percent\":%.2f}\n",
                Result.m_dSeconds, CLIENTS, uiListed, uiSenders, static_cast<unsigned long long>(Result.m_ulUpdates),
                static_cast<unsigned long long>(Result.m_ulTables), vNs.size(), dP50, dP99, dMax, Result.m_dHostCpu,
                dBytesPerSecond, Result.m_dBenchCpu);
}

int Fail(const char* pWhat, const CChildProcess& Host)
{
    std::fprintf(stderr, "trelvane_net_bench: %s\n%s", pWhat, Host.Errors().c_str());
    return EXIT_SETUP_FAILED;
}

int Run(double dSeconds)
{
    const uint16_t usPort = FreeLoopbackPort();
    const int iQuitAfter = static_cast<int>(std::ceil(dSeconds)) + HOST_GRACE_S;
    CChildProcess Host;
    if(!Host.Start(BotCommand({"--host", "--port", std::to_string(usPort), "--quit-after", std::to_string(iQuitAfter)}),
                   TRELVANE_SOURCE_DIR))
        return Fail("the host bot did not start", Host);
    const std::string HostPid = std::to_string(Host.Pid());
    CClients aClients;
    if(!JoinAll(aClients, usPort))
        return Fail("the clients could not join the host", Host);
    const uint32_t uiSenders = CountSenders(aClients);
    if(uiSenders == 0)
        return Fail("the host's table has no slot for any client", Host);
    const CMeasure Result = Measure(aClients, HostPid, dSeconds);
    Host.Stop(SETUP_MS);
    Report(Result, ListedCount(aClients.back().m_Table), uiSenders);
    if(Result.m_bLost || Result.m_vLatencyNs.empty())
        return Fail("the host stopped passing score tables on", Host);
    return EXIT_SUCCESS;
}
} // namespace

int main(int iArgs, char** ppArgs)
{
    double dSeconds = DEFAULT_SECONDS;
    if(!ParseOptions(iArgs, ppArgs, dSeconds))
    {
        std::fprintf(stderr, "usage: %s\n", USAGE);
        return EXIT_BAD_USAGE;
    }
    return Run(dSeconds);
}
