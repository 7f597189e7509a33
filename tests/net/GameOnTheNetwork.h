#pragma once
#include "app/Game.h"
#include "net/NetTestSupport.h"
#include "platform/twins/RecordingRenderDevice.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

// A score row in its wire form.
std::vector<uint8_t> ScoreRow(uint32_t uiNumber, uint32_t uiId, uint32_t uiScore, float fDanger);

// A whole game whose link a test drives: as the host of wire clients, or as a client of a host peer.
class CGameOnTheNetwork : public ::testing::Test
{
protected:
    CGameOnTheNetwork() : m_GamePeer(m_Game.m_Network)
    {
        g_pGame = &m_Game;
        m_Device.m_bRecording = false;
        m_Game.m_Graphics.m_pDevice = &m_Device;
        m_Game.m_Network.m_bNetGame = true;
    }
    ~CGameOnTheNetwork() override
    {
        m_Game.m_Network.Shutdown();
        g_pGame = nullptr;
    }
    bool Pump(const std::function<bool()>& fnDone) { return PumpUntil({&m_Host, &m_GamePeer}, fnDone); }
    void PumpAWhile() { PumpFor({&m_Host, &m_GamePeer}, 200); }
    std::string Notice() const { return m_Game.m_Powerups.m_szNotice; }
    std::string Stack() const { return std::string(m_Game.m_Powerups.m_acStack, m_Game.m_Powerups.m_nStackCount); }

    CLogRecorder m_Log;
    CRecordingRenderDevice m_Device;
    CGame m_Game;
    CPeer m_Host;
    CPeer m_GamePeer;
};

// The game hosts; wire clients join it.
class CHostingGame : public CGameOnTheNetwork
{
protected:
    void SetUp() override { ASSERT_TRUE(StartHost(m_GamePeer)); }
    bool Join(CWireClient& Client, uint32_t& uiId) { return JoinWire(m_GamePeer, Client, uiId); }
};

// The game hosts two wire clients.
class CHostOfTwo : public CHostingGame
{
protected:
    void SetUp() override
    {
        CHostingGame::SetUp();
        ASSERT_TRUE(Join(m_A, m_uiA));
        ASSERT_TRUE(Join(m_B, m_uiB));
    }
    CWireClient m_A, m_B;
    uint32_t m_uiA = 0, m_uiB = 0;
};

// The game is a client of a host peer, and wire clients join the same host.
class CJoinedGame : public CGameOnTheNetwork
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(StartHost(m_Host));
        ASSERT_TRUE(JoinClient(m_Host, m_GamePeer));
        ASSERT_TRUE(JoinWire(m_Host, m_Other, m_uiOther));
        ASSERT_TRUE(Pump([this] { return m_Game.m_Network.m_nPlayers == 3; }));
    }
    CWireClient m_Other;
    uint32_t m_uiOther = 0;
};
