#pragma once
#include "net/NetMessage.h"

#include <cstdint>

class CPowerupManager;
struct CScoreRow;
struct CPlayerSlot;

// The 32 message types.
enum : uint32_t
{
    NET_ASSIGN_ID = 0,
    NET_PLAYER_JOINED = 1,
    NET_PLAYER_LEFT = 2,
    NET_LOBBY_CHAT = 3,
    NET_GAME_CHAT = 4,
    NET_PLAYER_OUT = 5,
    NET_PLAYER_TABLE = 6,
    NET_START_GAME = 7,
    NET_YOU_WIN = 8,
    NET_YOU_LOSE = 9,
    NET_SCORE_TABLE = 10,
    NET_SCORE_UPDATE = 11,
    NET_RANK_REQUEST = 12,
    NET_PU_INCREASE = 13,
    NET_PU_SWAP = 14,
    NET_PU_RANDOM = 15,
    NET_PU_ADD = 16,
    NET_PU_TAKE = 17,
    NET_PU_TAKEN = 18,
    NET_PU_FRACTURE = 19,
    NET_PU_EMPTY = 20,
    NET_PU_ENQUE = 21,
    NET_PU_UNLEASH = 22,
    NET_PU_DECREASE = 23,
    NET_PU_HALT = 24,
    NET_PU_ZERO = 25,
    NET_PU_CLEAR = 26,
    NET_PU_NEUTRALIZE = 27,
    NET_PU_LINK = 28,
    NET_PU_MAKE = 29,
    NET_PU_EXCHANGE = 30,
    NET_PU_BLOW = 31,
    NUM_MESSAGE_TYPES = 32
};

// Who may send a type: the host alone, a client alone (to the host), or either.
enum ENetSender : uint8_t
{
    SENDER_HOST,
    SENDER_CLIENT,
    SENDER_ANY,
};

// What the host does with a type it receives once it has acted on it.
enum ENetRelay : uint8_t
{
    RELAY_NONE,
    RELAY_TO_ALL,    // the same frame to every client
    RELAY_TO_TARGET, // the same frame to the client whose id is in m_nTo, unless that is the host (0)
};

// The forms a payload takes.
enum ENetPayload : uint8_t
{
    PAYLOAD_MARK,         // one byte that nobody reads
    PAYLOAD_ID,           // a player id
    PAYLOAD_TEXT,         // a line of chat with its terminating zero
    PAYLOAD_LETTER,       // one powerup letter with its terminating zero
    PAYLOAD_PLAYER_TABLE, // a count and 8 entries of 8 bytes
    PAYLOAD_SCORE_TABLE,  // a count and 8 score rows
    PAYLOAD_SCORE_ROW,    // one score row
};

// Everything about one message type that more than one place needs.
struct CMessageInfo
{
    const char* m_pName;
    ENetSender m_eSender;
    ENetPayload m_ePayload;
    ENetRelay m_eRelay;
    const char* m_pNotice;                  // what the target of a powerup is shown, with the sender's number
    void (CPowerupManager::*m_pfnEffect)(); // what a powerup does on the target's level; null for nothing
};

extern const CMessageInfo g_aMessages[NUM_MESSAGE_TYPES];

constexpr uint32_t MARK = '0';
constexpr uint32_t TEXT_PAYLOAD_MAX = 256; // the buffer a chat line is built in
constexpr uint32_t PLAYER_TABLE_SIZE = 68;
constexpr uint32_t SCORE_ROW_SIZE = 20;
constexpr uint32_t SCORE_TABLE_SIZE = 164;
constexpr uint32_t TABLE_ENTRIES = 8; // entries of either table's payload

// True when the payload has the size and form its type asks for; the one test of every frame read.
bool PayloadFits(const CNetMessage& Message);

// The byte layouts of the two tables.
void WritePlayerEntry(uint8_t* pPayload, uint32_t uiEntry, const CPlayerSlot& Slot);
CPlayerSlot ReadPlayerEntry(const uint8_t* pPayload, uint32_t uiEntry);
void WriteScoreRow(uint8_t* pRow, const CScoreRow& Row);
CScoreRow ReadScoreRow(const uint8_t* pRow);
