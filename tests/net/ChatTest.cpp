#include "input/Input.h"
#include "input/KeyCodes.h"
#include "net/GameOnTheNetwork.h"
#include "net/Messages.h"
#include "platform/interfaces/Clock.h"
#include "platform/twins/ScriptedInput.h"

namespace
{
// The game's Return key and frames: the keyboard is the scripted one, and each frame runs the network step.
class CChatKeys
{
public:
    CChatKeys()
    {
        InitInput();
        CreateKeyboard(&m_Input);
    }
    ~CChatKeys()
    {
        ReleaseKeyboard();
        ReleaseInput();
    }
    void Press(CGame& Game, uint8_t ucKey)
    {
        for(bool bDown : {true, false})
        {
            m_Input.SetKey(ucKey, bDown);
            PollKeyboard();
            Game.m_Network.Tick();
        }
    }
    CScriptedInput m_Input;
};
} // namespace

class ChatOnHost : public CHostingGame
{
protected:
    void SetUp() override
    {
        CHostingGame::SetUp();
        ASSERT_TRUE(Join(m_Wire, m_uiWire));
    }
    CWireClient m_Wire;
    uint32_t m_uiWire = 0;
    CChatKeys m_Keys;
};

using ChatOnClient = CJoinedGame;

// The host's own line shows at once and goes to everyone; an empty lobby line holds only the number.
TEST_F(ChatOnHost, TheHostsLinesReadAsOneAColonABlankAndTheText)
{
    CNetwork& Network = m_Game.m_Network;
    std::strcpy(Network.m_szChatInput, "hi");
    Network.SendGameChat();
    EXPECT_STREQ(Network.m_szChatLine, "1: hi");
    EXPECT_STREQ(Network.m_szChatInput, "");
    CWireFrame Line;
    ASSERT_TRUE(Pump([&] { return m_Wire.ReadUntil(NET_GAME_CHAT, Line, 0); }));
    EXPECT_EQ(Line.m_vPayload, WireText("1: hi"));
    EXPECT_EQ(Line.m_uiFrom, 0u);

    Network.SendLobbyChat();
    EXPECT_STREQ(Network.m_szLobbyLines[0], "1: ");
    ASSERT_TRUE(Pump([&] { return m_Wire.ReadUntil(NET_LOBBY_CHAT, Line, 0); }));
    EXPECT_EQ(Line.m_vPayload, WireText("1: "));
    EXPECT_EQ(Line.m_uiTo, 1u);
}

// A client sees its line when the host's relay comes back; a full line with its number is cut to the field.
TEST_F(ChatOnClient, AClientsLongestLineComesBackCutToTheField)
{
    CNetwork& Network = m_Game.m_Network;
    std::memset(Network.m_szChatInput, 'x', CHAT_INPUT_LIMIT);
    SetManualClock(777);
    Network.SendGameChat();
    EXPECT_STREQ(Network.m_szChatLine, "") << "not before the relay";
    EXPECT_EQ(Network.m_nChatTime, 777u);
    CWireFrame Line;
    ASSERT_TRUE(Pump([&] { return m_Other.ReadUntil(NET_GAME_CHAT, Line, 0); }));
    EXPECT_EQ(Line.m_vPayload, WireText("2: " + std::string(CHAT_INPUT_LIMIT, 'x')));
    ASSERT_TRUE(Pump([&] { return Network.m_szChatLine[0] != '\0'; }));
    EXPECT_EQ(std::string(Network.m_szChatLine), "2: " + std::string(CHAT_LINE_CHARS - 4, 'x'));
    UseSystemClock();
}

// Return sends the lobby's line; in play it opens the box, whose typing keeps the digits from the powerups,
// and closes it again to send; anywhere else it does nothing, and a level's end closes the box unsent.
TEST_F(ChatOnHost, ReturnSendsInTheLobbyOpensAndSendsInPlayAndDoesNothingElsewhere)
{
    CNetwork& Network = m_Game.m_Network;
    CGraphicsEngine& Screen = m_Game.m_Graphics;
    CWireFrame Line;
    Screen.m_nScreenState = SCREEN_LOBBY;
    std::strcpy(Network.m_szLobbyInput, "hey");
    m_Keys.Press(m_Game, DIK_RETURN);
    ASSERT_TRUE(Pump([&] { return m_Wire.ReadUntil(NET_LOBBY_CHAT, Line, 0); }));
    EXPECT_EQ(Line.m_vPayload, WireText("1: hey"));

    Screen.m_nScreenState = SCREEN_PLAY;
    m_Keys.Press(m_Game, DIK_RETURN);
    ASSERT_TRUE(g_bChatOpen);
    m_Game.m_Powerups.PushLetter('H');
    m_Keys.Press(m_Game, DIK_1);
    m_Game.m_Flow.OnChar('1');
    EXPECT_EQ(m_Game.m_Powerups.m_nStackCount, 1u) << "the digit typed, it spent nothing";
    EXPECT_STREQ(Network.m_szChatInput, "1");
    m_Keys.Press(m_Game, DIK_RETURN);
    EXPECT_FALSE(g_bChatOpen);
    EXPECT_STREQ(Network.m_szChatLine, "1: 1");

    Screen.m_nScreenState = SCREEN_OPTIONS;
    m_Keys.Press(m_Game, DIK_RETURN);
    PumpAWhile();
    EXPECT_FALSE(m_Wire.ReadUntil(NET_LOBBY_CHAT, Line, 50));

    Screen.m_nScreenState = SCREEN_PLAY;
    m_Keys.Press(m_Game, DIK_RETURN);
    ASSERT_TRUE(g_bChatOpen);
    Screen.m_nScreenState = SCREEN_RESULTS;
    m_Keys.Press(m_Game, DIK_SPACE);
    EXPECT_FALSE(g_bChatOpen) << "the results screen's keys work as ever";
}
