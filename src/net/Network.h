#pragma once
#include <cstdint>

constexpr int MAX_PLAYERS = 8;
constexpr size_t CHAT_LINE_CHARS = 70;
constexpr size_t LOBBY_LINE_CHARS = 40;
constexpr size_t LOBBY_LINES = 8;
constexpr size_t ADDRESS_CHARS = 16;

// The values of m_nMode of the network.
constexpr uint32_t NET_MODE_HOST = 0;
constexpr uint32_t NET_MODE_CLIENT = 1;

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
    uint32_t m_nNumber = UINT32_MAX; // slot index + 1, or 0 in a row the player filled for itself
    uint32_t m_nId = UINT32_MAX;     // -1 while the row has no player
    uint32_t m_nScore = 0;
    float m_fDanger = 0.0f;
    bool m_bFinished = false;
};

// The link to the other players of a network game, and the state the players share: the player table, the
// score rows, the chat texts.
class CNetwork
{
public:
    CNetwork()
    {
        m_Players[0].m_bPresent = true; // the player's own slot
        m_Scores[0].m_nNumber = 1;
        m_Scores[0].m_nId = 0;
    }

    uint32_t m_nMode = NET_MODE_HOST;
    uint32_t m_nMyId = 0;
    bool m_bNetGame = false; // a network match is on
    CPlayerSlot m_Players[MAX_PLAYERS];
    CScoreRow m_Scores[MAX_PLAYERS];
    uint32_t m_nPlayers = 1;
    int32_t m_nTarget = -1; // id of the chosen powerup target, -1 for the player itself
    float m_fDanger = 0.0f; // how far this player's worst chain has come, 0 to 1
    char m_szChatLine[CHAT_LINE_CHARS] = {};
    char m_szChatInput[CHAT_LINE_CHARS] = {};
    char m_szLobbyLines[LOBBY_LINES][LOBBY_LINE_CHARS] = {};
    char m_szLobbyInput[LOBBY_LINE_CHARS] = {};
    char m_szAddressInput[ADDRESS_CHARS] = {};
    uint32_t m_nChatTime = 0;   // millisecond counter at the last chat line
    uint32_t m_nNoticeTime = 0; // millisecond counter at the last powerup notice

    // The slot of the table that holds this player: the first whose id is ours.
    int MySlot() const
    {
        for(int i = 0; i < MAX_PLAYERS; i++)
        {
            if(m_Players[i].m_nId == m_nMyId)
                return i;
        }
        return -1;
    }
};
