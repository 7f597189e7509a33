#pragma once
#include "net/MessageQueue.h"
#include "net/NetMessage.h"
#include "net/ReadAllowance.h"

#include <cstdint>
#include <map>
#include <vector>

class CSocketEvents;

// The receive buffer: one for all connections, allocated once.
constexpr uint32_t SOCKET_BUFFER_SIZE = 65536;
// How long a connect may hold the game before it gives up.
constexpr int CONNECT_TIMEOUT_MS = 5000;
// Bytes a connection may have waiting to go out before its peer counts as one that no longer reads.
constexpr uint32_t SEND_QUEUE_LIMIT = 131072;
// Bytes a second the host reads from each client: dozens of times what a game at hundreds of frames a second
// sends, yet little enough that relaying a flood to everyone costs the host only a sliver of each frame.
constexpr uint32_t HOST_READ_RATE = 262144;
// A client reads its host faster, since the host's stream carries what every player sends.
constexpr uint32_t CLIENT_READ_RATE = 4194304;
// The machine a frame came from, as far as the receiving side knows: on a client everything comes from the
// host, whose id is 0, and so do the frames the host queues for itself.
constexpr uint32_t FROM_HOST = 0;

// One TCP socket, and everything that turns the byte streams of TCP into whole frames. On the host it is the
// listening socket and also reads every accepted connection; on a client it is the connection to the host.
// All socket calls of the game are made here.
class CSocket
{
public:
    // The events service keeps watching the connections this socket accepts, and forgets the ones it closes.
    explicit CSocket(CSocketEvents* pEvents);
    CSocket(const CSocket&) = delete;
    CSocket& operator=(const CSocket&) = delete;
    ~CSocket();

    bool Create();
    bool Bind(uint16_t usPort);
    bool Listen();
    bool Accept(int& Socket);
    // Blocks until the connection stands, has failed, or the connect time-out has passed.
    bool Connect(const char* pAddress, uint16_t usPort);
    void Close();
    // The bytes sent, or -1: the rest of the frame is then lost and the stream is not mended.
    // A send never waits: what the connection has no room for now waits in its own queue and goes out as room
    // comes (Flush). The whole count is taken, or -1 when the connection has failed or been cut off; a
    // connection whose queue would pass SEND_QUEUE_LIMIT is cut off.
    int Send(const uint8_t* pBuffer, uint32_t uiCount);
    int SendTo(const uint8_t* pBuffer, uint32_t uiCount, int Socket);
    // Sends what waited for room on the connection; the events service asks for it once there is room.
    void Flush(int Socket);
    // Reads what the connection has, as far as its allowance goes, and queues the frames that are whole, marked
    // with the id of the machine they came from. A connection that announces a frame no game could send is cut
    // off: it is shut down, and its close then comes as for any peer that leaves.
    bool Receive(int Socket, uint32_t uiSource = FROM_HOST);
    // Bytes that arrived on a connection, parsed as Receive parses what it reads; the fuzzers feed it.
    bool Absorb(int Socket, const uint8_t* pBytes, uint32_t uiCount, uint32_t uiSource = FROM_HOST);
    // Connections that used up their allowance are read again once it has grown back.
    void ResumeReading();
    bool HasMessage() const;
    // Takes the oldest frame: its four numbers into the header, its payload to where the caller's m_pData
    // points, which must hold NET_PAYLOAD_BUFFER bytes, and the id of the machine it came from into the
    // source, when asked. The caller's m_pData stays as it was.
    bool GetMessage(CNetMessage& Message, uint32_t* pSource = nullptr);
    // Queues a copy of a frame without touching the network; how the host reads its own messages.
    bool PutMessage(const CNetMessage& Message);
    int GetHandle() const { return m_Socket; }
    // Logs the last socket error of this thread by name, with the context text.
    void ReportError(const char* pContext) const;
    // Shut down and close one connection (an accepted one, or the own one); -1 on failure, as the system
    // calls give it. Closing also drops what the connection had left half-received.
    int ShutdownConnection(int Socket) const;
    int CloseConnection(int Socket);

    uint32_t m_nHeaderSize = NET_HEADER_SIZE;
    bool m_bConnected = false;
    int m_Socket = -1;
    CMessageQueue* m_pQueue = nullptr;
    uint8_t* m_pBuffer = nullptr;
    uint32_t m_uiReadRate = HOST_READ_RATE; // bytes a second each connection may deliver

private:
    // What is kept per connection, so that streams never mix and no peer can spend more than its share.
    struct CConnection
    {
        CConnection(uint32_t uiRate, uint32_t uiNowMs) : m_Allowance(uiRate, uiNowMs) {}
        std::vector<uint8_t> m_vPartial;  // the bytes of a frame not yet whole
        std::vector<uint8_t> m_vOutgoing; // what waits for room to go out
        CReadAllowance m_Allowance;
        bool m_bPaused = false; // not read until the allowance grows back
        bool m_bCutOff = false; // shut down; only its close is still to come
    };

    CConnection& ConnectionOf(int Socket);
    uint32_t RestorePartial(CConnection& Link);
    bool ReadOnce(int Socket, CConnection& Link, uint32_t uiSource, bool& bMore);
    bool ParseBuffer(int Socket, CConnection& Link, uint32_t uiFill, uint32_t uiSource);
    bool Hold(int Socket, CConnection& Link, const uint8_t* pBytes, uint32_t uiCount);
    void CutOff(int Socket, CConnection& Link);

    CSocketEvents* m_pEvents;
    std::map<int, CConnection> m_Connections;
};
