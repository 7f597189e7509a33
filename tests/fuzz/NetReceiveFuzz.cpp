// The receive side of the socket: bytes from several peers arrive in pieces of any size, interleaved, and must
// come out as exactly the frames the peers sent, in the order they became whole. A small, obviously correct
// parser kept here stands beside the real one and says which frames that is.
#include "net/Log.h"
#include "net/NetMessage.h"
#include "net/Socket.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <deque>
#include <fcntl.h>
#include <memory>
#include <vector>

namespace
{
constexpr int CONNECTIONS = 4;
// Far above any descriptor the process holds, so that cutting a peer off shuts down nothing real.
constexpr int FIRST_CONNECTION = 100000;

// One whole frame as a reader sees it: the four numbers of the header and the payload.
struct CExpectedFrame
{
    uint32_t m_nSize;
    uint32_t m_nType;
    uint32_t m_nFrom;
    uint32_t m_nTo;
    std::vector<uint8_t> m_vPayload;
    uint32_t m_nSource; // the connection's index + 1, or 0 for the host's own
};

// What the socket should do with the bytes: one stream per connection, its frames marked with it, a frame
// taken once more than a header waits and the whole frame is there, and a header that announces more than
// any game sends throws the stream away, together with whatever else came in the same read.
class CReferenceParser
{
public:
    // False when the piece got the connection cut off.
    bool Feed(int iConnection, const uint8_t* pBytes, size_t Count)
    {
        std::vector<uint8_t>& vStream = m_avStreams[iConnection];
        vStream.insert(vStream.end(), pBytes, pBytes + Count);
        size_t Pos = 0;
        while(vStream.size() - Pos > NET_HEADER_SIZE)
        {
            const uint32_t uiSize = ReadU32(vStream.data() + Pos);
            if(uiSize > NET_MAX_PAYLOAD)
            {
                vStream.clear();
                return false;
            }
            if(vStream.size() - Pos < NET_HEADER_SIZE + uiSize)
                break;
            Queue(vStream.data() + Pos, uiSize, static_cast<uint32_t>(iConnection) + 1);
            Pos += NET_HEADER_SIZE + uiSize;
        }
        vStream.erase(vStream.begin(), vStream.begin() + static_cast<std::ptrdiff_t>(Pos));
        return true;
    }

    // A closed connection forgets what it had half-received.
    void Forget(int iConnection) { m_avStreams[iConnection].clear(); }

    void Queue(const uint8_t* pFrame, uint32_t uiSize, uint32_t uiSource)
    {
        const uint8_t* pPayload = pFrame + NET_HEADER_SIZE;
        m_Expected.push_back(CExpectedFrame{uiSize, ReadU32(pFrame + 4), ReadU32(pFrame + 8), ReadU32(pFrame + 12),
                                            std::vector<uint8_t>(pPayload, pPayload + uiSize), uiSource});
    }

    std::vector<uint8_t> m_avStreams[CONNECTIONS];
    std::deque<CExpectedFrame> m_Expected;
};

// Reads input bytes front to back; past the end every read gives 0.
class CInput
{
public:
    CInput(const uint8_t* pData, size_t Size) : m_pData(pData), m_Size(Size) {}
    bool Empty() const { return m_Pos >= m_Size; }
    size_t Left() const { return m_Size - m_Pos; }
    uint8_t Byte() { return m_Pos < m_Size ? m_pData[m_Pos++] : 0; }
    uint32_t U16() { return Byte() | static_cast<uint32_t>(Byte()) << 8; }
    uint32_t U32() { return U16() | U16() << 16; }
    const uint8_t* Take(size_t Count)
    {
        const uint8_t* p = m_pData + m_Pos;
        m_Pos += Count;
        return p;
    }

private:
    const uint8_t* m_pData;
    size_t m_Size;
    size_t m_Pos = 0;
};

bool IsOpenDescriptor(int iFd)
{
    return fcntl(iFd, F_GETFD) != -1 || errno != EBADF;
}

// Takes up to uiMax frames off the socket and holds each against the next expected one.
uint32_t Drain(CSocket& Socket, CReferenceParser& Reference, uint8_t* pPayload, uint32_t uiMax)
{
    uint32_t uiTaken = 0;
    CNetMessage Message;
    while(uiTaken < uiMax)
    {
        Message.m_pData = pPayload;
        if(Socket.HasMessage() == Reference.m_Expected.empty())
            __builtin_trap();
        uint32_t uiSource = UINT32_MAX;
        if(!Socket.GetMessage(Message, &uiSource))
            break;
        // The reader's buffer is where the payload goes, never something the socket picks.
        if(Message.m_pData != pPayload || Message.m_nSize > NET_MAX_PAYLOAD)
            __builtin_trap();
        const CExpectedFrame& Expected = Reference.m_Expected.front();
        if(Message.m_nSize != Expected.m_nSize || Message.m_nType != Expected.m_nType ||
           Message.m_nFrom != Expected.m_nFrom || Message.m_nTo != Expected.m_nTo || uiSource != Expected.m_nSource ||
           (Message.m_nSize > 0 && std::memcmp(pPayload, Expected.m_vPayload.data(), Message.m_nSize) != 0))
            __builtin_trap();
        Reference.m_Expected.pop_front();
        uiTaken++;
    }
    return uiTaken;
}
} // namespace

// The first byte's bit 0 says what becomes of a peer once it is cut off. Then steps, each led by one byte: its
// low two bits name the connection, the next two the kind of step. 0 a piece of up to 255 bytes for the
// connection, 1 a piece of 32 times the next byte, 2 the host's own frame put in the queue, 3 with bit 4 set a
// close of the connection, else a read of as many frames as the top three bits say.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t Size)
{
    static const bool bChecked = [] {
        for(int i = 0; i < CONNECTIONS; i++)
        {
            if(IsOpenDescriptor(FIRST_CONNECTION + i))
                __builtin_trap();
        }
        return true;
    }();
    (void)bChecked;
    SetLogSink([](const char*) {}); // every cut-off says so in the log

    CSocket Socket(nullptr);
    if(!Socket.Create())
        return 0;
    // Exactly the room GetMessage may use, so that a byte written beyond it is caught.
    const std::unique_ptr<uint8_t[]> pPayload(new uint8_t[NET_PAYLOAD_BUFFER]);
    CReferenceParser Reference;
    CInput Input(pData, Size);
    // Either a peer that was cut off is never heard from again, or later bytes on its number start afresh,
    // as they would from a new peer that got the same descriptor.
    const bool bRetireCut = (Input.Byte() & 1) != 0;
    bool abCut[CONNECTIONS] = {};
    uint32_t uiReceived = 0;
    size_t FedBytes = 0;
    uint32_t uiSteps = 0;

    while(!Input.Empty() && uiSteps++ < 4096)
    {
        const uint8_t ucStep = Input.Byte();
        const int iIndex = ucStep & 3;
        const int iConnection = FIRST_CONNECTION + iIndex;
        switch((ucStep >> 2) & 3)
        {
        case 0:
        case 1:
        {
            size_t Count = (ucStep >> 2) & 1 ? static_cast<size_t>(Input.Byte()) * 32 : Input.Byte();
            Count = std::min(Count, Input.Left());
            const uint8_t* pPiece = Input.Take(Count);
            if(bRetireCut && abCut[iIndex])
                break;
            const bool bExpected = Reference.Feed(iIndex, pPiece, Count);
            const uint32_t uiSource = static_cast<uint32_t>(iIndex) + 1;
            if(Socket.Absorb(iConnection, pPiece, static_cast<uint32_t>(Count), uiSource) != bExpected)
                __builtin_trap();
            abCut[iIndex] = abCut[iIndex] || !bExpected;
            FedBytes += Count;
            break;
        }
        case 2:
        {
            // The host reads its own messages from the same queue; a frame too large is refused whole.
            uint32_t uiSize = Input.U16() % (NET_MAX_PAYLOAD + 100);
            if(ucStep & 0x10)
                uiSize &= 0x3F;
            CNetMessage Message;
            Message.m_nSize = uiSize;
            Message.m_nType = Input.Byte();
            Message.m_nFrom = Input.Byte();
            Message.m_nTo = Input.U32();
            const size_t Count = std::min<size_t>(uiSize, Input.Left());
            std::vector<uint8_t> vBody(uiSize, 0);
            if(Count > 0)
                std::memcpy(vBody.data(), Input.Take(Count), Count);
            Message.m_pData = vBody.data();
            const bool bFits = uiSize <= NET_MAX_PAYLOAD;
            if(Socket.PutMessage(Message) != bFits)
                __builtin_trap();
            if(bFits)
            {
                uint8_t aHeader[NET_HEADER_SIZE];
                WriteHeader(aHeader, Message);
                std::vector<uint8_t> vFrame(aHeader, aHeader + NET_HEADER_SIZE);
                vFrame.insert(vFrame.end(), vBody.begin(), vBody.end());
                Reference.Queue(vFrame.data(), uiSize, FROM_HOST);
                FedBytes += NET_HEADER_SIZE + uiSize + 1;
            }
            break;
        }
        default:
            if(ucStep & 0x10)
            {
                if(IsOpenDescriptor(iConnection))
                    __builtin_trap();
                Socket.CloseConnection(iConnection);
                Reference.Forget(iIndex);
            }
            else
                uiReceived += Drain(Socket, Reference, pPayload.get(), ucStep >> 5);
            break;
        }
    }
    uiReceived += Drain(Socket, Reference, pPayload.get(), UINT32_MAX);
    // A frame takes at least its header from the stream: one that announces no payload at all is taken too,
    // once a byte of whatever follows it is waiting. So no run yields more frames than headers it was fed.
    if(uiReceived > FedBytes / NET_HEADER_SIZE || !Reference.m_Expected.empty() || Socket.HasMessage())
        __builtin_trap();
    return 0;
}
