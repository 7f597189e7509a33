#include "app/Game.h"
#include "net/Log.h"
#include "net/Messages.h"
#include "net/Network.h"
#include "net/Socket.h"
#include "net/TextField.h"
#include "platform/interfaces/Clock.h"
#include "powerups/PowerupTable.h"

#include <cstdio>
#include <cstring>

// Messages are handled strictly in the order they came, until none is left; a frame that no game could have
// sent, or that a client sent in another's name, is dropped with a line in the log, and a type beyond the
// table without one.
void CNetwork::ProcessMessages()
{
    if(m_pSocket)
        m_pSocket->ResumeReading();
    uint8_t aPayload[NET_PAYLOAD_BUFFER];
    CNetMessage Message;
    Message.m_pData = aPayload;
    uint32_t uiSource = FROM_HOST;
    while(GetMessage(Message, &uiSource))
    {
        if(Message.m_nType >= NUM_MESSAGE_TYPES)
            continue;
        const CMessageInfo& Info = g_aMessages[Message.m_nType];
        if(!PayloadFits(Message))
        {
            Log("error: %s of %u bytes does not fit its type, dropped", Info.m_pName, Message.m_nSize);
            continue;
        }
        if(!SpeaksForItself(Message, uiSource))
            continue;
        Handle(Message);
        if(IsHost())
            Relay(Info, Message);
    }
}

// The host passes a frame on unchanged, so the first sender's id and argument reach the others.
void CNetwork::Relay(const CMessageInfo& Info, const CNetMessage& Message)
{
    if(Info.m_eRelay == RELAY_TO_ALL)
        SendToAll(Message);
    else if(Info.m_eRelay == RELAY_TO_TARGET && Message.m_nTo != m_nMyId)
        SendToClient(Message, Message.m_nTo);
}

void CNetwork::Handle(const CNetMessage& Message)
{
    switch(Message.m_nType)
    {
    case NET_ASSIGN_ID:
        if(!IsHost())
        {
            m_nMyId = ReadU32(Message.m_pData);
            AddPlayer(m_nMyId);
        }
        break;
    case NET_PLAYER_JOINED: OnPlayerJoined(ReadU32(Message.m_pData)); break;
    case NET_PLAYER_LEFT:
        RemovePlayer(ReadU32(Message.m_pData));
        if(IsHost())
            SendPlayerTable(0, true);
        break;
    case NET_LOBBY_CHAT: OnLobbyChat(Message); break;
    case NET_GAME_CHAT:
        CopyText(m_szChatLine, reinterpret_cast<const char*>(Message.m_pData));
        m_nChatTime = timeGetTime();
        break;
    case NET_PLAYER_OUT: OnPlayerOut(Message.m_nTo); break;
    case NET_PLAYER_TABLE: ApplyPlayerTable(Message.m_pData); break;
    case NET_START_GAME:
        if(!IsHost())
            StartMatch(Message.m_nTo);
        break;
    case NET_YOU_WIN:
        if(Message.m_nFrom != m_nMyId && !OwnSlotFinished())
            g_pGame->m_Logic.EndLevel(true);
        break;
    case NET_YOU_LOSE:
        if(Message.m_nFrom != m_nMyId)
            g_pGame->m_Logic.EndLevel(false);
        break;
    case NET_SCORE_TABLE: ApplyScoreTable(Message.m_pData); break;
    case NET_SCORE_UPDATE:
        if(IsHost())
            OnScoreUpdate(Message.m_pData);
        break;
    case NET_RANK_REQUEST:
        if(IsHost())
            AnswerRankRequest();
        break;
    default: OnPowerup(Message); break;
    }
}

// The host sends its whole table to everyone after every join, so that a client that joined while others
// were leaving still ends with the table everyone else holds.
void CNetwork::OnPlayerJoined(uint32_t uiId)
{
    if(uiId != m_nMyId)
        AddPlayer(uiId);
    if(IsHost())
        SendPlayerTable(uiId, true);
}

// A client takes the first sender's count, the host counts by itself. A count of 0 names no line at all.
void CNetwork::OnLobbyChat(const CNetMessage& Message)
{
    if(IsHost())
        m_nLobbyLines++;
    else
        m_nLobbyLines = Message.m_nTo;
    AddLobbyLine(reinterpret_cast<const char*>(Message.m_pData));
}

// Line n of the eight, counted from 1; beyond the eighth the lines move up and the first is lost.
void CNetwork::AddLobbyLine(const char* pText)
{
    if(m_nLobbyLines == 0)
    {
        Log("error: lobby line 0 dropped");
        return;
    }
    uint32_t uiLine = m_nLobbyLines;
    if(uiLine > LOBBY_LINES)
    {
        for(size_t i = 1; i < LOBBY_LINES; i++)
            std::memcpy(m_szLobbyLines[i - 1], m_szLobbyLines[i], LOBBY_LINE_CHARS);
        uiLine = LOBBY_LINES;
    }
    CopyText(m_szLobbyLines[uiLine - 1], pText);
    if(m_pListener)
        m_pListener->OnLobbyLine(m_szLobbyLines[uiLine - 1]);
}

void CNetwork::OnPlayerOut(uint32_t uiSlot)
{
    if(!IsHost())
        return;
    if(uiSlot >= m_nPlayers || uiSlot >= MAX_PLAYERS)
    {
        Log("error: NET_PLAYER_OUT for slot %u dropped", uiSlot);
        return;
    }
    m_Players[uiSlot].m_bFinished = true;
    SendPlayerTable(0, true);
}

// Every machine finds the level by its index in its own list; an index beyond it starts nothing. A client
// the full table left without a slot is not in the race: were it to clear the level first, it would end the
// match for players it cannot even see.
void CNetwork::StartMatch(uint32_t uiTrack)
{
    const std::vector<std::string>& vFiles = g_pGame->m_Tracks.m_vFiles;
    if(uiTrack >= vFiles.size())
    {
        Log("error: track %u is not in the track list", uiTrack);
        return;
    }
    if(GetPlayerNumber(m_nMyId) == 0)
    {
        Log("no slot in the player table: this match goes on without us");
        return;
    }
    if(m_pListener)
        m_pListener->OnStartGame(uiTrack);
    g_pGame->m_Sound.PlaySound(SOUND_CLICK);
    g_pGame->StartLevel(vFiles[uiTrack].c_str());
}

bool CNetwork::OwnSlotFinished() const
{
    const int iSlot = MySlot();
    return iSlot >= 0 && m_Players[iSlot].m_bFinished;
}

// The host is out and a client's clock has run down: the highest score wins, every other player still in
// loses.
void CNetwork::AnswerRankRequest()
{
    CScoreRow aRanked[MAX_PLAYERS];
    RankPlayers(aRanked);
    const uint32_t uiCount = std::min<uint32_t>(m_nPlayers, MAX_PLAYERS);
    if(uiCount == 0)
        return;
    for(uint32_t i = 0; i + 1 < uiCount; i++)
    {
        if(!aRanked[i].m_bFinished)
            SendToPlayer(aRanked[i].m_nId, NET_YOU_LOSE);
    }
    SendToPlayer(aRanked[uiCount - 1].m_nId, NET_YOU_WIN);
}

// Types 13 to 31 go by one rule: only the target acts, and it shows who sent the powerup before the effect.
void CNetwork::OnPowerup(const CNetMessage& Message)
{
    if(Message.m_nTo != m_nMyId)
        return;
    if(Message.m_nType == NET_PU_TAKEN && !FindPowerup(static_cast<char>(Message.m_pData[0])))
    {
        Log("error: NET_PU_TAKEN of an unknown letter dropped");
        return;
    }
    const CMessageInfo& Info = g_aMessages[Message.m_nType];
    ShowNotice(Info.m_pNotice, Message.m_nFrom);
    CPowerupManager& Powerups = g_pGame->m_Powerups;
    if(Info.m_pfnEffect)
        (Powerups.*Info.m_pfnEffect)();
    if(Message.m_nType == NET_PU_TAKE)
        GiveUpLetter(Message);
    else if(Message.m_nType == NET_PU_TAKEN)
        Powerups.PushLetter(static_cast<char>(Message.m_pData[0]));
}

void CNetwork::ShowNotice(const char* pNotice, uint32_t uiFrom)
{
    char* pText = g_pGame->m_Powerups.m_szNotice;
    std::snprintf(pText, NOTICE_CHARS, pNotice, static_cast<int>(GetPlayerNumber(uiFrom)));
    m_nNoticeTime = timeGetTime();
    if(m_pListener)
        m_pListener->OnNotice(pText);
}

// The oldest letter of the target's stack goes back to the thief, through the host.
void CNetwork::GiveUpLetter(const CNetMessage& Take)
{
    CPowerupManager& Powerups = g_pGame->m_Powerups;
    if(Powerups.m_nStackCount == 0)
        return;
    uint8_t aLetter[2] = {static_cast<uint8_t>(Powerups.m_acStack[0]), 0};
    Powerups.m_nStackCount--;
    Powerups.PopLetter();
    const CNetMessage Taken{sizeof(aLetter), NET_PU_TAKEN, Take.m_nTo, Take.m_nFrom, aLetter};
    if(IsHost())
        SendToClient(Taken, Take.m_nFrom);
    else
        SendToServer(Taken);
}

// A Mark message: one byte that nobody reads.
bool CNetwork::SendToPlayer(uint32_t uiTarget, uint32_t uiType)
{
    if(uiTarget == m_nMyId)
        return false;
    uint8_t ucMark = MARK;
    const CNetMessage Message{1, uiType, m_nMyId, uiTarget, &ucMark};
    return IsHost() ? SendToClient(Message, uiTarget) : SendToServer(Message);
}

bool CNetwork::SendEvent(uint32_t uiArgument, uint32_t uiType)
{
    uint8_t ucMark = MARK;
    const CNetMessage Message{1, uiType, m_nMyId, uiArgument, &ucMark};
    return IsHost() ? SendToAll(Message) : SendToServer(Message);
}
