#pragma once
#include <cstdint>

// Every frame on the wire is a 20-byte header and m_nSize bytes of payload behind it; all numbers are
// little-endian.
constexpr uint32_t NET_HEADER_SIZE = 20;
// The largest whole frame a send takes, header included, and the payload buffer of the message loop.
constexpr uint32_t NET_MAX_FRAME = 5000;
// The largest payload a frame may announce: anything more could never have been sent by a game.
constexpr uint32_t NET_MAX_PAYLOAD = NET_MAX_FRAME - NET_HEADER_SIZE;
// What a reader of GetMessage must have room for.
constexpr uint32_t NET_PAYLOAD_BUFFER = 5000;

// The header of a frame as callers fill it in and read it back. On the wire m_pData is a 32-bit word without
// meaning; in memory it points at the payload: what a sender sends from, and where a reader wants it copied.
struct CNetMessage
{
    uint32_t m_nSize = 0; // bytes of payload, not counting the header
    uint32_t m_nType = 0;
    uint32_t m_nFrom = 0;
    uint32_t m_nTo = 0;
    uint8_t* m_pData = nullptr;
};

inline uint32_t ReadU32(const uint8_t* p)
{
    return static_cast<uint32_t>(p[0]) | static_cast<uint32_t>(p[1]) << 8 | static_cast<uint32_t>(p[2]) << 16 |
           static_cast<uint32_t>(p[3]) << 24;
}

inline void WriteU32(uint8_t* p, uint32_t uiValue)
{
    p[0] = static_cast<uint8_t>(uiValue);
    p[1] = static_cast<uint8_t>(uiValue >> 8);
    p[2] = static_cast<uint8_t>(uiValue >> 16);
    p[3] = static_cast<uint8_t>(uiValue >> 24);
}

// The header's wire form; the data word goes out as 0, since it means nothing to the receiver.
inline void WriteHeader(uint8_t* p, const CNetMessage& Message)
{
    WriteU32(p, Message.m_nSize);
    WriteU32(p + 4, Message.m_nType);
    WriteU32(p + 8, Message.m_nFrom);
    WriteU32(p + 12, Message.m_nTo);
    WriteU32(p + 16, 0);
}

// The four numbers of a wire header; the reader's m_pData stays as the reader set it.
inline void ReadHeader(const uint8_t* p, CNetMessage& Message)
{
    Message.m_nSize = ReadU32(p);
    Message.m_nType = ReadU32(p + 4);
    Message.m_nFrom = ReadU32(p + 8);
    Message.m_nTo = ReadU32(p + 12);
}
