#include "net/Socket.h"

#include "net/Log.h"
#include "platform/interfaces/Clock.h"
#include "platform/native/SocketEvents.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <new>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
constexpr int LISTEN_BACKLOG = 32;

// The names under which the game reports a socket error, by the system's code.
struct CErrorName
{
    int m_iCode;
    const char* m_pName;
};

const CErrorName ERROR_NAMES[] = {
    {ENETDOWN, "WSAENETDOWN"},
    {EADDRINUSE, "WSAEADDRINUSE"},
    {EINTR, "WSAEINTR"},
    {EINPROGRESS, "WSAEINPROGRESS"},
    {EALREADY, "WSAEALREADY"},
    {EADDRNOTAVAIL, "WSAEADDRNOTAVAIL"},
    {EAFNOSUPPORT, "WSAEAFNOSUPPORT"},
    {ECONNREFUSED, "WSAECONNREFUSED"},
    {EFAULT, "WSAEFAULT"},
    {EINVAL, "WSAEINVAL"},
    {EISCONN, "WSAEISCONN"},
    {ENETUNREACH, "WSAENETUNREACH"},
    {ENOBUFS, "WSAENOBUFS"},
    {ENOTSOCK, "WSAENOTSOCK"},
    {EBADF, "WSAENOTSOCK"},
    {ENOTCONN, "WSAENOTCONN"},
    {ETIMEDOUT, "WSAETIMEDOUT"},
    {EWOULDBLOCK, "WSAEWOULDBLOCK"},
    {EAGAIN, "WSAEWOULDBLOCK"},
    {EACCES, "WSAEACCES"},
    {EMFILE, "WSAEMFILE"},
    {EOPNOTSUPP, "WSAEOPNOTSUPP"},
};

const char* ErrorName(int iCode)
{
    for(const CErrorName& Entry : ERROR_NAMES)
    {
        if(Entry.m_iCode == iCode)
            return Entry.m_pName;
    }
    return "unknown error code";
}

bool IsNothingToRead(int iCode)
{
    return iCode == EWOULDBLOCK || iCode == EAGAIN || iCode == EMSGSIZE;
}

// The first IPv4 address of a host name, or false when the name is not known.
bool LookUp(const char* pName, in_addr& Address)
{
    addrinfo Hints{};
    Hints.ai_family = AF_INET;
    Hints.ai_socktype = SOCK_STREAM;
    addrinfo* pList = nullptr;
    if(getaddrinfo(pName, nullptr, &Hints, &pList) != 0 || !pList)
        return false;
    Address = reinterpret_cast<const sockaddr_in*>(pList->ai_addr)->sin_addr;
    freeaddrinfo(pList);
    return true;
}

// Sends as much as the connection has room for without waiting: the bytes sent, or -1 when it has failed. A
// peer that has gone must not take the game with it, so no send may raise SIGPIPE.
ssize_t SendNow(int Socket, const uint8_t* pBytes, uint32_t uiCount)
{
    uint32_t uiSent = 0;
    while(uiSent < uiCount)
    {
        const ssize_t iResult = send(Socket, pBytes + uiSent, uiCount - uiSent, MSG_NOSIGNAL);
        if(iResult == -1 && errno == EINTR)
            continue;
        if(iResult == -1)
            return IsNothingToRead(errno) ? static_cast<ssize_t>(uiSent) : -1;
        uiSent += static_cast<uint32_t>(iResult);
    }
    return static_cast<ssize_t>(uiSent);
}

// Every frame leaves in one send, so holding small ones back to join them with the next gains nothing: it
// only makes a table wait for the acknowledgement of the one before, which a peer that is about to send
// itself delays by up to a frame.
void SendAtOnce(int Socket)
{
    const int iOn = 1;
    setsockopt(Socket, IPPROTO_TCP, TCP_NODELAY, &iOn, sizeof(iOn));
}

// Waits for a connect under way; errno tells why it failed, ETIMEDOUT when it took too long.
int FinishConnect(int Socket)
{
    pollfd Entry{Socket, POLLOUT, 0};
    int iReady;
    do
        iReady = poll(&Entry, 1, CONNECT_TIMEOUT_MS);
    while(iReady == -1 && errno == EINTR);
    if(iReady == 0)
        errno = ETIMEDOUT;
    if(iReady <= 0)
        return -1;
    int iError = 0;
    socklen_t Length = sizeof(iError);
    if(getsockopt(Socket, SOL_SOCKET, SO_ERROR, &iError, &Length) == -1)
        return -1;
    errno = iError;
    return iError == 0 ? 0 : -1;
}

// A blocking connect that gives up after the time-out, so that a wrong address never freezes the game for
// minutes. The socket is blocking again afterwards, as it was before.
int ConnectWithin(int Socket, const sockaddr_in& Address)
{
    const int iFlags = fcntl(Socket, F_GETFL, 0);
    if(iFlags == -1 || fcntl(Socket, F_SETFL, iFlags | O_NONBLOCK) == -1)
        return -1;
    int iResult = connect(Socket, reinterpret_cast<const sockaddr*>(&Address), sizeof(Address));
    if(iResult == -1 && errno == EINPROGRESS)
        iResult = FinishConnect(Socket);
    const int iError = errno;
    fcntl(Socket, F_SETFL, iFlags);
    errno = iError;
    return iResult;
}
} // namespace

CSocket::CSocket(CSocketEvents* pEvents) : m_pEvents(pEvents) {}

// A socket that never got connected (a host name that was not found) is closed too: no handle outlives its
// object.
CSocket::~CSocket()
{
    if(m_Socket != -1)
        Close();
    m_bConnected = false;
    delete m_pQueue;
    delete[] m_pBuffer;
    m_Socket = -1;
}

bool CSocket::Create()
{
    if(m_Socket != -1)
        Close();
    m_Socket = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if(m_Socket == -1)
    {
        Log("error: socket() failed");
        return false;
    }
    if(!m_pQueue)
        m_pQueue = new(std::nothrow) CMessageQueue;
    if(!m_pBuffer)
        m_pBuffer = new(std::nothrow) uint8_t[SOCKET_BUFFER_SIZE];
    if(!m_pQueue || !m_pBuffer)
        return false;
    std::memset(m_pBuffer, 0, SOCKET_BUFFER_SIZE);
    return true;
}

// The one socket option the game sets: without it Linux refuses the port for a minute after a host with
// players has closed, where the system the game was made for lets a new host bind it at once.
bool CSocket::Bind(uint16_t usPort)
{
    const int iReuse = 1;
    setsockopt(m_Socket, SOL_SOCKET, SO_REUSEADDR, &iReuse, sizeof(iReuse));
    sockaddr_in Address{};
    Address.sin_family = AF_INET;
    Address.sin_addr.s_addr = htonl(INADDR_ANY);
    Address.sin_port = htons(usPort);
    if(bind(m_Socket, reinterpret_cast<const sockaddr*>(&Address), sizeof(Address)) == -1)
    {
        ReportError("bind() failed");
        Close();
        return false;
    }
    return true;
}

bool CSocket::Listen()
{
    if(listen(m_Socket, LISTEN_BACKLOG) != 0)
    {
        Log("error: listen() failed");
        return false;
    }
    m_bConnected = true;
    return true;
}

bool CSocket::Accept(int& Socket)
{
    sockaddr_in Address{};
    socklen_t Length = sizeof(Address);
    Socket = accept4(m_Socket, reinterpret_cast<sockaddr*>(&Address), &Length, SOCK_CLOEXEC);
    if(Socket == -1)
    {
        Log("error: accept() failed");
        return false;
    }
    // The system would let the buffer of a peer that stops reading grow to megabytes; held to a fixed size, it
    // keeps what one peer can cost as bounded as the game's own queue for it.
    const int iSendBuffer = static_cast<int>(SEND_QUEUE_LIMIT / 2);
    setsockopt(Socket, SOL_SOCKET, SO_SNDBUF, &iSendBuffer, sizeof(iSendBuffer));
    SendAtOnce(Socket);
    const uint8_t* pBytes = reinterpret_cast<const uint8_t*>(&Address.sin_addr.s_addr);
    Log("client from %d.%d.%d.%d now succesfully connected to us", pBytes[0], pBytes[1], pBytes[2], pBytes[3]);
    if(m_pEvents)
        m_pEvents->Inherit(m_Socket, Socket);
    return true;
}

// A text of digits and dots is taken as an address as it stands and never looked up by name.
bool CSocket::Connect(const char* pAddress, uint16_t usPort)
{
    sockaddr_in Address{};
    Address.sin_family = AF_INET;
    Address.sin_port = htons(usPort);
    Address.sin_addr.s_addr = inet_addr(pAddress);
    if(Address.sin_addr.s_addr == INADDR_NONE && !LookUp(pAddress, Address.sin_addr))
    {
        Log("error: server \"%s\" not found", pAddress);
        return false;
    }
    if(ConnectWithin(m_Socket, Address) == -1)
    {
        ReportError("connect() in CSocket::Connect failed");
        Close();
        return false;
    }
    SendAtOnce(m_Socket);
    m_bConnected = true;
    return true;
}

void CSocket::Close()
{
    if(m_Socket == -1)
        return;
    ShutdownConnection(m_Socket);
    CloseConnection(m_Socket);
    Log("socket closed");
}

int CSocket::ShutdownConnection(int Socket) const
{
    return shutdown(Socket, SHUT_RDWR);
}

int CSocket::CloseConnection(int Socket)
{
    if(m_pEvents)
        m_pEvents->Forget(Socket);
    m_Connections.erase(Socket);
    if(Socket == m_Socket)
        m_Socket = -1;
    return close(Socket);
}

CSocket::CConnection& CSocket::ConnectionOf(int Socket)
{
    auto it = m_Connections.find(Socket);
    if(it == m_Connections.end())
        it = m_Connections.emplace(Socket, CConnection(m_uiReadRate, timeGetTime())).first;
    return it->second;
}

int CSocket::Send(const uint8_t* pBuffer, uint32_t uiCount)
{
    return SendTo(pBuffer, uiCount, m_Socket);
}

// Bytes queued behind others must wait their turn, or the stream would mix them.
int CSocket::SendTo(const uint8_t* pBuffer, uint32_t uiCount, int Socket)
{
    CConnection& Link = ConnectionOf(Socket);
    if(Link.m_bCutOff)
        return -1;
    ssize_t iSent = 0;
    if(Link.m_vOutgoing.empty())
        iSent = SendNow(Socket, pBuffer, uiCount);
    if(iSent == -1)
    {
        ReportError("send() in CSocket");
        return -1;
    }
    const uint32_t uiSent = static_cast<uint32_t>(iSent);
    if(uiSent < uiCount && !Hold(Socket, Link, pBuffer + uiSent, uiCount - uiSent))
        return -1;
    return static_cast<int>(uiCount);
}

bool CSocket::Hold(int Socket, CConnection& Link, const uint8_t* pBytes, uint32_t uiCount)
{
    const uint32_t uiWaiting = static_cast<uint32_t>(Link.m_vOutgoing.size()) + uiCount;
    if(uiWaiting > SEND_QUEUE_LIMIT)
    {
        Log("error: %u bytes wait for a peer that does not read, connection %d cut off", uiWaiting, Socket);
        CutOff(Socket, Link);
        return false;
    }
    Link.m_vOutgoing.insert(Link.m_vOutgoing.end(), pBytes, pBytes + uiCount);
    if(m_pEvents)
        m_pEvents->WantWrite(Socket, true);
    return true;
}

void CSocket::Flush(int Socket)
{
    const auto it = m_Connections.find(Socket);
    if(it == m_Connections.end() || it->second.m_bCutOff)
        return;
    std::vector<uint8_t>& vOut = it->second.m_vOutgoing;
    const ssize_t iSent = SendNow(Socket, vOut.data(), static_cast<uint32_t>(vOut.size()));
    if(iSent == -1)
    {
        ReportError("send() in CSocket::Flush");
        vOut.clear();
    }
    else
        vOut.erase(vOut.begin(), vOut.begin() + iSent);
    if(vOut.empty() && m_pEvents)
        m_pEvents->WantWrite(Socket, false);
}

// A connection is read until it has nothing more or its allowance is spent; a spent one is not watched for
// reading until ResumeReading finds its allowance grown back, so a flood never holds the game in here.
bool CSocket::Receive(int Socket, uint32_t uiSource)
{
    if(!m_pBuffer || !m_pQueue)
        return false;
    CConnection& Link = ConnectionOf(Socket);
    Link.m_Allowance.Refill(timeGetTime());
    bool bMore = true;
    while(bMore && Link.m_Allowance.Left() > 0)
    {
        if(!ReadOnce(Socket, Link, uiSource, bMore))
            return false;
    }
    if(bMore && !Link.m_bCutOff)
    {
        Link.m_bPaused = true;
        if(m_pEvents)
            m_pEvents->PauseReading(Socket, true);
    }
    return true;
}

// One read into the buffer behind what the connection left half-received. More may wait when the read took
// all it was offered.
bool CSocket::ReadOnce(int Socket, CConnection& Link, uint32_t uiSource, bool& bMore)
{
    const uint32_t uiFill = RestorePartial(Link);
    const uint32_t uiRoom = std::min(SOCKET_BUFFER_SIZE - uiFill, Link.m_Allowance.Left());
    const ssize_t iRead = recv(Socket, m_pBuffer + uiFill, uiRoom, 0);
    bMore = false;
    if(iRead == -1 && IsNothingToRead(errno))
        return ParseBuffer(Socket, Link, uiFill, uiSource);
    if(iRead == -1)
    {
        ReportError("recv() in CSocket::Receive");
        return false;
    }
    const uint32_t uiRead = static_cast<uint32_t>(iRead);
    Link.m_Allowance.Take(uiRead);
    bMore = uiRead > 0 && uiRead == uiRoom;
    return ParseBuffer(Socket, Link, uiFill + uiRead, uiSource);
}

// A paused connection is taken up again once it may deliver at least a whole frame of the largest size.
void CSocket::ResumeReading()
{
    const uint32_t uiNow = timeGetTime();
    for(auto& Entry : m_Connections)
    {
        CConnection& Link = Entry.second;
        if(!Link.m_bPaused)
            continue;
        Link.m_Allowance.Refill(uiNow);
        if(Link.m_Allowance.Left() < NET_MAX_FRAME)
            continue;
        Link.m_bPaused = false;
        if(m_pEvents)
            m_pEvents->PauseReading(Entry.first, false);
    }
}

bool CSocket::Absorb(int Socket, const uint8_t* pBytes, uint32_t uiCount, uint32_t uiSource)
{
    if(!m_pBuffer || !m_pQueue)
        return false;
    CConnection& Link = ConnectionOf(Socket);
    while(uiCount > 0)
    {
        const uint32_t uiFill = RestorePartial(Link);
        const uint32_t uiTaken = std::min(uiCount, SOCKET_BUFFER_SIZE - uiFill);
        std::memcpy(m_pBuffer + uiFill, pBytes, uiTaken);
        if(!ParseBuffer(Socket, Link, uiFill + uiTaken, uiSource))
            return false;
        pBytes += uiTaken;
        uiCount -= uiTaken;
    }
    return true;
}

// What the connection left half-received goes back to the start of the buffer; returns its length.
uint32_t CSocket::RestorePartial(CConnection& Link)
{
    const uint32_t uiFill = static_cast<uint32_t>(Link.m_vPartial.size());
    if(uiFill > 0)
        std::memcpy(m_pBuffer, Link.m_vPartial.data(), uiFill);
    Link.m_vPartial.clear();
    return uiFill;
}

// More than a header must be there before one is read: every frame carries at least one byte. The limit on
// the announced size keeps what waits for a connection under one frame, far below the buffer's size.
bool CSocket::ParseBuffer(int Socket, CConnection& Link, uint32_t uiFill, uint32_t uiSource)
{
    uint32_t uiPos = 0;
    while(uiFill - uiPos > NET_HEADER_SIZE)
    {
        const uint32_t uiSize = ReadU32(m_pBuffer + uiPos);
        if(uiSize > NET_MAX_PAYLOAD)
        {
            Log("error: a frame of %u bytes is more than any message, connection %d cut off", uiSize, Socket);
            CutOff(Socket, Link);
            return false;
        }
        const uint32_t uiFrame = NET_HEADER_SIZE + uiSize;
        if(uiFrame > uiFill - uiPos)
            break;
        if(!m_pQueue->Push(m_pBuffer + uiPos, uiFrame, uiSource))
            Log("error: no memory to queue a frame of %u bytes", uiFrame);
        uiPos += uiFrame;
    }
    if(uiPos < uiFill)
        Link.m_vPartial.assign(m_pBuffer + uiPos, m_pBuffer + uiFill);
    return true;
}

// The stream has lost all meaning, or the peer has stopped reading it, so nothing more goes either way: the
// shut-down connection comes back as a close, and leaves like any other.
void CSocket::CutOff(int Socket, CConnection& Link)
{
    Link.m_vPartial.clear();
    Link.m_vOutgoing.clear();
    Link.m_bCutOff = true;
    if(m_pEvents)
    {
        m_pEvents->WantWrite(Socket, false);
        m_pEvents->PauseReading(Socket, false);
    }
    shutdown(Socket, SHUT_RDWR);
}

bool CSocket::HasMessage() const
{
    return m_pQueue && m_pQueue->m_nCount > 0;
}

bool CSocket::GetMessage(CNetMessage& Message, uint32_t* pSource)
{
    CMessageNode* pNode = m_pQueue ? m_pQueue->Pop() : nullptr;
    if(!pNode)
        return false;
    ReadHeader(pNode->m_pData, Message);
    if(pSource)
        *pSource = pNode->m_nSource;
    if(Message.m_nSize > 0)
        std::memcpy(Message.m_pData, pNode->m_pData + NET_HEADER_SIZE, Message.m_nSize);
    CMessageQueue::FreeNode(pNode);
    return true;
}

bool CSocket::PutMessage(const CNetMessage& Message)
{
    if(!m_pQueue || Message.m_nSize > NET_MAX_PAYLOAD)
        return false;
    uint8_t aFrame[NET_MAX_FRAME];
    WriteHeader(aFrame, Message);
    if(Message.m_nSize > 0)
        std::memcpy(aFrame + NET_HEADER_SIZE, Message.m_pData, Message.m_nSize);
    return m_pQueue->Push(aFrame, NET_HEADER_SIZE + Message.m_nSize, FROM_HOST);
}

void CSocket::ReportError(const char* pContext) const
{
    Log("error: %s | %s", pContext, ErrorName(errno));
}
