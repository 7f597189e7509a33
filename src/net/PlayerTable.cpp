#include "net/Log.h"
#include "net/Messages.h"
#include "net/Network.h"

#include <algorithm>
#include <iterator>

// A departure closes the gap: the players behind the one who left move up a slot each, with their score
// rows, so that the first m_nPlayers slots are always the listed ones and a join always takes the next free
// slot. Numbers may shift down, but every machine reads the same joins and departures in the same order from
// the host, and the host sends its whole table after each, so all machines agree on every number.
void CNetwork::ResetTables()
{
    std::fill(std::begin(m_Players), std::end(m_Players), CPlayerSlot{});
    std::fill(std::begin(m_Scores), std::end(m_Scores), CScoreRow{});
    m_Players[0].m_bPresent = true; // the player's own slot
    m_Scores[0].m_nNumber = 1;
    m_Scores[0].m_nId = 0;
    m_nPlayers = 1;
    m_nMyId = 0;
}

void CNetwork::ClearSlot(uint32_t uiSlot)
{
    m_Players[uiSlot] = CPlayerSlot{NO_PLAYER, false, false};
    m_Scores[uiSlot] = CScoreRow{};
}

// The new player's row starts clean, whatever a player who held the slot before left in it.
bool CNetwork::AddPlayer(uint32_t uiId)
{
    if(m_nPlayers >= MAX_LISTED)
        return false;
    m_Players[m_nPlayers] = CPlayerSlot{uiId, true, false};
    m_Scores[m_nPlayers] = CScoreRow{m_nPlayers + 1, uiId, 0, 0.0f, false};
    m_nPlayers++;
    return true;
}

void CNetwork::RemovePlayer(uint32_t uiId)
{
    const uint32_t uiListed = std::min<uint32_t>(m_nPlayers, MAX_PLAYERS);
    uint32_t uiSlot = 0;
    while(uiSlot < uiListed && m_Players[uiSlot].m_nId != uiId)
        uiSlot++;
    if(uiSlot == uiListed)
        return;
    for(uint32_t i = uiSlot; i + 1 < uiListed; i++)
    {
        m_Players[i] = m_Players[i + 1];
        m_Scores[i] = m_Scores[i + 1];
        if(m_Scores[i].m_nNumber != 0)
            m_Scores[i].m_nNumber = i + 1;
    }
    ClearSlot(uiListed - 1);
    m_nPlayers = uiListed - 1;
}

uint32_t CNetwork::GetPlayerNumber(uint32_t uiId) const
{
    for(uint32_t i = 0; i < MAX_PLAYERS; i++)
    {
        if(m_Players[i].m_nId == uiId)
            return i + 1;
    }
    return 0;
}

int CNetwork::MySlot() const
{
    return static_cast<int>(GetPlayerNumber(m_nMyId)) - 1;
}

bool CNetwork::SendPlayerTable(uint32_t uiId, bool bToAll)
{
    uint8_t aPayload[PLAYER_TABLE_SIZE] = {};
    const uint32_t uiCount = std::min<uint32_t>(m_nPlayers, TABLE_ENTRIES);
    WriteU32(aPayload, uiCount);
    for(uint32_t i = 0; i < uiCount; i++)
        WritePlayerEntry(aPayload, i, m_Players[i]);
    const CNetMessage Table{PLAYER_TABLE_SIZE, NET_PLAYER_TABLE, 0, 0, aPayload};
    return bToAll ? SendToAll(Table) : SendToClient(Table, uiId);
}

// The slots beyond the count are emptied, so that no player the host no longer lists lingers here.
void CNetwork::ApplyPlayerTable(const uint8_t* pPayload)
{
    const uint32_t uiCount = ReadU32(pPayload);
    if(uiCount > TABLE_ENTRIES)
    {
        Log("error: player table of %u entries dropped", uiCount);
        return;
    }
    for(uint32_t i = 0; i < MAX_PLAYERS; i++)
    {
        if(i >= uiCount)
        {
            m_Players[i] = CPlayerSlot{NO_PLAYER, false, false};
            continue;
        }
        m_Players[i] = ReadPlayerEntry(pPayload, i);
        m_Scores[i].m_bFinished = m_Players[i].m_bFinished;
    }
    m_nPlayers = uiCount;
    if(m_pListener)
        m_pListener->OnPlayerTable();
}

void CNetwork::ApplyScoreTable(const uint8_t* pPayload)
{
    const uint32_t uiCount = ReadU32(pPayload);
    if(uiCount > TABLE_ENTRIES)
    {
        Log("error: score table of %u rows dropped", uiCount);
        return;
    }
    for(uint32_t i = 0; i < uiCount; i++)
        m_Scores[i] = ReadScoreRow(pPayload + 4 + SCORE_ROW_SIZE * static_cast<size_t>(i));
}

// Every update of a client sends the whole table to all clients.
void CNetwork::OnScoreUpdate(const uint8_t* pPayload)
{
    const CScoreRow Row = ReadScoreRow(pPayload);
    if(Row.m_nNumber == 0 || Row.m_nNumber > MAX_PLAYERS)
    {
        Log("error: score row number %u dropped", Row.m_nNumber);
        return;
    }
    m_Scores[Row.m_nNumber - 1] = Row;
    if(!IsHost())
        return;
    uint8_t aPayload[SCORE_TABLE_SIZE] = {};
    const uint32_t uiCount = std::min<uint32_t>(m_nPlayers, TABLE_ENTRIES);
    WriteU32(aPayload, uiCount);
    for(uint32_t i = 0; i < uiCount; i++)
        WriteScoreRow(aPayload + 4 + SCORE_ROW_SIZE * static_cast<size_t>(i), m_Scores[i]);
    SendToAll(CNetMessage{SCORE_TABLE_SIZE, NET_SCORE_TABLE, 0, 0, aPayload});
}
