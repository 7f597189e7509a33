#pragma once
#include "net/Network.h"
#include "platform/native/SocketEvents.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <netinet/in.h>
#include <string>
#include <vector>

// Everything here talks to 127.0.0.1 only, and every wait is bounded.

// Keeps the network's log lines for the test to read, and gives the old sink back at the end.
class CLogRecorder
{
public:
    CLogRecorder();
    ~CLogRecorder();
    static std::vector<std::string>& Lines();
    static size_t Count(const std::string& Part);
};

// The loopback address with a port.
sockaddr_in Loopback(uint16_t usPort);
// A port on the loopback address that nothing listens on at the moment of asking.
uint16_t FreeLoopbackPort();
// The port a listening socket was given.
uint16_t BoundPort(int Socket);

// A frame in its wire form, written byte by byte as the layout describes it.
std::vector<uint8_t> WireFrame(uint32_t uiType, uint32_t uiFrom, uint32_t uiTo, const std::vector<uint8_t>& vPayload);
std::vector<uint8_t> WireText(const std::string& Text); // the characters and their terminating zero
std::vector<uint8_t> WireU32(uint32_t uiValue);
extern const std::vector<uint8_t> MARK_PAYLOAD;

struct CWireFrame
{
    uint32_t m_uiSize = 0;
    uint32_t m_uiType = 0;
    uint32_t m_uiFrom = 0;
    uint32_t m_uiTo = 0;
    std::vector<uint8_t> m_vPayload;
};

// A peer written from the wire layout alone: it knows nothing of the game's classes.
class CWireClient
{
public:
    ~CWireClient();
    bool Connect(uint16_t usPort);
    bool Send(const std::vector<uint8_t>& vBytes) const;
    // The next whole frame, or false when none has come within the time.
    bool Read(CWireFrame& Frame, int iTimeoutMs);
    // Frames until one of the type comes; false when none does within the time.
    bool ReadUntil(uint32_t uiType, CWireFrame& Frame, int iTimeoutMs);
    // True when the peer has closed this connection within the time.
    bool SeesClose(int iTimeoutMs);
    void Close();
    int m_Socket = -1;

private:
    bool Fill(size_t Need, int iTimeoutMs);
    std::vector<uint8_t> m_vIn;
};

// One machine of a network game inside the test process: its link and its events. A peer has a link of its
// own, or drives a game's.
struct CPeer
{
    CPeer() : m_pOwn(std::make_unique<CNetwork>()), m_Net(*m_pOwn) {}
    explicit CPeer(CNetwork& Net) : m_Net(Net) {}
    CSocketEvents m_Events;
    std::unique_ptr<CNetwork> m_pOwn;
    CNetwork& m_Net;
};

// Hands every pending socket event to its peer, then (unless told not to) runs each peer's message loop,
// until the condition holds or the time is up; returns the condition.
bool PumpUntil(const std::vector<CPeer*>& vPeers, const std::function<bool()>& fnDone, int iTimeoutMs = 3000,
               bool bProcess = true);
// Pumps for a while whatever happens: for checking that something does not come.
void PumpFor(const std::vector<CPeer*>& vPeers, int iMs);
// A host on a port of its own, and a client joined to it as far as its id and its table.
bool StartHost(CPeer& Host, uint32_t uiMaxClients = GAME_MAX_CLIENTS);
uint16_t PortOf(const CPeer& Host);
bool JoinClient(CPeer& Host, CPeer& Client, std::vector<CPeer*> vOthers = {});
// A wire client joined to the host, its first three frames read.
bool JoinWire(CPeer& Host, CWireClient& Client, uint32_t& uiId);

// The ids of a table's listed slots, for comparing tables.
std::vector<uint32_t> ListedIds(const CNetwork& Net);

// A program run in the background, its output kept in files; ended by its own id if still running at the end.
class CChildProcess
{
public:
    ~CChildProcess();
    // Starts the program in the folder given, or in the test's own.
    bool Start(const std::vector<std::string>& vArgs, const std::string& Folder = "");
    // Ends it at once, by its id, as a machine that is switched off.
    void Kill();
    // The exit code, or -1 when it has not ended within the time.
    int Wait(int iTimeoutMs);
    // Asks it to end, by its id, and waits for it as Wait does.
    int Stop(int iTimeoutMs);
    std::string Output() const; // what it printed on standard output
    std::string Errors() const; // and on standard error
    int Pid() const { return m_Pid; }

private:
    int m_Pid = -1;
    int m_iExit = -1;
    std::string m_OutFile;
    std::string m_ErrFile;
};

// The bot built alongside the tests, with its arguments.
std::vector<std::string> BotCommand(const std::vector<std::string>& vArgs);
