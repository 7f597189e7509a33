#include "input/Input.h"
#include "input/KeyCodes.h"
#include "net/Network.h"
#include "platform/twins/ScriptedInput.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

class TextEntry : public ::testing::Test
{
protected:
    TextEntry()
    {
        InitInput();
        CreateKeyboard(&m_Input);
    }
    ~TextEntry() override
    {
        ReleaseKeyboard();
        ReleaseInput();
    }
    // The keys go down in one frame and up in the next, each frame editing once: a key counts on its release.
    void Press(std::initializer_list<uint8_t> Keys, const std::function<void()>& fnEdit,
               std::initializer_list<uint8_t> Held = {})
    {
        for(bool bDown : {true, false})
        {
            for(uint8_t ucKey : Held)
                m_Input.SetKey(ucKey, true);
            for(uint8_t ucKey : Keys)
                m_Input.SetKey(ucKey, bDown);
            PollKeyboard();
            fnEdit();
        }
        for(uint8_t ucKey : Held)
            m_Input.SetKey(ucKey, false);
    }
    void Chat(std::initializer_list<uint8_t> Keys, std::initializer_list<uint8_t> Held = {})
    {
        Press(
            Keys, [this] { m_Net.UpdateChatEntry(); }, Held);
    }
    void Address(std::initializer_list<uint8_t> Keys, std::initializer_list<uint8_t> Held = {})
    {
        Press(
            Keys, [this] { m_Net.UpdateAddressEntry(); }, Held);
    }

    CScriptedInput m_Input;
    CNetwork m_Net;
};

TEST_F(TextEntry, EachEditorStopsAtItsLongestTextAndNeverPastItsField)
{
    for(int i = 0; i < 80; i++)
    {
        Chat({DIK_A});
        Press({DIK_B}, [this] { m_Net.UpdateLobbyEntry(); });
        Address({DIK_7});
    }
    EXPECT_EQ(std::string(m_Net.m_szChatInput), std::string(68, 'a'));
    EXPECT_EQ(std::string(m_Net.m_szLobbyInput), std::string(28, 'b'));
    EXPECT_EQ(std::string(m_Net.m_szAddressInput), std::string(15, '7'));
}

// The table is fixed, whatever the keyboard's layout: the digit row and the number pad type alike, Shift
// from either side gives the upper row, and the colon key gives a colon either way.
TEST_F(TextEntry, ShiftAndTheNumberPadGiveTheCharactersOfTheTable)
{
    const std::pair<uint8_t, bool> aKeys[] = {
        {DIK_1, false},      {DIK_NUMPAD1, false}, {DIK_1, true},          {DIK_NUMPAD1, true},
        {DIK_COLON, false},  {DIK_COLON, true},    {DIK_SEMICOLON, false}, {DIK_SEMICOLON, true},
        {DIK_PERIOD, false}, {DIK_DECIMAL, true},  {DIK_COMMA, false},     {DIK_COMMA, true},
        {DIK_SPACE, true},   {DIK_Q, true},        {DIK_0, true},          {DIK_NUMPAD9, false}};
    for(const auto& [ucKey, bShift] : aKeys)
        Chat({ucKey}, bShift ? std::initializer_list<uint8_t>{DIK_LSHIFT} : std::initializer_list<uint8_t>{});
    Chat({DIK_2}, {DIK_RSHIFT});
    EXPECT_STREQ(m_Net.m_szChatInput, "11!!::;:.>,< Q)9@");

    Address({DIK_1}, {DIK_LSHIFT});
    Address({DIK_A});
    Address({DIK_DECIMAL});
    Address({DIK_SPACE});
    Address({DIK_NUMPAD0});
    EXPECT_STREQ(m_Net.m_szAddressInput, "1.0") << "an address is digits and full stops only";
}

// Several keys let go in one frame land in the table's order; Backspace takes the last character, and on an
// empty text nothing; a key held down types nothing until it is let go, and then once.
TEST_F(TextEntry, KeysOfOneFrameLandInTableOrderAndBackspaceTakesTheLast)
{
    Chat({DIK_BACK});
    EXPECT_STREQ(m_Net.m_szChatInput, "");
    Chat({DIK_SPACE, DIK_PERIOD, DIK_0, DIK_Z, DIK_A});
    EXPECT_STREQ(m_Net.m_szChatInput, "az0. ");
    Chat({DIK_BACK});
    EXPECT_STREQ(m_Net.m_szChatInput, "az0.");

    m_Input.SetKey(DIK_K, true);
    for(int i = 0; i < 5; i++)
    {
        PollKeyboard();
        m_Net.UpdateChatEntry();
    }
    EXPECT_STREQ(m_Net.m_szChatInput, "az0.");
    Chat({DIK_K});
    EXPECT_STREQ(m_Net.m_szChatInput, "az0.k");
}
