#include "bot/BotPlayer.h"

#include "app/Game.h"
#include "net/TextField.h"
#include "platform/interfaces/Clock.h"
#include "platform/native/SocketEvents.h"
#include "sim/PlayerInput.h"

#include <algorithm>

namespace
{
constexpr uint32_t FRAME_MS = 10;
constexpr uint32_t JOIN_TRIES_MS = 5000; // how long a client keeps knocking at a host that is not up yet
constexpr uint32_t JOIN_RETRY_MS = 200;
constexpr uint32_t RESULTS_VIEW_MS = 1500; // how long the bot looks at the results at the least
// The others may still be racing: the match's rows are the ones that have stood still this long, which every
// bot of the match sees at the same moment. A bot goes back to the lobby a while after taking them, since
// going back resets its own row on every table, which the others must not take for the match's.
constexpr uint32_t ROWS_SETTLED_MS = 1000;
constexpr uint32_t BACK_AFTER_ROWS_MS = 500;
// After its last match a bot stays a moment in the lobby, so that its leaving does not change the rows that
// the others are about to take away.
constexpr uint32_t LINGER_MS = 1000;

// Rows as every machine holds them: a client's own row carries number 0 between two tables, so the number is
// left out of the comparison.
bool SameRows(const std::vector<CScoreRow>& vA, const std::vector<CScoreRow>& vB)
{
    if(vA.size() != vB.size())
        return false;
    for(size_t i = 0; i < vA.size(); i++)
    {
        if(vA[i].m_nId != vB[i].m_nId || vA[i].m_nScore != vB[i].m_nScore || vA[i].m_bFinished != vB[i].m_bFinished ||
           !(vA[i].m_fDanger == vB[i].m_fDanger))
            return false;
    }
    return true;
}
} // namespace

CBotPlayer::CBotPlayer(const CBotOptions& Options, CGame& Game)
    : m_Options(Options), m_Game(Game), m_Autoplay(FRAME_MS), m_uiStartMs(timeGetTime())
{
}

uint32_t CBotPlayer::Elapsed() const
{
    return timeGetTime() - m_uiStartMs;
}

bool CBotPlayer::Join(CSocketEvents& Sockets)
{
    CNetwork& Network = m_Game.m_Network;
    const uint32_t uiMode = m_Options.m_bHost ? NET_MODE_HOST : NET_MODE_CLIENT;
    Network.m_nMode = uiMode;
    Network.m_bNetGame = true;
    m_Game.m_Graphics.m_nScreenState = SCREEN_LOBBY;
    for(;;)
    {
        if(Network.Init(&Sockets, uiMode, m_Options.m_uiPort, m_Options.m_Address.c_str(), NET_MAX_FRAME,
                        GAME_MAX_CLIENTS))
            return true;
        if(m_Options.m_bHost || Elapsed() + JOIN_RETRY_MS > JOIN_TRIES_MS)
            return false;
        Sockets.Wait(JOIN_RETRY_MS);
    }
}

// A client knows its number once the host's table has come; the host knows it from the start.
bool CBotPlayer::HasJoined() const
{
    return m_Options.m_bHost || m_bTableSeen;
}

void CBotPlayer::BeforeFrame()
{
    if(Elapsed() >= m_Options.m_uiQuitAfterMs || Elapsed() >= m_uiEndAtMs)
        m_bDone = true;
    if(m_Options.m_uiLeaveAfterMs > 0 && Elapsed() >= m_Options.m_uiLeaveAfterMs)
    {
        m_Game.m_Network.Shutdown();
        m_bDone = true;
    }
    if(m_bDone)
        return;
    if(m_Options.m_bChat && !m_bChatSent && HasJoined())
        Chat();
    StartWhenReady();
    if(m_Game.m_Graphics.m_nScreenState == SCREEN_PLAY && !m_Options.m_bIdle)
        Play();
}

// What a player types in the lobby, as far as the line editor lets it.
void CBotPlayer::Chat()
{
    CNetwork& Network = m_Game.m_Network;
    std::string Typed = m_Options.m_Chat.substr(0, LOBBY_INPUT_LIMIT);
    CopyText(Network.m_szLobbyInput, Typed.c_str());
    Network.SendLobbyChat();
    m_bChatSent = true;
}

// A host starts once enough players are listed in the lobby, as long as matches are left to play and the
// time for starting them has not run out.
bool CBotPlayer::MayStartMatch() const
{
    const bool bTimeLeft = m_Options.m_uiStartUntilMs == 0 || Elapsed() < m_Options.m_uiStartUntilMs;
    return m_Options.m_bHost && m_Options.m_uiStartWhen > 0 && m_uiMatchesStarted < m_Options.m_uiMatches &&
           bTimeLeft && m_Game.m_Graphics.m_nScreenState == SCREEN_LOBBY &&
           m_Game.m_Network.m_nPlayers >= m_Options.m_uiStartWhen;
}

// The host's Start button: the click, the message, and the same level on this machine.
void CBotPlayer::StartWhenReady()
{
    CNetwork& Network = m_Game.m_Network;
    if(!MayStartMatch())
        return;
    const std::vector<std::string>& vFiles = m_Game.m_Tracks.m_vFiles;
    if(m_Options.m_uiTrack >= vFiles.size())
    {
        m_bDone = true; // nothing to start: the track list has no such entry
        return;
    }
    m_Game.m_Sound.PlaySound(SOUND_CLICK);
    Network.SendStartGame(m_Options.m_uiTrack);
    m_Game.StartLevel(vFiles[m_Options.m_uiTrack].c_str());
    BeginMatch(m_Options.m_uiTrack);
    m_uiMatchesStarted++;
}

void CBotPlayer::Play()
{
    AimPowerup();
    m_Autoplay.Play(m_Game, m_Count);
}

// A letter that harms goes to the rival with the best score who is still racing. With nobody to aim at, a
// full stack is cleared by aiming at the bot's own number, which spends the letter without effect.
void CBotPlayer::AimPowerup()
{
    const CPowerupManager& Powerups = m_Game.m_Powerups;
    if(Powerups.m_nStackCount == 0 || !HarmsWhereItLands(Powerups.m_acStack[0]))
        return;
    const int iLeader = LeaderSlot();
    const int iMySlot = m_Game.m_Network.MySlot();
    if(iLeader >= 0)
        m_uiPowerupsSent += PressPowerupKey(m_Game, static_cast<char>('1' + iLeader)) ? 1 : 0;
    else if(Powerups.m_nStackCount == POWERUP_STACK_SIZE && iMySlot >= 0)
        PressPowerupKey(m_Game, static_cast<char>('1' + iMySlot));
}

int CBotPlayer::LeaderSlot() const
{
    const CNetwork& Network = m_Game.m_Network;
    const int iMySlot = Network.MySlot();
    int iLeader = -1;
    for(int i = 0; i < static_cast<int>(Network.m_nPlayers) && i < MAX_PLAYERS; i++)
    {
        const CPlayerSlot& Slot = Network.m_Players[i];
        if(i == iMySlot || !Slot.m_bPresent || Slot.m_bFinished)
            continue;
        if(iLeader < 0 || Network.m_Scores[i].m_nScore > Network.m_Scores[iLeader].m_nScore)
            iLeader = i;
    }
    return iLeader;
}

// A start that comes while the bot still looks at the last results pulls it into the new match at once.
void CBotPlayer::OnStartGame(uint32_t uiTrack)
{
    if(m_bOnResults)
        LeaveResults();
    BeginMatch(uiTrack);
}

void CBotPlayer::BeginMatch(uint32_t uiTrack)
{
    m_bInMatch = true;
    m_bOnResults = false;
    m_Current = CMatchRecord{};
    m_Current.m_uiTrack = uiTrack;
}

std::vector<CScoreRow> CBotPlayer::ListedRows() const
{
    const CNetwork& Network = m_Game.m_Network;
    return std::vector<CScoreRow>(Network.m_Scores,
                                  Network.m_Scores + std::min<uint32_t>(Network.m_nPlayers, MAX_PLAYERS));
}

// Playing or looking at the results: the lobby is the only screen on which no match is on.
bool CBotPlayer::IsMatchOn() const
{
    const int iScreen = m_Game.m_Graphics.m_nScreenState;
    return iScreen == SCREEN_PLAY || iScreen == SCREEN_RESULTS;
}

void CBotPlayer::AfterFrame()
{
    const uint32_t uiNow = timeGetTime();
    m_FrameRate.OnFrame(uiNow);
    if(m_Game.m_Graphics.m_nScreenState == SCREEN_RESULTS && !m_bOnResults)
    {
        m_bOnResults = true;
        m_bRowsTaken = false;
        m_uiResultsMs = uiNow;
        m_vLastRows.clear();
        m_Current.m_uiScore = m_Game.m_nScore;
    }
    if(!m_bOnResults)
        return;
    if(!m_bRowsTaken)
        WatchRows(uiNow);
    if(m_bRowsTaken && uiNow - m_uiResultsMs >= RESULTS_VIEW_MS && uiNow - m_uiRowsMs >= BACK_AFTER_ROWS_MS)
        LeaveResults();
}

void CBotPlayer::WatchRows(uint32_t uiNow)
{
    const std::vector<CScoreRow> vRows = ListedRows();
    if(!SameRows(vRows, m_vLastRows))
    {
        m_vLastRows = vRows;
        m_uiRowsMs = uiNow;
    }
    else if(uiNow - m_uiRowsMs >= ROWS_SETTLED_MS)
    {
        m_Current.m_vRows = vRows;
        m_bRowsTaken = true;
        m_uiRowsMs = uiNow;
    }
}

// The space bar on the results: the outcome as it stands and the rows taken are the match's, and the bot is
// back in the lobby.
// A results screen that no match of this bot led to (a late message) is left without a record.
void CBotPlayer::LeaveResults()
{
    CNetwork& Network = m_Game.m_Network;
    m_bOnResults = false;
    if(m_bInMatch)
    {
        m_Current.m_bWon = m_Game.m_Level.m_bWon; // as the results screen shows it when the bot leaves
        if(!m_bRowsTaken)
            m_Current.m_vRows = ListedRows();
        m_vMatches.push_back(m_Current);
        m_bInMatch = false;
    }
    Network.ResetMatch();
    m_Game.m_Level.m_bWon = false;
    m_Game.m_Graphics.m_nScreenState = SCREEN_LOBBY;
    if(m_vMatches.size() >= m_Options.m_uiMatches)
        m_uiEndAtMs = Elapsed() + LINGER_MS;
}
