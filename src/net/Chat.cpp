#include "net/Messages.h"
#include "net/Network.h"
#include "net/TextField.h"
#include "platform/interfaces/Clock.h"

#include <cstdio>
#include <cstring>

namespace
{
constexpr size_t LINE_BUFFER_CHARS = TEXT_PAYLOAD_MAX;
} // namespace

// Either way a line reads as the sender's number, a colon, a blank and the text; the host is always 1.
void CNetwork::FormatChatLine(char* pLine, const char* pText) const
{
    if(IsHost())
        std::snprintf(pLine, LINE_BUFFER_CHARS, "%s %s", "1:", pText);
    else
        std::snprintf(pLine, LINE_BUFFER_CHARS, "%d: %s", static_cast<int>(GetPlayerNumber(m_nMyId)), pText);
}

// A client sees its own line when the host's relay comes back; the host shows it at once.
void CNetwork::SendGameChat()
{
    char szLine[LINE_BUFFER_CHARS];
    FormatChatLine(szLine, m_szChatInput);
    const CNetMessage Message{static_cast<uint32_t>(std::strlen(szLine) + 1), NET_GAME_CHAT, m_nMyId, 0,
                              reinterpret_cast<uint8_t*>(szLine)};
    if(IsHost())
    {
        CopyText(m_szChatLine, szLine);
        SendToAll(Message);
    }
    else
        SendToServer(Message);
    m_nChatTime = timeGetTime();
    std::memset(m_szChatInput, 0, sizeof(m_szChatInput));
}

// The line carries the sender's count of lobby lines, which every client takes over.
void CNetwork::SendLobbyChat()
{
    m_nLobbyLines++;
    char szLine[LINE_BUFFER_CHARS];
    FormatChatLine(szLine, m_szLobbyInput);
    const CNetMessage Message{static_cast<uint32_t>(std::strlen(szLine) + 1), NET_LOBBY_CHAT, m_nMyId, m_nLobbyLines,
                              reinterpret_cast<uint8_t*>(szLine)};
    if(IsHost())
    {
        AddLobbyLine(szLine);
        SendToAll(Message);
    }
    else
        SendToServer(Message);
    std::memset(m_szLobbyInput, 0, sizeof(m_szLobbyInput));
}
