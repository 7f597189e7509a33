#pragma once
#include "net/NetMessage.h"

#include <cstddef>
#include <cstdint>

class CSocket;
class CSocketEvents;

constexpr int MAX_PLAYERS = 8;     // slots of the player table and rows of the score table
constexpr uint32_t MAX_LISTED = 7; // players a table lists: the last slot stays empty
constexpr int MAX_CLIENT_SLOTS = 256;
constexpr size_t CHAT_LINE_CHARS = 70;
constexpr size_t LOBBY_LINE_CHARS = 40;
constexpr size_t LOBBY_LINES = 8;
constexpr size_t ADDRESS_CHARS = 16;
constexpr size_t SERVER_CHARS = 256;
// The longest texts the three line editors let a player type.
constexpr size_t CHAT_INPUT_LIMIT = 68;
constexpr size_t LOBBY_INPUT_LIMIT = 28;
constexpr size_t ADDRESS_INPUT_LIMIT = 15;

// The TCP port of every game, and the limits the game gives its link.
constexpr uint16_t GAME_PORT = 666;
constexpr uint32_t GAME_MAX_CLIENTS = 8;

// The values of m_nMode and m_nLinkMode.
constexpr uint32_t NET_MODE_HOST = 0;
constexpr uint32_t NET_MODE_CLIENT = 1;

// An id or a number nobody holds.
constexpr uint32_t NO_PLAYER = UINT32_MAX;

// One connected client as the host sees it.
struct CClientSlot
{
    int m_Socket = -1;
    uint32_t m_nId = 0;
};

// One entry of the player table.
struct CPlayerSlot
{
    uint32_t m_nId = 0; // 0 is the host; -1 marks a slot freed by a departure
    bool m_bPresent = false;
    bool m_bFinished = false; // out of the running match
};

// One row of the score table.
struct CScoreRow
{
    uint32_t m_nNumber = NO_PLAYER; // slot index + 1, or 0 in a row the player filled for itself
    uint32_t m_nId = NO_PLAYER;     // -1 while the row has no player
    uint32_t m_nScore = 0;
    float m_fDanger = 0.0f;
    bool m_bFinished = false;
};

// What a tool or a test may want to see of what the players are shown; the game itself listens to nothing.
class INetListener
{
public:
    virtual ~INetListener() = default;
    virtual void OnLobbyLine(const char* pLine) { (void)pLine; }
    virtual void OnNotice(const char* pNotice) { (void)pNotice; }
    virtual void OnStartGame(uint32_t uiTrack) { (void)uiTrack; }
    virtual void OnPlayerTable() {}
};

// The link to the other players of a network game, and the state the players share: the player table, the
// score rows, the chat texts. One player hosts; every other is a client of the host, and everything passes
// through the host.
class CNetwork
{
public:
    CNetwork();
    CNetwork(const CNetwork&) = delete;
    CNetwork& operator=(const CNetwork&) = delete;
    ~CNetwork();

    // The link. Events of the sockets come from the events service, which the caller's loop pumps into
    // OnSocketEvent. A failed Init leaves the link down and says why in the log.
    bool Init(CSocketEvents* pEvents, uint32_t uiMode, uint32_t uiPort, const char* pAddress, uint32_t uiMaxSize,
              uint32_t uiMaxClients);
    void Shutdown();
    bool CreateServer();
    bool CreateClient();
    bool SendToServer(const CNetMessage& Message);
    bool SendToAll(const CNetMessage& Message);
    bool SendToClient(const CNetMessage& Message, uint32_t uiId);
    void OnSocketEvent(int Socket, uint32_t uiEvent);
    bool OnAccept();
    bool OnReceive(int Socket);
    bool OnDisconnect(int Socket);
    bool HasMessage() const;
    // The oldest frame received, as CSocket::GetMessage gives it, with the id of the machine it came from.
    bool GetMessage(CNetMessage& Message, uint32_t* pSource = nullptr);

    // The messages and the tables they keep in step.
    void ProcessMessages();
    bool AddPlayer(uint32_t uiId);
    void RemovePlayer(uint32_t uiId);
    uint32_t GetPlayerNumber(uint32_t uiId) const;
    bool SendToPlayer(uint32_t uiTarget, uint32_t uiType);
    bool SendEvent(uint32_t uiArgument, uint32_t uiType);
    bool SendStartGame(uint32_t uiTrack) { return SendEvent(uiTrack, 7); }
    bool SendPlayerTable(uint32_t uiId, bool bToAll);
    void ApplyPlayerTable(const uint8_t* pPayload);
    void ApplyScoreTable(const uint8_t* pPayload);
    void OnScoreUpdate(const uint8_t* pPayload);

    // The match.
    void Tick();
    void OnPlayerLost();
    void OnTimeUp();
    void ResetMatch();
    void RankPlayers(CScoreRow* pRows) const;
    uint32_t CountPlayersIn() const;
    // Out of the network game by the lobby's Return button: the link goes down and the tables are as new.
    void Leave();

    // Chat and the three line editors, which read the keyboard once a frame each.
    void SendGameChat();
    void SendLobbyChat();
    void UpdateChatEntry();
    void UpdateLobbyEntry();
    void UpdateAddressEntry();

    // The slot of the table that holds this player: the first whose id is ours; -1 when none does.
    int MySlot() const;

    uint32_t m_nHeaderSize = NET_HEADER_SIZE;
    uint32_t m_nMode = NET_MODE_HOST;
    uint32_t m_nMyId = 0;
    bool m_bNetGame = false; // a network game is on
    CPlayerSlot m_Players[MAX_PLAYERS];
    CScoreRow m_Scores[MAX_PLAYERS];
    uint32_t m_nPlayers = 1;
    int32_t m_nTarget = -1;         // id of the chosen powerup target, -1 for the player itself
    float m_fUpdateTimer = 1000.0f; // milliseconds to the first score update
    float m_fDanger = 0.0f;         // how far this player's worst chain has come, 0 to 1
    char m_szChatLine[CHAT_LINE_CHARS] = {};
    char m_szChatInput[CHAT_LINE_CHARS] = {};
    char m_szChatBackup[CHAT_LINE_CHARS] = {};
    char m_szLobbyLines[LOBBY_LINES][LOBBY_LINE_CHARS] = {};
    char m_szLobbyInput[LOBBY_LINE_CHARS] = {};
    char m_szLobbyBackup[LOBBY_LINE_CHARS] = {};
    uint32_t m_nLobbyLines = 0;
    char m_szAddressInput[ADDRESS_CHARS] = {};
    char m_szAddressBackup[ADDRESS_CHARS] = {};
    uint32_t m_nChatTime = 0;   // millisecond counter at the last chat line
    uint32_t m_nNoticeTime = 0; // millisecond counter at the last powerup notice
    CSocket* m_pSocket = nullptr;
    uint32_t m_nLinkMode = NET_MODE_HOST;
    CClientSlot m_Clients[MAX_CLIENT_SLOTS];
    uint8_t m_nClients = 0;
    uint32_t m_nNextId = 1;
    uint32_t m_nMaxClients = 0; // 0: only the client table's own limit
    uint8_t* m_pSendBuffer = nullptr;
    CSocketEvents* m_pEvents = nullptr;
    bool m_bRunning = false;
    uint32_t m_nPort = 0;
    char m_szServer[SERVER_CHARS] = {};
    uint32_t m_nMaxSize = 0;
    INetListener* m_pListener = nullptr;

private:
    bool IsHost() const { return m_nLinkMode == NET_MODE_HOST; }
    bool SendFrame(const CNetMessage& Message, int Socket);
    bool SendBuffered(const CNetMessage& Message, int Socket);
    bool CopyToSendBuffer(const CNetMessage& Message);
    void SendLinkEvent(uint32_t uiType, uint32_t uiId);
    void ClearSlot(uint32_t uiSlot);
    void ResetTables();
    bool OwnSlotFinished() const;
    bool FindClient(int Socket, uint8_t& uiSlot) const;
    bool SpeaksForItself(const CNetMessage& Message, uint32_t uiSource) const;
    bool SpeaksForOwnSlot(const CNetMessage& Message, uint32_t uiSource) const;
    void Handle(const CNetMessage& Message);
    void Relay(const struct CMessageInfo& Info, const CNetMessage& Message);
    void OnPlayerJoined(uint32_t uiId);
    void OnLobbyChat(const CNetMessage& Message);
    void AddLobbyLine(const char* pText);
    void OnPlayerOut(uint32_t uiSlot);
    void StartMatch(uint32_t uiTrack);
    void AnswerRankRequest();
    void OnPowerup(const CNetMessage& Message);
    void ShowNotice(const char* pNotice, uint32_t uiFrom);
    void GiveUpLetter(const CNetMessage& Take);
    void ScoreStep();
    void OnReturnKey(bool bReturn);
    void FormatChatLine(char* pLine, const char* pText) const;
};
