#include "bot/BotPlayer.h"

#include "app/Game.h"
#include "common/Json.h"
#include "platform/interfaces/Clock.h"

namespace
{
void WriteRow(std::ostream& Stream, const CScoreRow& Row)
{
    Stream << "{\"number\":" << Row.m_nNumber << ",\"id\":" << Row.m_nId << ",\"score\":" << Row.m_nScore
           << ",\"danger\":";
    WriteJsonNumber(Stream, Row.m_fDanger);
    Stream << ",\"finished\":" << (Row.m_bFinished ? "true" : "false") << "}";
}

void WriteRows(std::ostream& Stream, const std::vector<CScoreRow>& vRows)
{
    WriteJsonArray(Stream, vRows, [&Stream](const CScoreRow& Row) { WriteRow(Stream, Row); });
}

void WriteMatch(std::ostream& Stream, const CMatchRecord& Match)
{
    Stream << "{\"track\":" << Match.m_uiTrack << ",\"outcome\":\"" << (Match.m_bWon ? "won" : "lost")
           << "\",\"score\":" << Match.m_uiScore << ",\"rows\":";
    WriteRows(Stream, Match.m_vRows);
    Stream << "}";
}

void WriteSlot(std::ostream& Stream, const CPlayerSlot& Slot)
{
    Stream << "{\"id\":" << Slot.m_nId << ",\"present\":" << (Slot.m_bPresent ? "true" : "false")
           << ",\"finished\":" << (Slot.m_bFinished ? "true" : "false") << "}";
}

void WriteTexts(std::ostream& Stream, const std::vector<std::string>& vTexts)
{
    WriteJsonArray(Stream, vTexts, [&Stream](const std::string& Text) { WriteJsonString(Stream, Text.c_str()); });
}
} // namespace

// A client that never got an id has no slot, whatever its untouched table says.
void CBotPlayer::WriteReport(std::ostream& Stream, uint64_t ulLogLines) const
{
    const CNetwork& Network = m_Game.m_Network;
    const bool bHasId = m_Options.m_bHost || Network.m_nMyId != 0;
    const uint32_t uiListed = std::min<uint32_t>(Network.m_nPlayers, MAX_PLAYERS);
    const std::vector<CPlayerSlot> vListed(Network.m_Players, Network.m_Players + uiListed);
    Stream << "{\"my_id\":" << Network.m_nMyId
           << ",\"number\":" << (bHasId ? Network.GetPlayerNumber(Network.m_nMyId) : 0) << ",\"players\":";
    WriteJsonArray(Stream, vListed, [&Stream](const CPlayerSlot& Slot) { WriteSlot(Stream, Slot); });
    Stream << ",\"rows\":";
    WriteRows(Stream, ListedRows());
    Stream << ",\"in_match\":" << (IsMatchOn() ? "true" : "false");
    Stream << ",\"lobby_lines\":";
    WriteTexts(Stream, m_vLobbyLines);
    Stream << ",\"matches\":";
    WriteJsonArray(Stream, m_vMatches, [&Stream](const CMatchRecord& Match) { WriteMatch(Stream, Match); });
    Stream << ",\"powerups_sent\":" << m_uiPowerupsSent << ",\"notices\":";
    WriteTexts(Stream, m_vNotices);
    Stream << ",\"frames\":" << m_FrameRate.Frames()
           << ",\"slowest_second\":" << m_FrameRate.SlowestSecond(timeGetTime());
    Stream << ",\"log_lines\":" << ulLogLines << "}\n";
}
