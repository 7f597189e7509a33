#include "play/PlayFixture.h"
#include "powerups/PowerupTable.h"

#include <cstdlib>
#include <set>

class PowerupStack : public CPlayFixture
{
protected:
    CPowerupManager& m_Powerups = m_Game.m_Powerups;

    std::string Stack() const { return std::string(m_Powerups.m_acStack, POWERUP_STACK_SIZE); }

    std::set<char> LettersEarned(int iTimes)
    {
        std::set<char> Letters;
        for(int i = 0; i < iTimes; i++)
        {
            m_Powerups.ApplyEmpty();
            m_Powerups.EarnPowerup();
            Letters.insert(m_Powerups.m_acStack[0]);
        }
        return Letters;
    }
};

TEST_F(PowerupStack, SinglePlayEarnsFiveLettersAndANetworkGameAllTen)
{
    std::srand(3);
    EXPECT_EQ(LettersEarned(300), (std::set<char>{'D', 'H', 'M', 'C', 'X'}));
    m_Game.m_Network.m_bNetGame = true;
    EXPECT_EQ(LettersEarned(300).size(), static_cast<size_t>(NUM_POWERUPS));
    EXPECT_STREQ(FindPowerup('X')->m_pDescription, "Replace one color with a random color");
    EXPECT_EQ(FindPowerup('H')->m_uiMessageType, 24u);
    EXPECT_EQ(FindPowerup('Q'), nullptr);
}

TEST_F(PowerupStack, FirstEarnedIsFirstSpentAndAFullStackDropsTheSixth)
{
    for(char c : {'H', 'C', 'T', 'X', 'D'})
        m_Powerups.PushLetter(c);
    m_Powerups.EarnPowerup();
    EXPECT_EQ(Stack(), "HCTXD");
    EXPECT_EQ(m_Powerups.m_nStackCount, 5u);

    m_Powerups.UsePowerup();
    EXPECT_TRUE(m_Powerups.m_bHaltOn);
    EXPECT_EQ(Stack(), "CTXD ");
    m_Powerups.UsePowerup();
    m_Powerups.UsePowerup(); // TAKE has no effect of its own and is used up
    EXPECT_EQ(Stack(), "XD   ");
    EXPECT_EQ(m_Powerups.m_nStackCount, 2u);
    EXPECT_EQ(m_Audio.m_vPlayed, (std::vector<uint32_t>{SOUND_POWER, SOUND_POWER, SOUND_CHIMES, SOUND_POWER}));

    m_Powerups.PushLetter('E');
    m_Powerups.UsePowerup();
    m_Powerups.UsePowerup();
    m_Powerups.UsePowerup(); // EMPTY clears what is left
    EXPECT_EQ(Stack(), "     ");
    EXPECT_EQ(m_Powerups.m_nStackCount, 0u);
    m_Powerups.UsePowerup();
    EXPECT_EQ(m_Audio.m_vPlayed.size(), 7u) << "an empty stack spends nothing and plays nothing";
}

TEST_F(PowerupStack, KeysSpendOnlyWhereTheyMayAndNeverWhileChatting)
{
    m_Powerups.PushLetter('H');
    m_Powerups.PushLetter('H');
    m_Powerups.PushLetter('H');
    m_Game.m_Graphics.m_nScreenState = SCREEN_RESULTS;
    m_Game.m_Flow.OnChar(' ');
    m_Game.m_Flow.OnChar('2'); // nobody in slot 2
    EXPECT_EQ(m_Powerups.m_nStackCount, 3u);
    m_Game.m_Flow.OnChar('0');
    EXPECT_EQ(m_Powerups.m_nStackCount, 2u) << "0 spends on any screen";
    m_Game.m_Graphics.m_nScreenState = SCREEN_PLAY;
    m_Game.m_Flow.OnChar(' ');
    m_Game.m_Flow.OnChar('1'); // the player's own slot
    EXPECT_EQ(m_Powerups.m_nStackCount, 0u);
    EXPECT_EQ(m_Game.m_Network.m_nTarget, 0);
    m_Powerups.PushLetter('H');
    g_bChatOpen = true;
    m_Game.m_Flow.OnChar('0');
    g_bChatOpen = false;
    EXPECT_EQ(m_Powerups.m_nStackCount, 1u);
}
