#include "net/Messages.h"

#include "net/Network.h"
#include "powerups/PowerupManager.h"

#include <cstring>

namespace
{
#define PU(NAME) "Player %d has used " NAME " on you"
constexpr const char* NO_NOTICE = nullptr;
constexpr void (CPowerupManager::*NO_EFFECT)() = nullptr;

struct CPayloadSize
{
    uint32_t m_uiMin;
    uint32_t m_uiMax;
    bool m_bText; // the last byte is the terminating zero
};

// By ENetPayload.
const CPayloadSize PAYLOAD_SIZES[] = {
    {1, 1, false},
    {4, 4, false},
    {1, TEXT_PAYLOAD_MAX, true},
    {2, 2, true},
    {PLAYER_TABLE_SIZE, PLAYER_TABLE_SIZE, false},
    {SCORE_TABLE_SIZE, SCORE_TABLE_SIZE, false},
    {SCORE_ROW_SIZE, SCORE_ROW_SIZE, false},
};

float ReadFloat(const uint8_t* p)
{
    const uint32_t uiBits = ReadU32(p);
    float fValue;
    std::memcpy(&fValue, &uiBits, sizeof(fValue));
    return fValue;
}

void WriteFloat(uint8_t* p, float fValue)
{
    uint32_t uiBits;
    std::memcpy(&uiBits, &fValue, sizeof(uiBits));
    WriteU32(p, uiBits);
}
} // namespace

const CMessageInfo g_aMessages[NUM_MESSAGE_TYPES] = {
    {"NET_ASSIGN_ID", SENDER_HOST, PAYLOAD_ID, RELAY_NONE, NO_NOTICE, NO_EFFECT},
    {"NET_PLAYER_JOINED", SENDER_HOST, PAYLOAD_ID, RELAY_NONE, NO_NOTICE, NO_EFFECT},
    {"NET_PLAYER_LEFT", SENDER_HOST, PAYLOAD_ID, RELAY_NONE, NO_NOTICE, NO_EFFECT},
    {"NET_LOBBY_CHAT", SENDER_ANY, PAYLOAD_TEXT, RELAY_TO_ALL, NO_NOTICE, NO_EFFECT},
    {"NET_GAME_CHAT", SENDER_ANY, PAYLOAD_TEXT, RELAY_TO_ALL, NO_NOTICE, NO_EFFECT},
    {"NET_PLAYER_OUT", SENDER_CLIENT, PAYLOAD_MARK, RELAY_NONE, NO_NOTICE, NO_EFFECT},
    {"NET_PLAYER_TABLE", SENDER_HOST, PAYLOAD_PLAYER_TABLE, RELAY_NONE, NO_NOTICE, NO_EFFECT},
    {"NET_START_GAME", SENDER_HOST, PAYLOAD_MARK, RELAY_NONE, NO_NOTICE, NO_EFFECT},
    {"NET_YOU_WIN", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_ALL, NO_NOTICE, NO_EFFECT},
    {"NET_YOU_LOSE", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_ALL, NO_NOTICE, NO_EFFECT},
    {"NET_SCORE_TABLE", SENDER_HOST, PAYLOAD_SCORE_TABLE, RELAY_NONE, NO_NOTICE, NO_EFFECT},
    {"NET_SCORE_UPDATE", SENDER_CLIENT, PAYLOAD_SCORE_ROW, RELAY_NONE, NO_NOTICE, NO_EFFECT},
    {"NET_RANK_REQUEST", SENDER_CLIENT, PAYLOAD_MARK, RELAY_NONE, NO_NOTICE, NO_EFFECT},
    {"NET_PU_INCREASE", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("INCREASE"), &CPowerupManager::ApplyIncrease},
    {"NET_PU_SWAP", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("SWAP"), NO_EFFECT},
    {"NET_PU_RANDOM", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("RANDOM"), &CPowerupManager::ApplyRandom},
    {"NET_PU_ADD", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("ADD"), NO_EFFECT},
    {"NET_PU_TAKE", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("TAKE"), NO_EFFECT},
    {"NET_PU_TAKEN", SENDER_ANY, PAYLOAD_LETTER, RELAY_TO_TARGET, "You have taken powerup from Player %d", NO_EFFECT},
    {"NET_PU_FRACTURE", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("FRACTURE"), NO_EFFECT},
    {"NET_PU_EMPTY", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("EMPTY"), &CPowerupManager::ApplyEmpty},
    {"NET_PU_ENQUE", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("ENQUE"), NO_EFFECT},
    {"NET_PU_UNLEASH", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("UNLEASH"), NO_EFFECT},
    {"NET_PU_DECREASE", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("DECREASE"), &CPowerupManager::ApplyDecrease},
    {"NET_PU_HALT", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("HALT"), &CPowerupManager::ApplyHalt},
    {"NET_PU_ZERO", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("ZERO"), &CPowerupManager::ApplyZero},
    {"NET_PU_CLEAR", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("CLEAR"), &CPowerupManager::ApplyClear},
    {"NET_PU_NEUTRALIZE", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("NEUTRALIZE"), NO_EFFECT},
    {"NET_PU_LINK", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("LINK"), NO_EFFECT},
    {"NET_PU_MAKE", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("MAKE"), &CPowerupManager::ApplyMake},
    {"NET_PU_EXCHANGE", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("EXCHANGE"), &CPowerupManager::ApplyExchange},
    {"NET_PU_BLOW", SENDER_ANY, PAYLOAD_MARK, RELAY_TO_TARGET, PU("BLOW"), NO_EFFECT},
};
#undef PU

bool PayloadFits(const CNetMessage& Message)
{
    const CPayloadSize& Size = PAYLOAD_SIZES[g_aMessages[Message.m_nType].m_ePayload];
    if(Message.m_nSize < Size.m_uiMin || Message.m_nSize > Size.m_uiMax)
        return false;
    return !Size.m_bText || Message.m_pData[Message.m_nSize - 1] == '\0';
}

void WritePlayerEntry(uint8_t* pPayload, uint32_t uiEntry, const CPlayerSlot& Slot)
{
    uint8_t* p = pPayload + 4 + 8 * static_cast<size_t>(uiEntry);
    WriteU32(p, Slot.m_nId);
    p[4] = Slot.m_bPresent ? 1 : 0;
    p[5] = Slot.m_bFinished ? 1 : 0;
    p[6] = 0;
    p[7] = 0;
}

CPlayerSlot ReadPlayerEntry(const uint8_t* pPayload, uint32_t uiEntry)
{
    const uint8_t* p = pPayload + 4 + 8 * static_cast<size_t>(uiEntry);
    CPlayerSlot Slot;
    Slot.m_nId = ReadU32(p);
    Slot.m_bPresent = p[4] != 0;
    Slot.m_bFinished = p[5] != 0;
    return Slot;
}

void WriteScoreRow(uint8_t* pRow, const CScoreRow& Row)
{
    WriteU32(pRow, Row.m_nNumber);
    WriteU32(pRow + 4, Row.m_nId);
    WriteU32(pRow + 8, Row.m_nScore);
    WriteFloat(pRow + 12, Row.m_fDanger);
    pRow[16] = Row.m_bFinished ? 1 : 0;
    pRow[17] = pRow[18] = pRow[19] = 0;
}

CScoreRow ReadScoreRow(const uint8_t* pRow)
{
    CScoreRow Row;
    Row.m_nNumber = ReadU32(pRow);
    Row.m_nId = ReadU32(pRow + 4);
    Row.m_nScore = ReadU32(pRow + 8);
    Row.m_fDanger = ReadFloat(pRow + 12);
    Row.m_bFinished = pRow[16] != 0;
    return Row;
}
