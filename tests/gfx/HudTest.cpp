#include "gfx/EngineFixture.h"
#include "net/Messages.h"

#include "math/FloatBits.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

class Hud : public CEngineFixture
{
protected:
    Hud() { SetManualClock(100000); } // long after any chat line or notice
    ~Hud() override { g_bChatOpen = false; }

    // Draws the overlay and keeps its texts as "text (x,y) colour hFontHeight".
    void Overlay()
    {
        m_Device.ClearRecords();
        m_Engine.RenderHud();
        m_vShown.clear();
        for(const auto& Text : m_Device.m_vTexts)
        {
            char szPlace[64];
            std::snprintf(szPlace, sizeof(szPlace), " (%d,%d) %08x h%d", Text.m_Rect.m_iLeft, Text.m_Rect.m_iTop,
                          Text.m_uiColour, Text.m_iFontHeight);
            m_vShown.push_back(Text.m_Text + szPlace);
        }
    }
    bool Shows(const std::string& Text) const
    {
        return std::find(m_vShown.begin(), m_vShown.end(), Text) != m_vShown.end();
    }
    // A track with points at distances 0 to 100 and two balls, the lead one on the given point.
    CBall& LeadAt(uint32_t uiPoint)
    {
        CTrack& Track = m_Game.m_Level.m_vTracks.emplace_back();
        for(int i = 0; i <= 100; i++)
            Track.m_Spline.m_vDistances.push_back(static_cast<float>(i));
        Track.m_lstBalls = {new CBall, new CBall};
        Track.m_lstBalls.back()->m_uiPoint = uiPoint;
        return *Track.m_lstBalls.back();
    }
    std::vector<std::pair<uint32_t, uint32_t>> PointBatches() const
    {
        std::vector<std::pair<uint32_t, uint32_t>> vBatches;
        for(const CDraw& Draw : DrawsOf(PT_POINTLIST))
            vBatches.emplace_back(Draw.m_bOutsideBuffer ? UINT32_MAX : Draw.m_uiStart, Draw.m_uiCount);
        return vBatches;
    }

    std::vector<std::string> m_vShown;
};

TEST_F(Hud, ASinglePlayerFrameShowsScoreBallsAndTimeAndNothingElse)
{
    Start();
    m_Game.m_nScore = 1234;
    m_Game.m_Level.m_vTracks.reserve(2);
    LeadAt(10);
    LeadAt(20);
    m_Game.m_Level.m_vTracks[0].m_vColourQueue.assign(3, 0);
    m_Game.m_Level.m_Countdown.Set(65999);
    m_Game.m_Level.m_Countdown.Update(0);
    m_Game.m_Level.m_ucNextColour = 4;
    Overlay();
    EXPECT_EQ(m_vShown, std::vector<std::string>({"Next: (500,40) ff000000 h26", "1234 (640,12) ff88cccc h26",
                                                  "Balls remaining: (500,60) ffffffff h26", "7 (660,60) ffffffff h26",
                                                  "Next: (500,40) ffffffff h26", "1234 (640,12) ff88cccc h26",
                                                  "Time: (500,80) ffffffff h26", ": (572,80) ff88cccc h26",
                                                  "1 (560,80) ff88cccc h26", "5 (580,80) ff88cccc h26"}));
    std::vector<std::string> vPictures;
    for(const CDraw& Draw : m_Device.m_vDraws)
        vPictures.push_back(Draw.m_Texture.substr(Draw.m_Texture.rfind('\\') + 1));
    EXPECT_EQ(vPictures,
              std::vector<std::string>({"power_ups.png", "score.png", "linear_track.png", "face1.png", "orange.png"}));

    m_Game.m_Level.m_ucNextColour = 6;
    Overlay();
    EXPECT_EQ(m_Device.m_vDraws.back().m_Texture, "data\\hud\\images\\orange.png") << "keeps the last icon";
}

TEST_F(Hud, TheFaceAndItsMarkerFollowTheWorstLeadBall)
{
    Start();
    const CSprite& Marker = m_Engine.m_aSprites[SPR_HUD_PROGRESS];
    Overlay();
    EXPECT_EQ(Marker.m_pImage, m_Engine.Face(0)) << "no balls: calm";
    EXPECT_EQ(Marker.m_nX, 144u);

    m_Game.m_Level.m_vTracks.reserve(2);
    CBall& Lead = LeadAt(10);
    LeadAt(25);
    Overlay();
    EXPECT_EQ(m_Device.m_vDraws[3].m_Texture, "data\\hud\\images\\face2.png") << "the worse track, at a quarter";
    EXPECT_EQ(Marker.m_nX, 264u);
    EXPECT_EQ(Marker.m_nY, 550u);
    EXPECT_EQ(m_Game.m_Network.m_fDanger, 0.25f);
    for(const auto& Case : std::vector<std::pair<uint32_t, uint32_t>>({{49, 1}, {50, 2}, {89, 2}, {95, 3}, {100, 3}}))
    {
        Lead.m_uiPoint = Case.first;
        Overlay();
        EXPECT_EQ(Marker.m_pImage, m_Engine.Face(Case.second)) << "lead at " << Case.first;
    }
    EXPECT_EQ(Marker.m_nX, 624u) << "the end of the bar";
}

TEST_F(Hud, TheStackShowsItsLettersTopDownAndDescribesOnlyTheFirst)
{
    Start();
    for(char c : std::string("DHMCX"))
        m_Game.m_Powerups.PushLetter(c);
    Overlay();
    for(const char* pLetter : {"D (10,12)", "H (10,45)", "M (10,78)", "C (10,111)", "X (10,144)"})
        EXPECT_TRUE(Shows(std::string(pLetter) + " ffffffff h30")) << pLetter;
    EXPECT_TRUE(Shows("Press space bar to use powerup (48,33) ffffffff h26"));
    EXPECT_TRUE(Shows("Decrease speed (48,12) ffffffff h26"));
    EXPECT_FALSE(Shows("Halt movement (48,12) ffffffff h26"));

    m_Game.m_Network.m_bNetGame = true;
    m_Game.m_Powerups.ApplyEmpty();
    m_Game.m_Powerups.PushLetter('Q');
    Overlay();
    EXPECT_TRUE(Shows("Press a number to use powerup on target (48,33) ffffffff h26"));
    for(const std::string& Text : m_vShown)
        EXPECT_EQ(Text.find("(48,12)"), std::string::npos) << "a letter outside the table has no description";
}

TEST_F(Hud, ANetworkGameNumbersThePresentPlayersBesideTheirFaces)
{
    Start();
    CNetwork& Network = m_Game.m_Network;
    Network.m_bNetGame = true;
    Network.m_nMyId = 5;
    Network.m_Players[2] = {5, true, false};
    Network.m_Scores[2].m_fDanger = 0.6f;
    m_Engine.m_aSprites[SPR_HUD_FACE2].m_pImage = m_Engine.Face(3);
    Overlay();
    EXPECT_TRUE(Shows("1:  (100,510) ffffffff h26"));
    EXPECT_TRUE(Shows("3:  (260,510) ffee11ee h26")) << "this player's own number";
    EXPECT_FALSE(Shows("2:  (180,510) ffffffff h26"));
    std::vector<std::pair<float, std::string>> vFaces;
    for(const CDraw& Draw : m_Device.m_vDraws)
    {
        const auto vCorners = CRecordingRenderDevice::ScreenVertices(Draw);
        if(!vCorners.empty() && vCorners[1].y == 510.0f)
            vFaces.emplace_back(vCorners[1].x, Draw.m_Texture.substr(Draw.m_Texture.rfind('\\') + 1));
    }
    EXPECT_EQ(vFaces, (std::vector<std::pair<float, std::string>>({{125.0f, "face1.png"}, {285.0f, "face3.png"}})));
    EXPECT_EQ(m_Engine.m_aSprites[SPR_HUD_FACE2].m_pImage, m_Engine.Face(3)) << "absent slots are left alone";
}

TEST_F(Hud, ChatLinesAndNoticesStayTwoSecondsAndTheChatBoxShowsWhileOpen)
{
    Start();
    CNetwork& Network = m_Game.m_Network;
    std::strcpy(Network.m_szChatLine, "Player 2: hello");
    std::strcpy(m_Game.m_Powerups.m_szNotice, "HALT from Player 3");
    std::strcpy(Network.m_szChatInput, "gg");
    Network.m_nChatTime = 100000 - 1999;
    Network.m_nNoticeTime = 100000 - 2000;
    Overlay();
    EXPECT_TRUE(Shows("Player 2: hello (50,80) ffffffff h26"));
    EXPECT_FALSE(Shows("HALT from Player 3 (90,110) ffffffff h26"));
    EXPECT_FALSE(Shows("gg (50,300) ffffffff h26"));
    AdvanceManualClock(1);
    Overlay();
    EXPECT_FALSE(Shows("Player 2: hello (50,80) ffffffff h26"));

    SetManualClock(1000); // the counter has wrapped since the notice came
    Network.m_nNoticeTime = 0xFFFFFF00u;
    g_bChatOpen = true;
    Overlay();
    EXPECT_TRUE(Shows("HALT from Player 3 (90,110) ffffffff h26"));
    EXPECT_TRUE(Shows("gg (50,300) ffffffff h26"));
    const auto vBox = CRecordingRenderDevice::ScreenVertices(m_Device.m_vDraws.back());
    EXPECT_EQ(m_Device.m_vDraws.back().m_Texture, "data\\menus\\images\\gray_box.png");
    EXPECT_EQ(std::make_pair(vBox[1].x, vBox[1].y), std::make_pair(43.0f, 294.0f));
}

TEST_F(Hud, BurstsAreAdditiveFlaresInBatchesOf32AndTheOverlayBlendsByAlphaAfterThem)
{
    Start();
    CParticleSystem& Particles = m_Game.m_Particles;
    Particles.StartBurst(CPoint3(1.0f, 2.0f, 3.0f));
    Particles.m_lstParticles.front().m_Colour = {1.0f, 0.5f, -0.2f, 1.0f};
    Overlay();
    ASSERT_EQ(PointBatches(), (std::vector<std::pair<uint32_t, uint32_t>>({{0, 30}})));
    const CDraw& Burst = m_Device.m_vDraws[0];
    EXPECT_EQ(Burst.m_Texture, "data\\hud\\images\\flare.tga");
    EXPECT_EQ(std::make_pair(Burst.m_uiFVF, Burst.m_uiStride), std::make_pair(66u, 16u));
    EXPECT_EQ(Burst.m_World, CMatrixData({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}));
    const auto& States = Burst.m_auiStates;
    EXPECT_EQ(std::vector<uint32_t>({States[RS_SRCBLEND], States[RS_DESTBLEND], States[RS_ZWRITEENABLE],
                                     States[RS_LIGHTING], States[RS_POINTSPRITEENABLE], States[RS_POINTSIZE]}),
              std::vector<uint32_t>({BLEND_ONE, BLEND_ONE, 0, 0, 1, FloatToBits(5.0f)}));
    float afVertex[4];
    std::memcpy(afVertex, Burst.m_vVertices.data(), sizeof(afVertex));
    EXPECT_EQ(std::vector<float>(afVertex, afVertex + 3), std::vector<float>({1.0f, 2.0f, 3.0f}));
    EXPECT_EQ(FloatToBits(afVertex[3]), 0xFFFF8000u) << "clamped ARGB";
    const CDraw& Panel = m_Device.m_vDraws[1];
    EXPECT_EQ(Panel.m_auiStates[RS_SRCBLEND], BLEND_SRCALPHA);
    EXPECT_EQ(Panel.m_auiStates[RS_DESTBLEND], BLEND_INVSRCALPHA);
    EXPECT_EQ(m_Device.m_auiStageStates[TSS_ALPHAOP], TOP_MODULATE) << "the balls pulse again after a burst";

    Particles.StartBurst(CPoint3(0.0f, 0.0f, 0.0f));
    Overlay();
    Overlay();
    EXPECT_EQ(PointBatches(), (std::vector<std::pair<uint32_t, uint32_t>>({{64, 32}, {96, 28}})))
        << "two bursts; the second frame writes behind the first";
    for(int i = 0; i < 3; i++)
        Particles.StartBurst(CPoint3(0.0f, 0.0f, 0.0f));
    auto It = Particles.m_lstParticles.begin();
    for(int i = 0; i < 22; i++)
        (It++)->m_bAlive = false;
    Overlay();
    EXPECT_EQ(PointBatches(), (std::vector<std::pair<uint32_t, uint32_t>>({{0, 32}, {32, 32}, {64, 32}, {96, 32}})));
    EXPECT_EQ(Particles.m_uiVBOffset, 32u) << "128 points fill the buffer and the next batch starts over";
}

// The dangers in the host's score table become the other players' faces in the next frame.
TEST_F(Hud, TheDangersOfTheHostsScoreTableBecomeThePlayersFaces)
{
    Start();
    CNetwork& Network = m_Game.m_Network;
    Network.m_bNetGame = true;
    uint8_t aTable[SCORE_TABLE_SIZE] = {3};
    const float afDanger[3] = {0.1f, 0.6f, 0.95f};
    for(uint32_t i = 0; i < 3; i++)
    {
        Network.m_Players[i] = {i, true, false};
        WriteScoreRow(aTable + 4 + SCORE_ROW_SIZE * i, CScoreRow{i + 1, i, 100 * i, afDanger[i], false});
    }
    Network.m_nPlayers = 3;
    Network.ApplyScoreTable(aTable);
    Overlay();
    EXPECT_EQ(m_Engine.m_aSprites[SPR_HUD_FACE1].m_pImage, m_Engine.Face(0));
    EXPECT_EQ(m_Engine.m_aSprites[SPR_HUD_FACE2].m_pImage, m_Engine.Face(2));
    EXPECT_EQ(m_Engine.m_aSprites[SPR_HUD_FACE3].m_pImage, m_Engine.Face(3));
}
