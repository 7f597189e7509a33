#include "net/NetTestSupport.h"

#include "net/Log.h"
#include "net/Socket.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <netinet/in.h>
#include <poll.h>
#include <sstream>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace
{
LogSink g_pOldSink = nullptr;

void RecordLine(const char* pLine)
{
    CLogRecorder::Lines().emplace_back(pLine);
}

uint32_t ReadU32At(const std::vector<uint8_t>& v, size_t At)
{
    return v[At] | v[At + 1] << 8 | v[At + 2] << 16 | static_cast<uint32_t>(v[At + 3]) << 24;
}

std::string ReadFile(const std::string& Path)
{
    std::ifstream Stream(Path);
    std::stringstream Text;
    Text << Stream.rdbuf();
    return Text.str();
}

int64_t NowMs()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}
} // namespace

const std::vector<uint8_t> MARK_PAYLOAD = {'0'};

CLogRecorder::CLogRecorder()
{
    Lines().clear();
    g_pOldSink = SetLogSink(RecordLine);
}

CLogRecorder::~CLogRecorder()
{
    SetLogSink(g_pOldSink);
}

std::vector<std::string>& CLogRecorder::Lines()
{
    static std::vector<std::string> s_vLines;
    return s_vLines;
}

size_t CLogRecorder::Count(const std::string& Part)
{
    size_t Count = 0;
    for(const std::string& Line : Lines())
        Count += Line.find(Part) != std::string::npos ? 1 : 0;
    return Count;
}

sockaddr_in Loopback(uint16_t usPort)
{
    sockaddr_in Address{};
    Address.sin_family = AF_INET;
    Address.sin_port = htons(usPort);
    Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return Address;
}

uint16_t BoundPort(int Socket)
{
    sockaddr_in Address{};
    socklen_t Length = sizeof(Address);
    getsockname(Socket, reinterpret_cast<sockaddr*>(&Address), &Length);
    return ntohs(Address.sin_port);
}

uint16_t FreeLoopbackPort()
{
    const int Socket = socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in Address = Loopback(0);
    bind(Socket, reinterpret_cast<const sockaddr*>(&Address), sizeof(Address));
    const uint16_t usPort = BoundPort(Socket);
    close(Socket);
    return usPort;
}

std::vector<uint8_t> WireU32(uint32_t uiValue)
{
    return {static_cast<uint8_t>(uiValue), static_cast<uint8_t>(uiValue >> 8), static_cast<uint8_t>(uiValue >> 16),
            static_cast<uint8_t>(uiValue >> 24)};
}

std::vector<uint8_t> WireText(const std::string& Text)
{
    std::vector<uint8_t> vBytes(Text.begin(), Text.end());
    vBytes.push_back(0);
    return vBytes;
}

std::vector<uint8_t> WireFrame(uint32_t uiType, uint32_t uiFrom, uint32_t uiTo, const std::vector<uint8_t>& vPayload)
{
    std::vector<uint8_t> vFrame;
    for(uint32_t uiField : {static_cast<uint32_t>(vPayload.size()), uiType, uiFrom, uiTo, 0xDEADBEEFu})
    {
        const std::vector<uint8_t> vField = WireU32(uiField);
        vFrame.insert(vFrame.end(), vField.begin(), vField.end());
    }
    vFrame.insert(vFrame.end(), vPayload.begin(), vPayload.end());
    return vFrame;
}

CWireClient::~CWireClient()
{
    Close();
}

bool CWireClient::Connect(uint16_t usPort)
{
    m_Socket = socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in Address = Loopback(usPort);
    return connect(m_Socket, reinterpret_cast<const sockaddr*>(&Address), sizeof(Address)) == 0;
}

bool CWireClient::Send(const std::vector<uint8_t>& vBytes) const
{
    return send(m_Socket, vBytes.data(), vBytes.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(vBytes.size());
}

bool CWireClient::Fill(size_t Need, int iTimeoutMs)
{
    const int64_t End = NowMs() + iTimeoutMs;
    while(m_vIn.size() < Need)
    {
        pollfd Entry{m_Socket, POLLIN, 0};
        const int64_t Left = std::max<int64_t>(End - NowMs(), 0);
        if(poll(&Entry, 1, static_cast<int>(Left)) <= 0)
            return false;
        uint8_t aBuffer[4096];
        const ssize_t Read = recv(m_Socket, aBuffer, sizeof(aBuffer), 0);
        if(Read <= 0)
            return false;
        m_vIn.insert(m_vIn.end(), aBuffer, aBuffer + Read);
    }
    return true;
}

bool CWireClient::Read(CWireFrame& Frame, int iTimeoutMs)
{
    if(!Fill(20, iTimeoutMs))
        return false;
    Frame.m_uiSize = ReadU32At(m_vIn, 0);
    if(Frame.m_uiSize > 65536 || !Fill(20 + Frame.m_uiSize, iTimeoutMs))
        return false;
    Frame.m_uiType = ReadU32At(m_vIn, 4);
    Frame.m_uiFrom = ReadU32At(m_vIn, 8);
    Frame.m_uiTo = ReadU32At(m_vIn, 12);
    Frame.m_vPayload.assign(m_vIn.begin() + 20, m_vIn.begin() + 20 + Frame.m_uiSize);
    m_vIn.erase(m_vIn.begin(), m_vIn.begin() + 20 + Frame.m_uiSize);
    return true;
}

bool CWireClient::ReadUntil(uint32_t uiType, CWireFrame& Frame, int iTimeoutMs)
{
    const int64_t End = NowMs() + iTimeoutMs;
    while(Read(Frame, static_cast<int>(std::max<int64_t>(End - NowMs(), 0))))
    {
        if(Frame.m_uiType == uiType)
            return true;
    }
    return false;
}

bool CWireClient::SeesClose(int iTimeoutMs)
{
    const int64_t End = NowMs() + iTimeoutMs;
    for(;;)
    {
        pollfd Entry{m_Socket, POLLIN, 0};
        const int64_t Left = End - NowMs();
        if(Left <= 0 || poll(&Entry, 1, static_cast<int>(Left)) <= 0)
            return false;
        uint8_t aBuffer[4096];
        const ssize_t Read = recv(m_Socket, aBuffer, sizeof(aBuffer), 0);
        if(Read <= 0)
            return true;
    }
}

void CWireClient::Close()
{
    if(m_Socket != -1)
        close(m_Socket);
    m_Socket = -1;
}

bool PumpUntil(const std::vector<CPeer*>& vPeers, const std::function<bool()>& fnDone, int iTimeoutMs, bool bProcess)
{
    const int64_t End = NowMs() + iTimeoutMs;
    while(!fnDone())
    {
        if(NowMs() > End)
            return false;
        for(CPeer* pPeer : vPeers)
        {
            CNetwork& Net = pPeer->m_Net;
            while(pPeer->m_Events.HandleOneEvent(
                [&Net](int Socket, uint32_t uiEvent) { Net.OnSocketEvent(Socket, uiEvent); }))
            {
            }
            if(bProcess)
                Net.ProcessMessages();
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

void PumpFor(const std::vector<CPeer*>& vPeers, int iMs)
{
    PumpUntil(
        vPeers, [] { return false; }, iMs);
}

bool StartHost(CPeer& Host, uint32_t uiMaxClients)
{
    return Host.m_Net.Init(&Host.m_Events, NET_MODE_HOST, 0, "", NET_MAX_FRAME, uiMaxClients);
}

uint16_t PortOf(const CPeer& Host)
{
    return BoundPort(Host.m_Net.m_pSocket->GetHandle());
}

bool JoinClient(CPeer& Host, CPeer& Client, std::vector<CPeer*> vOthers)
{
    if(!Client.m_Net.Init(&Client.m_Events, NET_MODE_CLIENT, PortOf(Host), "127.0.0.1", NET_MAX_FRAME,
                          GAME_MAX_CLIENTS))
        return false;
    vOthers.push_back(&Host);
    vOthers.push_back(&Client);
    CNetwork& Net = Client.m_Net;
    return PumpUntil(vOthers, [&Net, &Host] { return Net.m_nMyId != 0 && ListedIds(Net) == ListedIds(Host.m_Net); });
}

bool JoinWire(CPeer& Host, CWireClient& Client, uint32_t& uiId)
{
    if(!Client.Connect(PortOf(Host)))
        return false;
    std::vector<CWireFrame> vFrames;
    PumpUntil({&Host}, [&Client, &vFrames] {
        CWireFrame Frame;
        while(vFrames.size() < 3 && Client.Read(Frame, 0))
            vFrames.push_back(Frame);
        return vFrames.size() == 3;
    });
    if(vFrames.size() != 3 || vFrames[0].m_uiType != 0 || vFrames[1].m_uiType != 1 || vFrames[2].m_uiType != 6)
        return false;
    uiId = vFrames[0].m_vPayload[0] | vFrames[0].m_vPayload[1] << 8;
    return true;
}

std::vector<uint32_t> ListedIds(const CNetwork& Net)
{
    std::vector<uint32_t> vIds;
    for(uint32_t i = 0; i < Net.m_nPlayers && i < MAX_PLAYERS; i++)
        vIds.push_back(Net.m_Players[i].m_bPresent ? Net.m_Players[i].m_nId : NO_PLAYER);
    return vIds;
}

CChildProcess::~CChildProcess()
{
    if(m_Pid > 0 && m_iExit == -1)
    {
        kill(m_Pid, SIGKILL);
        waitpid(m_Pid, nullptr, 0);
    }
    std::remove(m_OutFile.c_str());
    std::remove(m_ErrFile.c_str());
}

bool CChildProcess::Start(const std::vector<std::string>& vArgs, const std::string& Folder)
{
    char szOut[] = "/tmp/trelvane-child-out-XXXXXX";
    char szErr[] = "/tmp/trelvane-child-err-XXXXXX";
    const int Out = mkstemp(szOut);
    const int Err = mkstemp(szErr);
    m_OutFile = szOut;
    m_ErrFile = szErr;
    m_Pid = fork();
    if(m_Pid == 0)
    {
        dup2(Out, 1);
        dup2(Err, 2);
        if(!Folder.empty() && chdir(Folder.c_str()) != 0)
            _exit(126);
        std::vector<char*> vArgv;
        for(const std::string& Arg : vArgs)
            vArgv.push_back(const_cast<char*>(Arg.c_str()));
        vArgv.push_back(nullptr);
        execv(vArgv[0], vArgv.data());
        _exit(127);
    }
    close(Out);
    close(Err);
    return m_Pid > 0;
}

int CChildProcess::Wait(int iTimeoutMs)
{
    const int64_t End = NowMs() + iTimeoutMs;
    while(m_iExit == -1 && m_Pid > 0)
    {
        int iStatus = 0;
        if(waitpid(m_Pid, &iStatus, WNOHANG) == m_Pid)
            m_iExit = WIFEXITED(iStatus) ? WEXITSTATUS(iStatus) : 128 + WTERMSIG(iStatus);
        else if(NowMs() > End)
            return -1;
        else
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return m_iExit;
}

void CChildProcess::Kill()
{
    if(m_Pid > 0 && m_iExit == -1)
    {
        kill(m_Pid, SIGKILL);
        Wait(10000);
    }
}

int CChildProcess::Stop(int iTimeoutMs)
{
    if(m_Pid > 0 && m_iExit == -1)
        kill(m_Pid, SIGTERM);
    return Wait(iTimeoutMs);
}

std::string CChildProcess::Output() const
{
    return ReadFile(m_OutFile);
}

std::string CChildProcess::Errors() const
{
    return ReadFile(m_ErrFile);
}

std::vector<std::string> BotCommand(const std::vector<std::string>& vArgs)
{
    std::vector<std::string> vCommand = {TRELVANE_BOT_BINARY};
    vCommand.insert(vCommand.end(), vArgs.begin(), vArgs.end());
    return vCommand;
}
