#include "app/Game.h"
#include "app/ScreenFlow.h"
#include "input/Input.h"
#include "input/KeyCodes.h"
#include "net/Messages.h"
#include "net/Network.h"

#include <algorithm>
#include <cstring>

// The first score update leaves about a second after the network game starts; from then on the timer stays
// at 0 or below, and an update leaves in every tick, on every screen, for the rest of the run.
void CNetwork::Tick()
{
    if(!m_bNetGame)
        return;
    const float fDelta = static_cast<float>(g_pGame->m_Clock.GetDelta());
    if(fDelta > m_fUpdateTimer)
    {
        ScoreStep();
        m_fUpdateTimer = 0.0f;
    }
    OnReturnKey(KeyPressed(DIK_RETURN));
    ProcessMessages();
    m_fUpdateTimer -= fDelta;
}

// Return sends the lobby's line; in play it opens the chat box, and closes it again to send the line typed.
// A level that ends while the box is open closes it unsent, so that the keys of the results screen and the
// lobby (Escape among them) work as ever; the typed line waits until the match is reset.
void CNetwork::OnReturnKey(bool bReturn)
{
    const int iScreen = g_pGame->m_Graphics.m_nScreenState;
    if(iScreen == SCREEN_LOBBY && bReturn)
        SendLobbyChat();
    if(iScreen != SCREEN_PLAY)
    {
        g_bChatOpen = false;
        return;
    }
    if(!g_bChatOpen)
    {
        g_bChatOpen = bReturn;
        return;
    }
    UpdateChatEntry();
    if(bReturn)
    {
        g_bChatOpen = false;
        SendGameChat();
    }
}

// A client reports its own row to the host; the host writes its own row, which reaches the others in the
// next table. A client the table has no slot for has no row to report.
void CNetwork::ScoreStep()
{
    CScoreRow Row{0, m_nMyId, g_pGame->m_nScore, m_fDanger, false};
    if(IsHost())
    {
        Row.m_bFinished = m_Players[0].m_bFinished;
        m_Scores[0] = Row;
        return;
    }
    const uint32_t uiNumber = GetPlayerNumber(m_nMyId);
    if(uiNumber == 0)
        return;
    Row.m_nNumber = uiNumber;
    Row.m_bFinished = m_Players[uiNumber - 1].m_bFinished;
    uint8_t aRow[SCORE_ROW_SIZE];
    WriteScoreRow(aRow, Row);
    SendToServer(CNetMessage{SCORE_ROW_SIZE, NET_SCORE_UPDATE, m_nMyId, 0, aRow});
    Row.m_nNumber = 0;
    m_Scores[uiNumber - 1] = Row;
}

uint32_t CNetwork::CountPlayersIn() const
{
    uint32_t uiListed = 0;
    for(uint32_t i = 0; i < MAX_LISTED; i++)
        uiListed += m_Players[i].m_bPresent ? 1 : 0;
    uint32_t uiIn = 0;
    for(uint32_t i = 0; i < uiListed; i++)
        uiIn += m_Players[i].m_bFinished ? 0 : 1;
    return uiIn;
}

// With two players in, this loss leaves one: it wins. Otherwise the match goes on without this player.
void CNetwork::OnPlayerLost()
{
    if(CountPlayersIn() == 2)
    {
        SendEvent(0, NET_YOU_WIN);
        return;
    }
    if(!IsHost())
    {
        const int iSlot = MySlot();
        uint8_t ucMark = MARK;
        if(iSlot >= 0)
            SendToServer(CNetMessage{1, NET_PLAYER_OUT, m_nMyId, static_cast<uint32_t>(iSlot), &ucMark});
        return;
    }
    m_Players[0].m_bFinished = true;
    m_Scores[0].m_bFinished = true;
    SendPlayerTable(0, true);
}

// The host ranks when its clock ends; a client asks the host to, but only once the host is out and its
// clock stands still, and then in every tick until the answer ends the level.
void CNetwork::OnTimeUp()
{
    if(!IsHost())
    {
        if(m_Players[0].m_bFinished)
            SendEvent(0, NET_RANK_REQUEST);
        return;
    }
    CScoreRow aRanked[MAX_PLAYERS];
    RankPlayers(aRanked);
    const uint32_t uiCount = std::min<uint32_t>(m_nPlayers, MAX_PLAYERS);
    const CScoreRow& Top = aRanked[uiCount > 0 ? uiCount - 1 : 0];
    if(uiCount == 0 || Top.m_nId == m_nMyId)
    {
        SendEvent(0, NET_YOU_LOSE);
        g_pGame->m_Logic.EndLevel(true);
        return;
    }
    for(uint32_t i = 0; i + 1 < uiCount; i++)
        SendToPlayer(aRanked[i].m_nId, NET_YOU_LOSE);
    SendToPlayer(Top.m_nId, NET_YOU_WIN);
    g_pGame->m_Logic.EndLevel(false);
}

// Ascending by score, compared as unsigned numbers; equal scores keep their order, so the later slot ranks
// higher. The highest score is the last row.
void CNetwork::RankPlayers(CScoreRow* pRows) const
{
    const uint32_t uiCount = std::min<uint32_t>(m_nPlayers, MAX_PLAYERS);
    std::copy(m_Scores, m_Scores + uiCount, pRows);
    for(uint32_t i = uiCount; i-- > 0;)
    {
        for(uint32_t j = 1; j <= i; j++)
        {
            if(pRows[j - 1].m_nScore > pRows[j].m_nScore)
                std::swap(pRows[j - 1], pRows[j]);
        }
    }
}

// Back to the lobby: the link, the ids and the player table stay; the match's traces go.
void CNetwork::ResetMatch()
{
    for(CPlayerSlot& Slot : m_Players)
        Slot.m_bFinished = false;
    m_fDanger = 0.0f;
    for(CScoreRow& Row : m_Scores)
    {
        Row.m_nScore = 0;
        Row.m_fDanger = 0.0f;
        Row.m_bFinished = false;
    }
    m_nLobbyLines = m_nChatTime = m_nNoticeTime = 0;
    std::memset(m_szLobbyLines, 0, sizeof(m_szLobbyLines));
    std::memset(m_szLobbyInput, 0, sizeof(m_szLobbyInput));
    std::memset(m_szLobbyBackup, 0, sizeof(m_szLobbyBackup));
    std::memset(m_szChatLine, 0, sizeof(m_szChatLine));
    std::memset(m_szChatInput, 0, sizeof(m_szChatInput));
    std::memset(m_szChatBackup, 0, sizeof(m_szChatBackup));
    std::memset(m_szAddressInput, 0, sizeof(m_szAddressInput));
    std::memset(m_szAddressBackup, 0, sizeof(m_szAddressBackup));
    g_pGame->m_Powerups.ApplyEmpty();
    std::memset(g_pGame->m_Powerups.m_szNotice, 0, sizeof(g_pGame->m_Powerups.m_szNotice));
    g_pGame->m_nScore = 0;
}

void CNetwork::Leave()
{
    m_bNetGame = false;
    Shutdown();
    ResetTables();
}
