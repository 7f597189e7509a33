#pragma once
#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

// The readiness events of a socket, by the numbers the network code hands them on with.
constexpr uint32_t FD_READ = 1;
constexpr uint32_t FD_WRITE = 2;
constexpr uint32_t FD_ACCEPT = 8;
constexpr uint32_t FD_CONNECT = 16;
constexpr uint32_t FD_CLOSE = 32;

// Turns the readiness of watched sockets into (socket, event) pairs that the game's one thread handles one at
// a time between frames, as if they were window messages. A poll that does not wait finds what is ready; its
// pairs are handed out one per call, and once they are all gone the next call says "nothing pending", so a
// frame runs before the sockets are polled again. No peer, however busy, can keep the frames from running.
//
// Read and close are level-triggered: a socket with unread data is reported again at the next poll, and a
// closed peer gives FD_CLOSE once its data has been read, after which the socket is no longer watched. A
// listener reports FD_ACCEPT while connections wait. FD_WRITE comes only for a socket whose sender has asked
// for it, having bytes that found no room; FD_CONNECT never comes, since connecting blocks before a socket is
// selected.
class CSocketEvents
{
public:
    typedef std::function<void(int Socket, uint32_t uiEvent)> CHandler;

    // Makes the socket non-blocking and asks for the given events of it; -1 when that fails.
    int Select(int Socket, uint32_t uiEvents);
    // A socket that accept gave takes over the listener's selection.
    void Inherit(int Listener, int Accepted);
    // The socket is about to be closed: it is no longer watched, and its pairs not yet handed out go too.
    void Forget(int Socket);
    // A paused socket is not watched for reading (its close still comes); a socket that wants to write is
    // told by FD_WRITE when there is room, whatever events were selected.
    void PauseReading(int Socket, bool bPaused);
    void WantWrite(int Socket, bool bWant);
    // Hands one pending pair to the handler and returns true, or returns false when none is pending.
    bool HandleOneEvent(const CHandler& fnHandler);
    // Blocks until a watched socket is ready or the time is up: the sleep of a loop that paces its frames.
    void Wait(uint32_t uiMs) const;
    bool IsWatched(int Socket) const;

private:
    struct CWatch
    {
        int m_Socket;
        uint32_t m_uiEvents;
        bool m_bListening;
        bool m_bAcceptTaken; // the last FD_ACCEPT led to an accept; a refused one does not wake Wait
        bool m_bPaused;
        bool m_bWantWrite;
    };
    struct CPair
    {
        int m_Socket;
        uint32_t m_uiEvent;
    };

    void Poll();
    void Queue(CWatch& Watch, short sReady, std::vector<int>& vClosed);
    std::vector<struct pollfd> PollSet(bool bForWait) const;
    CWatch* Find(int Socket);
    uint32_t EventOf(const CWatch& Watch, short sReady) const;

    std::vector<CWatch> m_vWatches;
    std::deque<CPair> m_Pending;
    bool m_bFrameOwed = false; // pairs went out since the last "nothing pending"
};
