#include "platform/native/SocketEvents.h"

#include <algorithm>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

namespace
{
bool MakeNonBlocking(int Socket)
{
    const int iFlags = fcntl(Socket, F_GETFL, 0);
    return iFlags != -1 && fcntl(Socket, F_SETFL, iFlags | O_NONBLOCK) != -1;
}

bool IsListening(int Socket)
{
    int iListening = 0;
    socklen_t Length = sizeof(iListening);
    return getsockopt(Socket, SOL_SOCKET, SO_ACCEPTCONN, &iListening, &Length) == 0 && iListening != 0;
}

bool HasUnreadData(int Socket)
{
    int iBytes = 0;
    return ioctl(Socket, FIONREAD, &iBytes) == 0 && iBytes > 0;
}
} // namespace

int CSocketEvents::Select(int Socket, uint32_t uiEvents)
{
    if(Socket < 0 || !MakeNonBlocking(Socket))
        return -1;
    Forget(Socket);
    m_vWatches.push_back({Socket, uiEvents, IsListening(Socket), true, false, false});
    return 0;
}

void CSocketEvents::Inherit(int Listener, int Accepted)
{
    for(CWatch& Watch : m_vWatches)
    {
        if(Watch.m_Socket == Listener)
        {
            Watch.m_bAcceptTaken = true;
            const uint32_t uiEvents = Watch.m_uiEvents;
            Select(Accepted, uiEvents);
            return;
        }
    }
}

void CSocketEvents::Forget(int Socket)
{
    m_vWatches.erase(std::remove_if(m_vWatches.begin(), m_vWatches.end(),
                                    [Socket](const CWatch& Watch) { return Watch.m_Socket == Socket; }),
                     m_vWatches.end());
    m_Pending.erase(std::remove_if(m_Pending.begin(), m_Pending.end(),
                                   [Socket](const CPair& Pair) { return Pair.m_Socket == Socket; }),
                    m_Pending.end());
}

CSocketEvents::CWatch* CSocketEvents::Find(int Socket)
{
    for(CWatch& Watch : m_vWatches)
    {
        if(Watch.m_Socket == Socket)
            return &Watch;
    }
    return nullptr;
}

void CSocketEvents::PauseReading(int Socket, bool bPaused)
{
    if(CWatch* pWatch = Find(Socket))
        pWatch->m_bPaused = bPaused;
}

void CSocketEvents::WantWrite(int Socket, bool bWant)
{
    if(CWatch* pWatch = Find(Socket))
        pWatch->m_bWantWrite = bWant;
}

bool CSocketEvents::IsWatched(int Socket) const
{
    return std::any_of(m_vWatches.begin(), m_vWatches.end(),
                       [Socket](const CWatch& Watch) { return Watch.m_Socket == Socket; });
}

// A peer that closed after sending leaves its last bytes to be read first: the close waits until they are.
uint32_t CSocketEvents::EventOf(const CWatch& Watch, short sReady) const
{
    if(Watch.m_bListening)
        return (sReady & POLLIN) ? FD_ACCEPT : 0;
    if(sReady & (POLLHUP | POLLERR))
        return FD_CLOSE;
    if(sReady & POLLRDHUP)
        return HasUnreadData(Watch.m_Socket) ? FD_READ : FD_CLOSE;
    return (sReady & POLLIN) ? FD_READ : 0;
}

// A listener whose waiting connection was refused stays ready until a place frees, and a paused socket whose
// peer has gone reports that at once; a loop that waits on either would spin, so Wait leaves them out. For a
// poll, every watch has its entry, in the same order.
std::vector<pollfd> CSocketEvents::PollSet(bool bForWait) const
{
    std::vector<pollfd> vSet;
    vSet.reserve(m_vWatches.size());
    for(const CWatch& Watch : m_vWatches)
    {
        const bool bRefused = Watch.m_bListening && !Watch.m_bAcceptTaken;
        const short sRead = Watch.m_bPaused ? 0 : POLLIN | POLLRDHUP;
        const short sEvents = static_cast<short>(sRead | (Watch.m_bWantWrite ? POLLOUT : 0));
        if(!bForWait || (!bRefused && sEvents != 0))
            vSet.push_back({Watch.m_Socket, sEvents, 0});
    }
    return vSet;
}

void CSocketEvents::Poll()
{
    std::vector<pollfd> vSet = PollSet(false);
    if(vSet.empty() || poll(vSet.data(), vSet.size(), 0) <= 0)
        return;
    std::vector<int> vClosed;
    for(size_t i = 0; i < vSet.size(); i++)
        Queue(m_vWatches[i], vSet[i].revents, vClosed);
    // A close is reported once; what its handler does with the socket is its own affair.
    for(int Socket : vClosed)
        m_vWatches.erase(std::remove_if(m_vWatches.begin(), m_vWatches.end(),
                                        [Socket](const CWatch& Watch) { return Watch.m_Socket == Socket; }),
                         m_vWatches.end());
}

// Room to write goes first, so that what waited to go out leaves before the answers to what is read.
void CSocketEvents::Queue(CWatch& Watch, short sReady, std::vector<int>& vClosed)
{
    if(sReady & POLLNVAL)
    {
        vClosed.push_back(Watch.m_Socket); // closed behind our back: nothing more will come of it
        return;
    }
    const uint32_t uiEvent = EventOf(Watch, sReady);
    if(Watch.m_bWantWrite && (sReady & POLLOUT) && uiEvent != FD_CLOSE)
        m_Pending.push_back({Watch.m_Socket, FD_WRITE});
    if(uiEvent == FD_ACCEPT)
        Watch.m_bAcceptTaken = false;
    if(uiEvent & Watch.m_uiEvents)
        m_Pending.push_back({Watch.m_Socket, uiEvent});
    if(uiEvent == FD_CLOSE)
        vClosed.push_back(Watch.m_Socket);
}

bool CSocketEvents::HandleOneEvent(const CHandler& fnHandler)
{
    if(m_Pending.empty())
    {
        if(m_bFrameOwed)
        {
            m_bFrameOwed = false;
            return false;
        }
        Poll();
        if(m_Pending.empty())
            return false;
    }
    const CPair Pair = m_Pending.front();
    m_Pending.pop_front();
    m_bFrameOwed = true;
    fnHandler(Pair.m_Socket, Pair.m_uiEvent);
    return true;
}

void CSocketEvents::Wait(uint32_t uiMs) const
{
    std::vector<pollfd> vSet = PollSet(true);
    poll(vSet.data(), vSet.size(), static_cast<int>(uiMs));
}
