#include "net/Log.h"
#include "net/Messages.h"
#include "net/Network.h"

// The host knows which connection a frame came on, and a client may speak only for itself: in its own name,
// in the messages a client sends, and about its own slot and row. Whatever else it sends changes nothing
// and reaches nobody. A client takes its host's word: the host is the one that keeps the tables.
bool CNetwork::SpeaksForItself(const CNetMessage& Message, uint32_t uiSource) const
{
    if(!IsHost() || uiSource == m_nMyId)
        return true;
    const char* pName = g_aMessages[Message.m_nType].m_pName;
    if(g_aMessages[Message.m_nType].m_eSender == SENDER_HOST)
    {
        Log("error: %s from client %u, which only the host sends, dropped", pName, uiSource);
        return false;
    }
    if(Message.m_nFrom != uiSource)
    {
        Log("error: %s from client %u in the name of %u dropped", pName, uiSource, Message.m_nFrom);
        return false;
    }
    return SpeaksForOwnSlot(Message, uiSource);
}

// A client without a slot has no row and cannot be out of a match.
bool CNetwork::SpeaksForOwnSlot(const CNetMessage& Message, uint32_t uiSource) const
{
    const uint32_t uiNumber = GetPlayerNumber(uiSource);
    if(Message.m_nType == NET_PLAYER_OUT && (uiNumber == 0 || Message.m_nTo != uiNumber - 1))
    {
        Log("error: NET_PLAYER_OUT from client %u for slot %u dropped", uiSource, Message.m_nTo);
        return false;
    }
    if(Message.m_nType == NET_SCORE_UPDATE)
    {
        const CScoreRow Row = ReadScoreRow(Message.m_pData);
        if(uiNumber == 0 || Row.m_nNumber != uiNumber || Row.m_nId != uiSource)
        {
            Log("error: NET_SCORE_UPDATE from client %u for row %u of %u dropped", uiSource, Row.m_nNumber, Row.m_nId);
            return false;
        }
    }
    return true;
}
