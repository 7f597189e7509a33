#include "net/Network.h"

#include "net/Log.h"
#include "net/Socket.h"
#include "net/TextField.h"
#include "platform/native/SocketEvents.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <new>

namespace
{
constexpr uint32_t SERVER_EVENTS = FD_READ | FD_WRITE | FD_ACCEPT | FD_CONNECT | FD_CLOSE; // 59
constexpr uint32_t CLIENT_EVENTS = FD_READ | FD_CLOSE;                                     // 33
constexpr uint32_t EVENT_MASK = 0xFFFF; // the low half of the event word; the high half is an error code
constexpr uint8_t FULL_CLIENT_TABLE = 255;
constexpr uint32_t NET_ASSIGN_ID = 0;
constexpr uint32_t NET_PLAYER_JOINED = 1;
constexpr uint32_t NET_PLAYER_LEFT = 2;
} // namespace

CNetwork::CNetwork()
{
    ResetTables();
    Log("CNetwork Started up (waiting for initialization call)");
}

CNetwork::~CNetwork()
{
    Shutdown();
}

// A frame limit above what a message loop can take is held to it: no peer could read such a frame anyway.
bool CNetwork::Init(CSocketEvents* pEvents, uint32_t uiMode, uint32_t uiPort, const char* pAddress, uint32_t uiMaxSize,
                    uint32_t uiMaxClients)
{
    Log("calling initialization");
    if(m_pSocket)
        Shutdown();
    m_nMaxSize = std::min(uiMaxSize, NET_MAX_FRAME);
    delete[] m_pSendBuffer;
    m_pSendBuffer = new(std::nothrow) uint8_t[m_nMaxSize + NET_HEADER_SIZE];
    m_pEvents = pEvents;
    m_nPort = uiPort;
    m_nLinkMode = uiMode;
    m_nMaxClients = uiMaxClients;
    if(pAddress && pAddress[0] != '\0')
        CopyText(m_szServer, pAddress);
    if(!m_pSendBuffer)
        return false;
    Log("WinSock 2.0 initialized (MODE: %d)", static_cast<int>(uiMode));
    if(uiMode == NET_MODE_HOST && !CreateServer())
    {
        Log("error: CreateServer(Port:%d) failed", static_cast<int>(m_nPort));
        return false;
    }
    if(uiMode == NET_MODE_CLIENT)
    {
        if(m_szServer[0] == '\0')
            CopyText(m_szServer, "LOCALHOST");
        if(!CreateClient())
        {
            Log("error: CreateClient(Port:%d to Server-IP:%s) failed", static_cast<int>(m_nPort), m_szServer);
            return false;
        }
    }
    if(uiMode != NET_MODE_HOST && uiMode != NET_MODE_CLIENT)
        return false;
    Log("initialized (online and ready)");
    m_bRunning = true;
    return true;
}

bool CNetwork::CreateClient()
{
    Log("firing up client");
    m_pSocket = new(std::nothrow) CSocket(m_pEvents);
    if(!m_pSocket)
    {
        Log("error: Socket construction failed in CNetwork::CreateClient");
        return false;
    }
    Log("Socket constructed in create client");
    if(!m_pSocket->Create())
        return false;
    m_pSocket->m_uiReadRate = CLIENT_READ_RATE;
    Log("socket created");
    if(!m_pSocket->Connect(m_szServer, static_cast<uint16_t>(m_nPort)))
        return false;
    Log("Socket connected as client to port: %d", static_cast<int>(m_nPort));
    if(!m_pEvents || m_pEvents->Select(m_pSocket->GetHandle(), CLIENT_EVENTS) == -1)
    {
        Log("error: WSAAsyncSelect(WM_CLIENT) failed");
        m_pSocket->Close();
        return false;
    }
    return true;
}

bool CNetwork::CreateServer()
{
    Log("firing up server");
    m_pSocket = new(std::nothrow) CSocket(m_pEvents);
    if(!m_pSocket)
    {
        Log("error: m_pSocket construction failed in CNetwork::CreateServer");
        return false;
    }
    Log("Socket constructed in CreateServer");
    if(!m_pSocket->Create())
        return false;
    Log("socket created in createSever");
    if(!m_pSocket->Bind(static_cast<uint16_t>(m_nPort)))
        return false;
    Log("server bind to port: %d", static_cast<int>(m_nPort));
    if(!m_pSocket->Listen())
        return false;
    Log("server is now listening for incoming connection...");
    if(!m_pEvents || m_pEvents->Select(m_pSocket->GetHandle(), SERVER_EVENTS) == -1)
    {
        Log("error: WSAAsyncSelect(WM_SERVER) failed");
        m_pSocket->Close();
        return false;
    }
    std::fill(std::begin(m_Clients), std::end(m_Clients), CClientSlot{});
    m_nClients = 0;
    return true;
}

void CNetwork::Shutdown()
{
    Log("shutting down WinSock");
    if(IsHost() && m_pSocket)
    {
        for(uint32_t i = 0; i < m_nClients; i++)
        {
            m_pSocket->ShutdownConnection(m_Clients[i].m_Socket);
            m_pSocket->CloseConnection(m_Clients[i].m_Socket);
            m_Clients[i].m_Socket = -1;
        }
        m_nClients = 0;
    }
    delete m_pSocket;
    m_pSocket = nullptr;
    delete[] m_pSendBuffer;
    m_pSendBuffer = nullptr;
    m_bRunning = false;
}

void CNetwork::OnSocketEvent(int Socket, uint32_t uiEvent)
{
    switch(uiEvent & EVENT_MASK)
    {
    case FD_READ: OnReceive(Socket); break;
    case FD_WRITE:
        if(m_pSocket)
            m_pSocket->Flush(Socket);
        break;
    case FD_ACCEPT: OnAccept(); break;
    case FD_CLOSE: OnDisconnect(Socket); break;
    default: break;
    }
}

// A full table leaves the connection waiting in the listener's backlog: the peer hears nothing at all.
bool CNetwork::OnAccept()
{
    if(!IsHost() || !m_pSocket)
        return false;
    if(m_nClients >= FULL_CLIENT_TABLE || (m_nMaxClients > 0 && m_nClients >= m_nMaxClients))
        return false;
    CClientSlot& Slot = m_Clients[m_nClients];
    if(!m_pSocket->Accept(Slot.m_Socket))
    {
        Slot.m_Socket = -1;
        return false;
    }
    Slot.m_nId = m_nNextId;
    m_nClients++;
    m_nNextId++;
    uint8_t aId[4];
    WriteU32(aId, Slot.m_nId);
    const CNetMessage Assign{sizeof(aId), NET_ASSIGN_ID, 0, 0, aId};
    if(!SendFrame(Assign, Slot.m_Socket))
        return false;
    SendLinkEvent(NET_PLAYER_JOINED, Slot.m_nId);
    return true;
}

// The host marks every frame with the id of the client whose connection it came on: the one thing about a
// frame that its sender cannot make up.
bool CNetwork::OnReceive(int Socket)
{
    if(!m_bRunning || !m_pSocket)
    {
        Log("error: m_bRunning = 0 in CNetwork::OnReceive");
        return false;
    }
    if(!IsHost())
        return m_pSocket->Receive(Socket, FROM_HOST);
    uint8_t uiSlot = 0;
    if(!FindClient(Socket, uiSlot))
    {
        Log("error: data from a connection that is not listed");
        return false;
    }
    return m_pSocket->Receive(Socket, m_Clients[uiSlot].m_nId);
}

bool CNetwork::FindClient(int Socket, uint8_t& uiSlot) const
{
    for(uiSlot = 0; uiSlot < m_nClients; uiSlot++)
    {
        if(m_Clients[uiSlot].m_Socket == Socket)
            return true;
    }
    return false;
}

// The last client moves into the freed place, so the first m_nClients entries stay the used ones.
bool CNetwork::OnDisconnect(int Socket)
{
    if(Socket == -1 || !m_pSocket)
        return false;
    int ClosedSocket = m_pSocket->GetHandle();
    uint8_t uiSlot = 0;
    if(IsHost())
    {
        if(!FindClient(Socket, uiSlot))
        {
            Log("error: not listed client wants to be disconnected");
            return false;
        }
        ClosedSocket = Socket;
    }
    if(ClosedSocket != -1)
    {
        if(m_pSocket->ShutdownConnection(ClosedSocket) == -1)
            m_pSocket->ReportError("shutdown() in CNetwork::OnDisconnect");
        if(m_pSocket->CloseConnection(ClosedSocket) == -1)
            m_pSocket->ReportError("closesocket() in CNetwork::OnDisconnect");
    }
    if(IsHost())
    {
        m_Clients[uiSlot].m_Socket = -1;
        SendLinkEvent(NET_PLAYER_LEFT, m_Clients[uiSlot].m_nId);
        m_Clients[uiSlot] = m_Clients[m_nClients - 1];
        m_nClients--;
    }
    Log("one client disconnected");
    return true;
}

// A join or a departure goes to every client and into the host's own queue, so that the host reads it in
// the same order as everyone else.
void CNetwork::SendLinkEvent(uint32_t uiType, uint32_t uiId)
{
    uint8_t aId[4];
    WriteU32(aId, uiId);
    const CNetMessage Event{sizeof(aId), uiType, 0, 0, aId};
    SendToAll(Event);
    m_pSocket->PutMessage(Event);
}

bool CNetwork::HasMessage() const
{
    return m_pSocket && m_pSocket->HasMessage();
}

bool CNetwork::GetMessage(CNetMessage& Message, uint32_t* pSource)
{
    return m_pSocket && m_pSocket->GetMessage(Message, pSource);
}

bool CNetwork::CopyToSendBuffer(const CNetMessage& Message)
{
    if(!m_pSendBuffer || Message.m_nSize > m_nMaxSize || NET_HEADER_SIZE + Message.m_nSize > m_nMaxSize)
        return false;
    WriteHeader(m_pSendBuffer, Message);
    if(Message.m_nSize > 0)
        std::memmove(m_pSendBuffer + NET_HEADER_SIZE, Message.m_pData, Message.m_nSize);
    return true;
}

// True when the whole frame went out on that connection.
bool CNetwork::SendFrame(const CNetMessage& Message, int Socket)
{
    return CopyToSendBuffer(Message) && SendBuffered(Message, Socket);
}

bool CNetwork::SendBuffered(const CNetMessage& Message, int Socket)
{
    const uint32_t uiLength = NET_HEADER_SIZE + Message.m_nSize;
    return m_pSocket && m_pSocket->SendTo(m_pSendBuffer, uiLength, Socket) == static_cast<int>(uiLength);
}

// A client whose link is down sends nothing and says nothing: it plays on alone.
bool CNetwork::SendToServer(const CNetMessage& Message)
{
    if(!m_pSocket || !CopyToSendBuffer(Message))
        return false;
    if(IsHost())
        return m_pSocket->PutMessage(Message);
    if(m_pSocket->GetHandle() == -1)
        return false;
    const uint32_t uiLength = NET_HEADER_SIZE + Message.m_nSize;
    if(m_pSocket->Send(m_pSendBuffer, uiLength) != static_cast<int>(uiLength))
    {
        Log("error: SendToServer() failed");
        return false;
    }
    return true;
}

// A failure on one client does not keep the others from getting the frame.
bool CNetwork::SendToAll(const CNetMessage& Message)
{
    if(!IsHost() || !CopyToSendBuffer(Message))
        return false;
    bool bAll = true;
    for(uint32_t i = 0; i < m_nClients; i++)
    {
        if(m_Clients[i].m_Socket != -1 && !SendBuffered(Message, m_Clients[i].m_Socket))
            bAll = false;
    }
    return bAll;
}

bool CNetwork::SendToClient(const CNetMessage& Message, uint32_t uiId)
{
    if(!IsHost() || !CopyToSendBuffer(Message))
        return false;
    bool bAll = true;
    for(uint32_t i = 0; i < m_nClients; i++)
    {
        const CClientSlot& Slot = m_Clients[i];
        if(Slot.m_Socket != -1 && Slot.m_nId == uiId && !SendBuffered(Message, Slot.m_Socket))
            bAll = false;
    }
    return bAll;
}
