#include "input/Input.h"
#include "input/KeyCodes.h"
#include "net/Network.h"

#include <cstring>

// The three line editors read the polled keyboard through one fixed table: the player's keyboard layout
// plays no part, and a key counts on its release.
namespace
{
struct CKey
{
    uint8_t m_ucKey;
    uint8_t m_ucPadKey; // the same character's key on the number pad, or 0
    char m_cPlain;
    char m_cShifted;
};

const CKey LETTER_KEYS[] = {
    {DIK_A, 0, 'a', 'A'}, {DIK_B, 0, 'b', 'B'}, {DIK_C, 0, 'c', 'C'}, {DIK_D, 0, 'd', 'D'}, {DIK_E, 0, 'e', 'E'},
    {DIK_F, 0, 'f', 'F'}, {DIK_G, 0, 'g', 'G'}, {DIK_H, 0, 'h', 'H'}, {DIK_I, 0, 'i', 'I'}, {DIK_J, 0, 'j', 'J'},
    {DIK_K, 0, 'k', 'K'}, {DIK_L, 0, 'l', 'L'}, {DIK_M, 0, 'm', 'M'}, {DIK_N, 0, 'n', 'N'}, {DIK_O, 0, 'o', 'O'},
    {DIK_P, 0, 'p', 'P'}, {DIK_Q, 0, 'q', 'Q'}, {DIK_R, 0, 'r', 'R'}, {DIK_S, 0, 's', 'S'}, {DIK_T, 0, 't', 'T'},
    {DIK_U, 0, 'u', 'U'}, {DIK_V, 0, 'v', 'V'}, {DIK_W, 0, 'w', 'W'}, {DIK_X, 0, 'x', 'X'}, {DIK_Y, 0, 'y', 'Y'},
    {DIK_Z, 0, 'z', 'Z'},
};

// The digits and the full stop are all the address editor knows.
const CKey NUMBER_KEYS[] = {
    {DIK_0, DIK_NUMPAD0, '0', ')'}, {DIK_1, DIK_NUMPAD1, '1', '!'},      {DIK_2, DIK_NUMPAD2, '2', '@'},
    {DIK_3, DIK_NUMPAD3, '3', '#'}, {DIK_4, DIK_NUMPAD4, '4', '$'},      {DIK_5, DIK_NUMPAD5, '5', '%'},
    {DIK_6, DIK_NUMPAD6, '6', '^'}, {DIK_7, DIK_NUMPAD7, '7', '&'},      {DIK_8, DIK_NUMPAD8, '8', '*'},
    {DIK_9, DIK_NUMPAD9, '9', '('}, {DIK_PERIOD, DIK_DECIMAL, '.', '>'},
};

const CKey SIGN_KEYS[] = {
    {DIK_COMMA, 0, ',', '<'},
    {DIK_COLON, 0, ':', ':'},
    {DIK_SEMICOLON, 0, ';', ':'},
    {DIK_SPACE, 0, ' ', ' '},
};

// Both keys of a pair are read, so a release of either is taken once and neither is left for a later frame.
bool Released(const CKey& Key)
{
    const bool bMain = KeyPressed(Key.m_ucKey);
    const bool bPad = Key.m_ucPadKey != 0 && KeyPressed(Key.m_ucPadKey);
    return bMain || bPad;
}

// One editor: a text of at most uiLimit characters in a field of uiSize, edited at its end.
struct CLineEditor
{
    char* m_pText;
    char* m_pBackup;
    size_t m_Size;
    size_t m_Limit;

    void Type(const CKey* pKeys, size_t Count, bool bShift) const
    {
        for(size_t i = 0; i < Count; i++)
        {
            const size_t Length = std::strlen(m_pText);
            if(Released(pKeys[i]) && Length < m_Limit)
            {
                m_pText[Length] = bShift ? pKeys[i].m_cShifted : pKeys[i].m_cPlain;
                m_pText[Length + 1] = '\0';
            }
        }
    }

    // Backspace takes the text through its backup, all but the last character.
    void EraseLast() const
    {
        const size_t Length = std::strlen(m_pText);
        if(!KeyPressed(DIK_BACK) || Length == 0)
            return;
        std::memcpy(m_pBackup, m_pText, m_Size);
        std::memset(m_pText, 0, m_Size);
        std::memcpy(m_pText, m_pBackup, Length - 1);
    }
};

bool ShiftHeld()
{
    return KeyDown(DIK_LSHIFT) || KeyDown(DIK_RSHIFT);
}

// Letters, digits, the full stop, then the other signs: in one frame several keys may land, in that order.
void EditChatLine(const CLineEditor& Editor)
{
    const bool bShift = ShiftHeld();
    Editor.Type(LETTER_KEYS, sizeof(LETTER_KEYS) / sizeof(CKey), bShift);
    Editor.Type(NUMBER_KEYS, sizeof(NUMBER_KEYS) / sizeof(CKey), bShift);
    Editor.Type(SIGN_KEYS, sizeof(SIGN_KEYS) / sizeof(CKey), bShift);
    Editor.EraseLast();
}
} // namespace

void CNetwork::UpdateChatEntry()
{
    EditChatLine({m_szChatInput, m_szChatBackup, sizeof(m_szChatInput), CHAT_INPUT_LIMIT});
}

void CNetwork::UpdateLobbyEntry()
{
    EditChatLine({m_szLobbyInput, m_szLobbyBackup, sizeof(m_szLobbyInput), LOBBY_INPUT_LIMIT});
}

// An address is digits and full stops; Shift changes nothing here.
void CNetwork::UpdateAddressEntry()
{
    const CLineEditor Editor{m_szAddressInput, m_szAddressBackup, sizeof(m_szAddressInput), ADDRESS_INPUT_LIMIT};
    Editor.Type(NUMBER_KEYS, sizeof(NUMBER_KEYS) / sizeof(CKey), false);
    Editor.EraseLast();
}
