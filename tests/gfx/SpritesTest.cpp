#include "EngineFixture.h"

#include "input/Input.h"

#include <set>

class Sprites : public CEngineFixture
{
protected:
    // The file of the picture a sprite shows, learnt by drawing it.
    std::string FileShown(ESprite Sprite, CImage* pImage)
    {
        m_Engine.m_aSprites[Sprite].m_pImage = pImage;
        m_Device.ClearRecords();
        m_Engine.DrawSprite(m_Engine.m_aSprites[Sprite]);
        return m_Device.m_vDraws.empty() ? "" : m_Device.m_vDraws[0].m_Texture;
    }
};

TEST_F(Sprites, TheCatalogueFillsSixtySevenSlotsFromFiftySixFilesAndPlacesTheSprites)
{
    Start();
    EXPECT_EQ(m_Device.m_vTextureFiles.size(), 67u);
    EXPECT_EQ(std::set<std::string>(m_Device.m_vTextureFiles.begin(), m_Device.m_vTextureFiles.end()).size(), 56u);
    EXPECT_EQ(m_Device.m_uiLiveTextures, 67u);
    EXPECT_TRUE(m_Errors.Errors().empty());

    const CSprite& Single = m_Engine.m_aSprites[SPR_MAIN_SINGLE];
    EXPECT_EQ(std::vector<uint32_t>({Single.m_nX, Single.m_nY, Single.m_nWidth, Single.m_nHeight}),
              std::vector<uint32_t>({268, 280, 244, 37}));
    const CSprite& Area = m_Engine.m_aSprites[SPR_LIST_AREA];
    EXPECT_EQ(std::vector<uint32_t>({Area.m_nX, Area.m_nY, Area.m_nWidth, Area.m_nHeight}),
              std::vector<uint32_t>({51, 70, 161, 288}));
    EXPECT_EQ(Area.m_pImage, nullptr);
    EXPECT_EQ(m_Engine.m_aSprites[SPR_HUD_FACE8].m_nX, 685u);

    EXPECT_EQ(FileShown(SPR_MAIN_QUIT, m_Engine.OverImage(SPR_MAIN_QUIT)), "data\\menus\\images\\Quit2.png");
    EXPECT_EQ(FileShown(SPR_HUD_NEXT, m_Engine.NormalImage(SPR_HUD_NEXT)), "data\\hud\\images\\blue.png");
    EXPECT_EQ(FileShown(SPR_HUD_NEXT, m_Engine.BallIcon(5)), "data\\hud\\images\\purple.png");
    EXPECT_EQ(FileShown(SPR_HUD_FACE3, m_Engine.NormalImage(SPR_HUD_FACE3)), "data\\hud\\images\\face1.png");
    EXPECT_EQ(FileShown(SPR_HUD_PROGRESS, m_Engine.Face(3)), "data\\hud\\images\\face4.png");
    EXPECT_EQ(FileShown(SPR_LIST_AREA, nullptr), "") << "a sprite without a picture draws nothing";
    EXPECT_NE(m_Engine.OverImage(SPR_LOBBY_START), m_Engine.OverImage(SPR_SINGLE_START)) << "each button its own";
}

TEST_F(Sprites, ASpriteIsAQuadOfItsPicturesFileSizeAtTheNearestDepth)
{
    m_Device.m_mapImageSizes["data\\menus\\images\\Options1.png"] = {100, 50};
    Start();
    m_Engine.DrawSprite(m_Engine.m_aSprites[SPR_MAIN_OPTIONS]);
    ASSERT_EQ(m_Device.m_vDraws.size(), 1u);
    const CDraw& Draw = m_Device.m_vDraws[0];
    EXPECT_EQ(Draw.m_Type, PT_TRIANGLELIST);
    EXPECT_EQ(Draw.m_uiFVF, 260u);
    EXPECT_EQ(Draw.m_uiStride, 24u);
    const auto vVertices = CRecordingRenderDevice::ScreenVertices(Draw);
    const float afExpected[6][4] = {{314, 440, 0, 1}, {314, 390, 0, 0}, {414, 390, 1, 0},
                                    {314, 440, 0, 1}, {414, 390, 1, 0}, {414, 440, 1, 1}};
    ASSERT_EQ(vVertices.size(), 6u);
    for(size_t i = 0; i < 6; i++)
    {
        EXPECT_EQ(vVertices[i].x, afExpected[i][0]);
        EXPECT_EQ(vVertices[i].y, afExpected[i][1]);
        EXPECT_EQ(vVertices[i].u, afExpected[i][2]);
        EXPECT_EQ(vVertices[i].v, afExpected[i][3]);
        EXPECT_EQ(vVertices[i].z, 0.0f);
        EXPECT_EQ(vVertices[i].rhw, 1.0f);
    }
    EXPECT_EQ(m_Device.m_vLog.back(), "SetTexture null") << "the next frame's world is drawn untextured";
    EXPECT_EQ(m_Device.m_uiLiveBuffers, 1u) << "the sprite's buffer lives only while it is drawn";
}

TEST_F(Sprites, PicturesThatDoNotLoadAreReportedAndTheGameGoesOn)
{
    m_Device.m_setUnreadable.insert("data\\menus\\images\\win.png");
    Start();
    EXPECT_EQ(m_Errors.Errors(),
              std::vector<std::string>({"ERROR: Failed to load Texture", "ERROR: Failed to get Image Information"}));
    m_Engine.DrawSprite(m_Engine.m_aSprites[SPR_WIN]);
    ASSERT_EQ(m_Device.m_vDraws.size(), 1u);
    for(const auto& Vertex : CRecordingRenderDevice::ScreenVertices(m_Device.m_vDraws[0]))
        EXPECT_EQ(Vertex.x, 0.0f) << "an unreadable picture is taken as empty";
    m_Device.m_bFailLocks = true;
    m_Engine.DrawSprite(m_Engine.m_aSprites[SPR_LOGO]);
    EXPECT_EQ(m_Errors.Errors().back(), "ERROR: Failed to Lock Vertex Buffer");
    EXPECT_EQ(m_Device.m_vDraws.size(), 1u);
}

TEST_F(Sprites, TheCursorStandsAtTheMouseReading)
{
    Start();
    g_fMouseX = 412.7f;
    g_fMouseY = 0.2f;
    m_Engine.DrawCursor();
    ASSERT_EQ(m_Device.m_vDraws.size(), 1u);
    EXPECT_EQ(CRecordingRenderDevice::ScreenVertices(m_Device.m_vDraws[0])[1].x, 412.0f);
    EXPECT_EQ(CRecordingRenderDevice::ScreenVertices(m_Device.m_vDraws[0])[1].y, 0.0f);
}

TEST_F(Sprites, TheBackgroundFillsTheScreenAtTheFarthestDepthAndALongNameIsCut)
{
    Start();
    m_Engine.DrawBackground();
    EXPECT_TRUE(m_Device.m_vDraws.empty()) << "no background loaded yet: the clear colour shows";
    m_Engine.LoadBackground("level1.png");
    m_Engine.DrawBackground();
    ASSERT_EQ(m_Device.m_vDraws.size(), 1u);
    EXPECT_EQ(m_Device.m_vDraws[0].m_Type, PT_TRIANGLESTRIP);
    EXPECT_EQ(m_Device.m_vDraws[0].m_Texture, "data\\hud\\images\\level1.png");
    const auto vVertices = CRecordingRenderDevice::ScreenVertices(m_Device.m_vDraws[0]);
    ASSERT_EQ(vVertices.size(), 4u);
    EXPECT_EQ(std::vector<float>({vVertices[1].x, vVertices[2].y, vVertices[3].x, vVertices[3].y, vVertices[3].z}),
              std::vector<float>({800, 600, 800, 600, 1}));

    m_Engine.LoadBackground("abcdefghijklmnopqrstuvwxyz0123456789");
    EXPECT_EQ(m_Device.m_vTextureFiles.back(), "data\\hud\\images\\abcdefghijklmnopqrstuvw");
    EXPECT_EQ(m_Device.m_vTextureFiles.back().size(), 39u);
}

TEST_F(Sprites, TextGoesInTheRectanglesAndFormatsOfItsFont)
{
    Start();
    DrawGameText("Score", 520, 14, 0xFFFFFF00, FONT_MEDIUM);
    DrawGameText("HCM", 10, 60, 0xFF0000FF, FONT_LARGE);
    DrawGameText("row", 55, 72, 0xFF000000, FONT_SMALL);
    DrawGameText("none", 0, 0, 0xFF000000, 3);
    ASSERT_EQ(m_Device.m_vTexts.size(), 3u);
    const auto& Medium = m_Device.m_vTexts[0];
    EXPECT_EQ(Medium.m_iFontHeight, 26);
    EXPECT_EQ(std::vector<int32_t>(
                  {Medium.m_Rect.m_iLeft, Medium.m_Rect.m_iTop, Medium.m_Rect.m_iRight, Medium.m_Rect.m_iBottom}),
              std::vector<int32_t>({520, 14, 800, 44}));
    EXPECT_EQ(Medium.m_uiFormat, 256u);
    const auto& Large = m_Device.m_vTexts[1];
    EXPECT_EQ(Large.m_Text, "H") << "one letter of the stack";
    EXPECT_EQ(Large.m_iFontHeight, 30);
    EXPECT_EQ(Large.m_uiFormat, 257u);
    EXPECT_EQ(Large.m_Rect.m_iRight, 42);
    EXPECT_EQ(Large.m_Rect.m_iBottom, 93);
    EXPECT_EQ(m_Device.m_vTexts[2].m_iFontHeight, 15);
    EXPECT_EQ(m_Device.m_vTexts[2].m_uiColour, 0xFF000000u);
}
