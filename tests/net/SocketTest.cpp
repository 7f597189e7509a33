#include "net/Socket.h"
#include "net/NetTestSupport.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <cerrno>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
// A connection whose far end the test writes to, and whose near end the socket under test reads.
struct CPipe
{
    int m_aEnds[2] = {-1, -1};
    CPipe()
    {
        socketpair(AF_UNIX, SOCK_STREAM, 0, m_aEnds);
        fcntl(m_aEnds[0], F_SETFL, O_NONBLOCK);
    }
    ~CPipe()
    {
        close(m_aEnds[0]);
        close(m_aEnds[1]);
    }
    int Near() const { return m_aEnds[0]; }
    void Write(const std::vector<uint8_t>& vBytes) const
    {
        ASSERT_EQ(write(m_aEnds[1], vBytes.data(), vBytes.size()), static_cast<ssize_t>(vBytes.size()));
    }
};

struct CReadFrame
{
    CNetMessage m_Header;
    uint8_t m_aPayload[NET_PAYLOAD_BUFFER] = {};
    bool Take(CSocket& Socket)
    {
        m_Header.m_pData = m_aPayload;
        return Socket.GetMessage(m_Header);
    }
    std::string Text() const { return reinterpret_cast<const char*>(m_aPayload); }
};

std::vector<uint8_t> Concat(const std::vector<uint8_t>& a, const std::vector<uint8_t>& b)
{
    std::vector<uint8_t> v = a;
    v.insert(v.end(), b.begin(), b.end());
    return v;
}
} // namespace

// Frames of three connections arrive a byte at a time, interleaved: each comes out whole, in its own
// connection's order, at the moment its last byte has been read and not before.
TEST(Socket, FramesSplitIntoSingleBytesOnThreeConnectionsComeOutWholeAndInOrder)
{
    CSocket Socket(nullptr);
    ASSERT_TRUE(Socket.Create());
    CPipe aPipes[3];
    std::vector<std::vector<uint8_t>> vStreams(3);
    for(uint32_t c = 0; c < 3; c++)
    {
        for(uint32_t n = 0; n < 3 + c; n++)
            vStreams[c] = Concat(vStreams[c], WireFrame(4, c, n, WireText(std::string(5 + 7 * n + c, 'a' + c))));
    }
    std::vector<size_t> vSent(3, 0);
    std::vector<uint32_t> vNextIndex(3, 0);
    size_t Completed = 0;
    for(bool bMore = true; bMore;)
    {
        bMore = false;
        for(uint32_t c = 0; c < 3; c++)
        {
            if(vSent[c] == vStreams[c].size())
                continue;
            bMore = true;
            aPipes[c].Write({vStreams[c][vSent[c]++]});
            ASSERT_TRUE(Socket.Receive(aPipes[c].Near()));
            CReadFrame Frame;
            while(Frame.Take(Socket))
            {
                const uint32_t uiFrom = Frame.m_Header.m_nFrom;
                ASSERT_LT(uiFrom, 3u);
                EXPECT_EQ(Frame.m_Header.m_nTo, vNextIndex[uiFrom]++);
                EXPECT_EQ(Frame.Text(), std::string(5 + 7 * Frame.m_Header.m_nTo + uiFrom, 'a' + uiFrom));
                EXPECT_EQ(uiFrom, c) << "a frame came out before its last byte";
                Completed++;
            }
        }
    }
    EXPECT_EQ(Completed, 3u + 4u + 5u);
}

TEST(Socket, AHeaderAloneWaitsForMoreAndGetMessageKeepsTheCallersBuffer)
{
    CSocket Socket(nullptr);
    ASSERT_TRUE(Socket.Create());
    CPipe Pipe;
    CReadFrame Frame;
    Frame.m_Header = {7, 8, 9, 10, nullptr};
    EXPECT_FALSE(Frame.Take(Socket));
    EXPECT_EQ(Frame.m_Header.m_nSize, 7u) << "an empty queue leaves the argument as it was";
    EXPECT_EQ(Frame.m_Header.m_nTo, 10u);

    Pipe.Write(Concat(WireFrame(3, 1, 1, WireText("one")), WireFrame(3, 1, 2, WireText("two"))));
    ASSERT_TRUE(Socket.Receive(Pipe.Near()));
    ASSERT_TRUE(Frame.Take(Socket));
    EXPECT_EQ(Frame.Text(), "one");
    EXPECT_EQ(Frame.m_Header.m_pData, Frame.m_aPayload);
    ASSERT_TRUE(Frame.Take(Socket));
    EXPECT_EQ(Frame.Text(), "two");

    // A header with nothing behind it is only read once more bytes follow it.
    Pipe.Write(WireFrame(9, 1, 0, {}));
    ASSERT_TRUE(Socket.Receive(Pipe.Near()));
    EXPECT_FALSE(Socket.HasMessage());
    const std::vector<uint8_t> vNext = WireFrame(3, 1, 3, WireText("three"));
    Pipe.Write(std::vector<uint8_t>(vNext.begin(), vNext.begin() + 24));
    ASSERT_TRUE(Socket.Receive(Pipe.Near()));
    ASSERT_TRUE(Frame.Take(Socket));
    EXPECT_EQ(Frame.m_Header.m_nType, 9u);
    EXPECT_EQ(Frame.m_Header.m_nSize, 0u);
    EXPECT_FALSE(Socket.HasMessage()) << "a payload shorter than its size yields nothing yet";
    Pipe.Write(std::vector<uint8_t>(vNext.begin() + 24, vNext.end()));
    ASSERT_TRUE(Socket.Receive(Pipe.Near()));
    ASSERT_TRUE(Frame.Take(Socket));
    EXPECT_EQ(Frame.Text(), "three");

    close(Pipe.m_aEnds[1]);
    Pipe.m_aEnds[1] = -1;
    EXPECT_TRUE(Socket.Receive(Pipe.Near())) << "a peer that closed reads as nothing, successfully";
    EXPECT_FALSE(Socket.HasMessage());
}

// The largest payload any frame may have is taken; one byte more cuts its connection off and leaves the
// other connection's stream as it was.
TEST(Socket, AFrameLargerThanAnyMessageCutsOffOnlyItsOwnConnection)
{
    CLogRecorder Log;
    CSocket Socket(nullptr);
    ASSERT_TRUE(Socket.Create());
    CPipe Honest, Rogue;
    const std::vector<uint8_t> vLargest = WireFrame(4, 1, 0, std::vector<uint8_t>(NET_MAX_PAYLOAD, 'x'));
    Honest.Write(std::vector<uint8_t>(vLargest.begin(), vLargest.begin() + 100));
    ASSERT_TRUE(Socket.Receive(Honest.Near()));
    Rogue.Write(WireFrame(4, 2, 0, std::vector<uint8_t>(NET_MAX_PAYLOAD + 1, 'y')));
    EXPECT_FALSE(Socket.Receive(Rogue.Near()));
    EXPECT_EQ(Log.Lines().size(), 1u);
    EXPECT_EQ(Log.Count("cut off"), 1u);
    char cByte;
    EXPECT_EQ(read(Rogue.m_aEnds[1], &cByte, 1), 0) << "the rogue's connection is shut down";
    Honest.Write(std::vector<uint8_t>(vLargest.begin() + 100, vLargest.end()));
    ASSERT_TRUE(Socket.Receive(Honest.Near()));
    CReadFrame Frame;
    ASSERT_TRUE(Frame.Take(Socket));
    EXPECT_EQ(Frame.m_Header.m_nFrom, 1u);
    EXPECT_EQ(Frame.m_Header.m_nSize, NET_MAX_PAYLOAD);
    EXPECT_FALSE(Socket.HasMessage());
}

TEST(Socket, ErrorsAreLoggedUnderTheirWinsockNames)
{
    CLogRecorder Log;
    CSocket Socket(nullptr);
    const std::pair<int, const char*> aCases[] = {
        {ECONNREFUSED, "WSAECONNREFUSED"}, {EAGAIN, "WSAEWOULDBLOCK"},    {EBADF, "WSAENOTSOCK"},
        {ETIMEDOUT, "WSAETIMEDOUT"},       {EADDRINUSE, "WSAEADDRINUSE"}, {ENOENT, "unknown error code"},
    };
    for(const auto& Case : aCases)
    {
        errno = Case.first;
        Socket.ReportError("bind() failed");
        EXPECT_EQ(Log.Lines().back(), std::string("error: bind() failed | ") + Case.second);
    }
}

// A refused connection and one that is never answered both fail with their reasons; the second gives up
// after the connect time-out instead of holding the game for minutes.
TEST(Socket, ConnectsFailRefusedOrTimedOutAndCloseTheSocketOnce)
{
    CLogRecorder Log;
    CSocket Refused(nullptr);
    ASSERT_TRUE(Refused.Create());
    EXPECT_FALSE(Refused.Connect("127.0.0.1", FreeLoopbackPort()));
    EXPECT_EQ(Log.Count("error: connect() in CSocket::Connect failed | WSAECONNREFUSED"), 1u);
    EXPECT_EQ(Log.Lines().back(), "socket closed");
    EXPECT_EQ(Refused.GetHandle(), -1);
    Refused.Close();
    EXPECT_EQ(Log.Count("socket closed"), 1u) << "closing a closed socket says nothing";

    // A listener whose backlog is full drops new handshakes: the connect hears nothing back.
    const int Listener = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in Address{};
    Address.sin_family = AF_INET;
    Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ASSERT_EQ(bind(Listener, reinterpret_cast<sockaddr*>(&Address), sizeof(Address)), 0);
    ASSERT_EQ(listen(Listener, 0), 0);
    Address.sin_port = htons(BoundPort(Listener));
    std::vector<int> vFillers;
    for(int i = 0; i < 3; i++)
    {
        vFillers.push_back(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0));
        connect(vFillers.back(), reinterpret_cast<sockaddr*>(&Address), sizeof(Address));
    }
    usleep(200000);
    CSocket Unanswered(nullptr);
    ASSERT_TRUE(Unanswered.Create());
    EXPECT_FALSE(Unanswered.Connect("127.0.0.1", BoundPort(Listener)));
    EXPECT_EQ(Log.Count("error: connect() in CSocket::Connect failed | WSAETIMEDOUT"), 1u);
    for(int Filler : vFillers)
        close(Filler);
    close(Listener);
}

// A peer that has gone away makes sends fail; it must not take the process with it.
TEST(Socket, SendsToAPeerThatHasGoneFailWithoutKillingTheGame)
{
    CLogRecorder Log;
    CSocket Socket(nullptr);
    ASSERT_TRUE(Socket.Create());
    const int Listener = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in Address{};
    Address.sin_family = AF_INET;
    Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    bind(Listener, reinterpret_cast<sockaddr*>(&Address), sizeof(Address));
    listen(Listener, 1);
    ASSERT_TRUE(Socket.Connect("127.0.0.1", BoundPort(Listener)));
    close(accept(Listener, nullptr, nullptr));
    close(Listener);
    const std::vector<uint8_t> vFrame = WireFrame(4, 1, 0, WireText("anyone there?"));
    int iLast = 0;
    for(int i = 0; i < 50 && iLast != -1; i++)
    {
        iLast = Socket.Send(vFrame.data(), static_cast<uint32_t>(vFrame.size()));
        usleep(2000);
    }
    EXPECT_EQ(iLast, -1);
    EXPECT_GE(Log.Count("error: send() in CSocket |"), 1u);
}
