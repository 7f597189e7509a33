#pragma once
#include "bot/BotOptions.h"
#include "bot/FrameRate.h"
#include "net/Network.h"
#include "sim/Autoplay.h"
#include "sim/RunCount.h"

#include <ostream>
#include <string>
#include <vector>

class CGame;
class CSocketEvents;

// One match as this bot saw it end.
struct CMatchRecord
{
    uint32_t m_uiTrack = 0;
    bool m_bWon = false;
    uint32_t m_uiScore = 0;
    std::vector<CScoreRow> m_vRows; // the listed score rows when the bot left the results
};

// A player without hands: before each frame it does what a person at the keyboard would (type a lobby line,
// start a match, shoot, aim a powerup), and after it notes how the match stands. It listens to the network
// for what a person would read on the screen.
class CBotPlayer : public INetListener
{
public:
    CBotPlayer(const CBotOptions& Options, CGame& Game);

    // Opens the game or joins it; a host that is not listening yet is tried again for a few seconds.
    bool Join(CSocketEvents& Sockets);
    void BeforeFrame();
    void AfterFrame();
    bool IsDone() const { return m_bDone; }
    // The one line of JSON that ends a run, or tells how it stands when asked in its course.
    void WriteReport(std::ostream& Stream, uint64_t ulLogLines) const;

    void OnLobbyLine(const char* pLine) override { m_vLobbyLines.emplace_back(pLine); }
    void OnNotice(const char* pNotice) override { m_vNotices.emplace_back(pNotice); }
    void OnStartGame(uint32_t uiTrack) override;
    void OnPlayerTable() override { m_bTableSeen = true; }

private:
    uint32_t Elapsed() const;
    bool HasJoined() const;
    bool MayStartMatch() const;
    bool IsMatchOn() const;
    void Chat();
    void StartWhenReady();
    void Play();
    void AimPowerup();
    int LeaderSlot() const;
    void BeginMatch(uint32_t uiTrack);
    void LeaveResults();
    std::vector<CScoreRow> ListedRows() const;
    void WatchRows(uint32_t uiNow);

    const CBotOptions& m_Options;
    CGame& m_Game;
    CAutoplay m_Autoplay;
    CRunCount m_Count;
    CFrameRate m_FrameRate;
    uint32_t m_uiStartMs;
    bool m_bTableSeen = false;
    bool m_bChatSent = false;
    bool m_bDone = false;
    bool m_bInMatch = false;    // a match was started and has not been left yet
    bool m_bOnResults = false;  // the results screen is up
    uint32_t m_uiResultsMs = 0; // when it came up
    std::vector<CScoreRow> m_vLastRows;
    uint32_t m_uiRowsMs = 0;   // when the score rows last changed, or were taken
    bool m_bRowsTaken = false; // the match's rows have stood still and are noted
    uint32_t m_uiMatchesStarted = 0;
    uint32_t m_uiEndAtMs = UINT32_MAX; // set once the last match's results are seen
    CMatchRecord m_Current;
    std::vector<CMatchRecord> m_vMatches;
    std::vector<std::string> m_vLobbyLines;
    std::vector<std::string> m_vNotices;
    uint32_t m_uiPowerupsSent = 0;
};
