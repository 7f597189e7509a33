#pragma once
#include "net/MessageQueue.h"
#include "net/NetMessage.h"

#include <cstdint>
#include <map>
#include <vector>

class CSocketEvents;

// The receive buffer: one for all connections, allocated once.
constexpr uint32_t SOCKET_BUFFER_SIZE = 65536;
// How long a connect may hold the game before it gives up.
constexpr int CONNECT_TIMEOUT_MS = 5000;

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
    int Send(const uint8_t* pBuffer, uint32_t uiCount);
    int SendTo(const uint8_t* pBuffer, uint32_t uiCount, int Socket);
    // Reads what the connection has and queues the frames that are whole. A connection that announces a frame
    // no game could send is cut off: it is shut down, and its close then comes as for any peer that leaves.
    bool Receive(int Socket);
    // Bytes that arrived on a connection, parsed as Receive parses what it reads; the fuzzers feed it.
    bool Absorb(int Socket, const uint8_t* pBytes, uint32_t uiCount);
    bool HasMessage() const;
    // Takes the oldest frame: its four numbers into the header, its payload to where the caller's m_pData
    // points, which must hold NET_PAYLOAD_BUFFER bytes. The caller's m_pData stays as it was.
    bool GetMessage(CNetMessage& Message);
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

private:
    // The bytes of a frame not yet whole, kept per connection so that streams never mix.
    typedef std::map<int, std::vector<uint8_t>> CPartialFrames;

    uint32_t RestorePartial(int Socket);
    bool ParseBuffer(int Socket, uint32_t uiFill);
    void CutOff(int Socket, uint32_t uiSize);

    CSocketEvents* m_pEvents;
    CPartialFrames m_Partial;
};
