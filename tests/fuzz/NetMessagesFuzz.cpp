// The message loop of a network game, on the host and on a client: whatever frames the peers send, in
// whatever order, the tables and texts stay within their bounds. With the link wired to socket pairs, every
// frame the game sends in answer is read back and must be one its peer would accept.
#include "app/Game.h"
#include "net/Log.h"
#include "net/Messages.h"
#include "net/Network.h"
#include "net/Socket.h"
#include "platform/interfaces/Clock.h"
#include "platform/interfaces/ErrorBox.h"
#include "platform/twins/RecordingRenderDevice.h"
#include "powerups/PowerupTable.h"

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

namespace
{
constexpr uint32_t MAX_PEERS = 3;
// Frames queued before the loop must run, so that what the game sends in one go fits the socket buffers.
constexpr uint32_t MAX_BATCH = 8;
constexpr uint32_t MAX_STEPS = 4096;
constexpr int SEND_BUFFER_BYTES = 1 << 20;

// A connection cut off for not reading may have half a frame on its way: the streams of that run are not read
// to their end.
bool g_bCutOff = false;

void WatchLog(const char* pLine)
{
    if(std::strstr(pLine, "cut off"))
        g_bCutOff = true;
}

// Reads input bytes front to back; past the end every read gives 0.
class CInput
{
public:
    CInput(const uint8_t* pData, size_t Size) : m_pData(pData), m_Size(Size) {}
    bool Empty() const { return m_Pos >= m_Size; }
    uint8_t Byte() { return m_Pos < m_Size ? m_pData[m_Pos++] : 0; }
    uint32_t U16() { return Byte() | static_cast<uint32_t>(Byte()) << 8; }
    uint32_t U32() { return U16() | U16() << 16; }
    void Bytes(uint8_t* pOut, size_t Count)
    {
        for(size_t i = 0; i < Count; i++)
            pOut[i] = Byte();
    }
    // Mostly the ids a game hands out, sometimes the id nobody holds, sometimes anything.
    uint32_t Id()
    {
        const uint8_t ucCode = Byte();
        if(ucCode < 0xF0)
            return ucCode % 10;
        return ucCode == 0xFF ? NO_PLAYER : U32();
    }

private:
    const uint8_t* m_pData;
    size_t m_Size;
    size_t m_Pos = 0;
};

// The size a frame of the type has when a game sends it; a text takes the length the input asks for.
uint32_t NaturalSize(uint32_t uiType, uint8_t ucCode)
{
    switch(g_aMessages[uiType].m_ePayload)
    {
    case PAYLOAD_MARK: return 1;
    case PAYLOAD_ID: return 4;
    case PAYLOAD_TEXT: return 1 + ucCode % 80;
    case PAYLOAD_LETTER: return 2;
    case PAYLOAD_PLAYER_TABLE: return PLAYER_TABLE_SIZE;
    case PAYLOAD_SCORE_TABLE: return SCORE_TABLE_SIZE;
    default: return SCORE_ROW_SIZE;
    }
}

// The far end of one link: it reads what the game sent and checks each frame as that end's game would.
struct CPeer
{
    int m_Fd = -1;
    int m_GameEnd = -1;
    uint32_t m_nId = 0;       // the client's id; unused for the host's end
    bool m_bHostSends = true; // the game under test is the host, this end is one of its clients
    std::vector<uint8_t> m_vStream;

    void Read()
    {
        uint8_t aChunk[16384];
        for(int i = 0; i < 256; i++)
        {
            const ssize_t iRead = recv(m_Fd, aChunk, sizeof(aChunk), MSG_DONTWAIT);
            if(iRead <= 0)
                break;
            m_vStream.insert(m_vStream.end(), aChunk, aChunk + iRead);
        }
    }

    void Check()
    {
        size_t Pos = 0;
        std::vector<uint8_t> vPayload;
        while(m_vStream.size() - Pos >= NET_HEADER_SIZE)
        {
            const uint8_t* pHeader = m_vStream.data() + Pos;
            CNetMessage Message;
            ReadHeader(pHeader, Message);
            // No game sends a frame its peers would cut the link for.
            if(Message.m_nSize > NET_MAX_PAYLOAD)
                __builtin_trap();
            if(m_vStream.size() - Pos < NET_HEADER_SIZE + Message.m_nSize)
                break;
            vPayload.assign(pHeader + NET_HEADER_SIZE, pHeader + NET_HEADER_SIZE + Message.m_nSize);
            vPayload.push_back(0);
            Message.m_pData = vPayload.data();
            // A known type in the form it asks for, with the header's spare word left 0.
            if(Message.m_nType >= NUM_MESSAGE_TYPES || !PayloadFits(Message) || ReadU32(pHeader + 16) != 0)
                __builtin_trap();
            // A powerup reaches only the client it is aimed at.
            if(m_bHostSends && Message.m_nType >= NET_PU_INCREASE && Message.m_nTo != m_nId)
                __builtin_trap();
            Pos += NET_HEADER_SIZE + Message.m_nSize;
        }
        m_vStream.erase(m_vStream.begin(), m_vStream.begin() + static_cast<std::ptrdiff_t>(Pos));
    }
};

// Both ends of a socket pair: the game's end never blocks the run, the other is read by the fuzzer.
bool MakeLink(int& GameEnd, int& PeerEnd)
{
    int aFds[2];
    if(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, aFds) != 0)
        return false;
    const int iFlags = fcntl(aFds[0], F_GETFL, 0);
    fcntl(aFds[0], F_SETFL, iFlags | O_NONBLOCK);
    setsockopt(aFds[0], SOL_SOCKET, SO_SNDBUF, &SEND_BUFFER_BYTES, sizeof(SEND_BUFFER_BYTES));
    setsockopt(aFds[1], SOL_SOCKET, SO_RCVBUF, &SEND_BUFFER_BYTES, sizeof(SEND_BUFFER_BYTES));
    GameEnd = aFds[0];
    PeerEnd = aFds[1];
    return true;
}

bool IsTerminated(const char* pText, size_t Size)
{
    return std::memchr(pText, '\0', Size) != nullptr;
}

// What must hold after any frames whatever.
void CheckState(const CGame& Game, const CSocket* pSocket, uint8_t ucClients)
{
    const CNetwork& Network = Game.m_Network;
    if(Network.m_pSocket != pSocket || Network.m_nClients != ucClients)
        __builtin_trap();
    if(Network.m_nPlayers > MAX_PLAYERS)
        __builtin_trap();
    const int iSlot = Network.MySlot();
    if(iSlot < -1 || iSlot >= MAX_PLAYERS)
        __builtin_trap();
    if(!IsTerminated(Network.m_szChatLine, sizeof(Network.m_szChatLine)))
        __builtin_trap();
    for(const char* pLine : Network.m_szLobbyLines)
    {
        if(!IsTerminated(pLine, LOBBY_LINE_CHARS))
            __builtin_trap();
    }
    const CPowerupManager& Powerups = Game.m_Powerups;
    if(!IsTerminated(Powerups.m_szNotice, sizeof(Powerups.m_szNotice)))
        __builtin_trap();
    if(Powerups.m_nStackCount > POWERUP_STACK_SIZE)
        __builtin_trap();
    // Only letters of the table reach the stack, whoever sent them.
    for(uint32_t i = 0; i < Powerups.m_nStackCount; i++)
    {
        if(!FindPowerup(Powerups.m_acStack[i]))
            __builtin_trap();
    }
}

// A frame as a peer's connection delivers it, or as the host queues its own (no connection).
bool Queue(CSocket& Socket, const CNetMessage& Message, int Connection, uint32_t uiSource)
{
    if(Connection == -1)
        return Socket.PutMessage(Message);
    std::vector<uint8_t> vFrame(NET_HEADER_SIZE + Message.m_nSize);
    WriteHeader(vFrame.data(), Message);
    std::copy(Message.m_pData, Message.m_pData + Message.m_nSize, vFrame.begin() + NET_HEADER_SIZE);
    return Socket.Absorb(Connection, vFrame.data(), static_cast<uint32_t>(vFrame.size()), uiSource);
}

// A line typed into one of the editors, cut to what the editor lets a player type.
void TypeLine(CInput& Input, char* pField, size_t Limit)
{
    const size_t Length = Input.Byte() % (Limit + 1);
    for(size_t i = 0; i < Length; i++)
        pField[i] = static_cast<char>(Input.Byte() | 1); // never 0: the editors take no zero
    pField[Length] = '\0';
}
} // namespace

// The first byte sets up the game: bit 0 a client rather than the host, bit 1 the link wired to socket
// pairs, bits 2 and 3 how many clients the host has; a client's id follows. Then steps, each led by one
// byte, whose top three bits say what it is: 0 to 3 a frame queued as if a peer had sent it (mostly of the
// 32 types, sometimes beyond them; on a host with clients a byte then names the connection it came on), 5 a
// tick of the clock, 6 something the player does, 4 and 7 a run of the message loop. The loop also runs by
// itself once a few frames wait.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t Size)
{
    SetLogSink(WatchLog);
    SetErrorHandler([](const char*) {});
    SetManualClock(0);
    std::srand(1);
    g_bCutOff = false;

    CInput Input(pData, Size);
    const uint8_t ucSetup = Input.Byte();
    const bool bHost = (ucSetup & 1) == 0;
    const bool bWired = (ucSetup & 2) != 0;

    CRecordingRenderDevice Device;
    Device.m_bRecording = false;
    const auto pGame = std::make_unique<CGame>();
    CGame& Game = *pGame;
    g_pGame = pGame.get();
    Game.m_Graphics.m_pDevice = &Device;
    // The levels have a fuzzer of their own: here only which index starts a level matters, so the list names
    // files that don't exist and a start leaves an empty level in play.
    Game.m_Tracks.m_vFiles = {"\x01 no level 0", "\x01 no level 1"};
    Game.m_Tracks.m_uiNumFiles = 2;

    CNetwork& Network = Game.m_Network;
    CSocket* pSocket = new CSocket(nullptr);
    Network.m_pSocket = pSocket;
    if(!pSocket->Create())
    {
        g_pGame = nullptr;
        return 0;
    }
    Network.m_nLinkMode = Network.m_nMode = bHost ? NET_MODE_HOST : NET_MODE_CLIENT;
    Network.m_nMyId = bHost ? 0 : Input.Id();
    Network.m_bNetGame = true;
    Network.m_bRunning = true;

    // The game owns its ends from here on and closes them when it goes; the peer ends are closed below.
    CPeer aPeers[MAX_PEERS];
    uint32_t uiPeers = 0;
    if(bWired)
    {
        Network.m_nMaxSize = NET_MAX_FRAME;
        Network.m_pSendBuffer = new uint8_t[NET_MAX_FRAME + NET_HEADER_SIZE];
        const uint32_t uiWanted = bHost ? (ucSetup >> 2) & 3 : 1;
        for(uint32_t i = 0; i < uiWanted && i < MAX_PEERS; i++)
        {
            int& GameEnd = aPeers[i].m_GameEnd;
            if(!MakeLink(GameEnd, aPeers[i].m_Fd))
                break;
            aPeers[i].m_bHostSends = bHost;
            if(bHost)
            {
                aPeers[i].m_nId = i + 1;
                Network.m_Clients[i] = CClientSlot{GameEnd, i + 1};
                Network.m_nClients = static_cast<uint8_t>(i + 1);
                Network.m_nNextId = i + 2;
            }
            else
            {
                close(pSocket->m_Socket);
                pSocket->m_Socket = GameEnd;
                pSocket->m_bConnected = true;
            }
            uiPeers++;
        }
    }
    const uint8_t ucClients = Network.m_nClients;

    // What found no room in a socket goes out as the peer reads, as the events service would have it go.
    const auto Deliver = [&] {
        for(uint32_t i = 0; i < uiPeers; i++)
        {
            aPeers[i].Read();
            pSocket->Flush(aPeers[i].m_GameEnd);
            aPeers[i].Read();
            aPeers[i].Check();
        }
    };
    const auto RunAndCheck = [&](auto&& Step) {
        Step();
        CheckState(Game, pSocket, ucClients);
        Deliver();
    };

    std::vector<uint8_t> vPayload;
    uint32_t uiQueued = 0;
    uint32_t uiSteps = 0;
    while(!Input.Empty() && uiSteps++ < MAX_STEPS)
    {
        const uint8_t ucStep = Input.Byte();
        const uint32_t uiKind = ucStep >> 5;
        if(uiKind <= 3)
        {
            CNetMessage Message;
            Message.m_nType = ucStep & 31;
            // On a host with clients, which connection the frame came on: 0 the host's own queue.
            const uint32_t uiSource = bHost && uiPeers > 0 ? Input.Byte() % (uiPeers + 1) : 0;
            if(uiKind == 3 && (ucStep & 16))
                Message.m_nType = NUM_MESSAGE_TYPES + (ucStep & 15);
            else if(uiKind == 3 && (ucStep & 8))
                Message.m_nType = Input.U32();
            Message.m_nFrom = Input.Id();
            Message.m_nTo = Input.Id();
            const uint8_t ucSize = Input.Byte();
            const bool bNatural = ucSize < 0xC0 && Message.m_nType < NUM_MESSAGE_TYPES;
            Message.m_nSize = bNatural ? NaturalSize(Message.m_nType, ucSize) : Input.U16() % (NET_MAX_PAYLOAD + 1);
            vPayload.assign(Message.m_nSize, 0);
            Input.Bytes(vPayload.data(), vPayload.size());
            if(bNatural && g_aMessages[Message.m_nType].m_ePayload == PAYLOAD_TEXT)
                vPayload.back() = 0;
            Message.m_pData = vPayload.data();
            if(!Queue(*pSocket, Message, uiSource == 0 ? -1 : aPeers[uiSource - 1].m_GameEnd, uiSource))
                __builtin_trap();
            if(++uiQueued < MAX_BATCH)
                continue;
        }
        else if(uiKind == 5)
        {
            const uint32_t uiMs = Input.Byte() * 8u;
            RunAndCheck([&] {
                AdvanceManualClock(uiMs);
                Game.m_Clock.Update(timeGetTime());
                Network.Tick();
                Game.m_Powerups.Update();
            });
            uiQueued = 0;
            continue;
        }
        else if(uiKind == 6)
        {
            switch(ucStep & 7)
            {
            case 0: RunAndCheck([&] { Network.OnPlayerLost(); }); break;
            case 1: RunAndCheck([&] { Network.OnTimeUp(); }); break;
            case 2:
                TypeLine(Input, Network.m_szChatInput, CHAT_INPUT_LIMIT);
                RunAndCheck([&] { Network.SendGameChat(); });
                break;
            case 3:
                TypeLine(Input, Network.m_szLobbyInput, LOBBY_INPUT_LIMIT);
                RunAndCheck([&] { Network.SendLobbyChat(); });
                break;
            case 4:
            {
                // A letter earned and spent on a player, or on the own level for -1.
                const uint32_t uiTarget = Input.Id();
                RunAndCheck([&] {
                    Game.m_Powerups.EarnPowerup();
                    Network.m_nTarget = uiTarget == NO_PLAYER ? -1 : static_cast<int32_t>(uiTarget);
                    Game.m_Powerups.UsePowerup();
                });
                break;
            }
            case 5: RunAndCheck([&] { Network.ResetMatch(); }); break;
            case 6: RunAndCheck([&] { Game.m_Powerups.EarnPowerup(); }); break;
            default: RunAndCheck([&] { Network.SendStartGame(Input.Byte() % 3); }); break;
            }
            continue;
        }
        // Kinds 4 and 7, and a full batch: the loop reads what is queued.
        RunAndCheck([&] { Network.ProcessMessages(); });
        uiQueued = 0;
    }
    RunAndCheck([&] { Network.ProcessMessages(); });
    // The loop leaves nothing behind, and nothing the game sent stops half-way.
    if(pSocket->HasMessage())
        __builtin_trap();
    for(uint32_t i = 0; i < uiPeers; i++)
    {
        if(!g_bCutOff && !aPeers[i].m_vStream.empty())
            __builtin_trap();
        close(aPeers[i].m_Fd);
    }
    g_pGame = nullptr;
    return 0;
}
