#include "platform/native/GlRenderDevice.h"

#include "TestSupport.h"
#include "math/FloatBits.h"
#include "platform/native/GlFunctions.h"
#include "platform/native/SdlWindow.h"

#include <SDL.h>
#include <SDL_image.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace
{
struct CScreenVertex
{
    float x, y, z, rhw, u, v;
};

struct CLineVertex
{
    float x, y, z;
    uint32_t m_uiColour;
};

// A screen vertex of its own colour and no picture.
struct CTintVertex
{
    float x, y, z, rhw;
    uint32_t m_uiColour;
};

struct CBallDraw
{
    CMatrixData m_World;
    CMaterial m_Material;
};

// Where the pixels unlike the background lie: left and top inclusive, right and bottom exclusive.
struct CBox
{
    int m_iLeft = 800, m_iTop = 600, m_iRight = 0, m_iBottom = 0, m_iCount = 0;
};

const CMatrixData IDENTITY = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

// The game's left-handed camera: a 45 degree field of view over the 4:3 buffer, depth 0.1 to 750.
CMatrixData PerspectiveFovLH()
{
    const float fY = 1.0f / std::tan(0.3926991f), fNear = 0.1f, fFar = 750.0f, fQ = fFar / (fFar - fNear);
    return {fY * 0.75f, 0, 0, 0, 0, fY, 0, 0, 0, 0, fQ, 1, 0, 0, -fNear * fQ, 0};
}

// Looking from (0, 0, -fDistance) at the origin with y up: x runs right, z into the screen.
CMatrixData LookAtLHAlongZ(float fDistance)
{
    return {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, fDistance, 1};
}

CMatrixData ScaleAndMove(float fScale, float x, float y, float z)
{
    return {fScale, 0, 0, 0, 0, fScale, 0, 0, 0, 0, fScale, 0, x, y, z, 1};
}

// Balls overlapping one another at different depths, in the game's colours and others: see-through, glowing,
// too bright for the light, stretched and turned.
const CBallDraw OVERLAPPING_BALLS[] = {
    {ScaleAndMove(1.0f, 0.0f, 0.0f, 0.0f), {{0.8f, 0, 0, 1}, {1, 0, 0, 1}, {0, 0, 0, 1}, {0, 0, 0, 1}, 8.0f}},
    {ScaleAndMove(0.8f, 0.9f, 0.3f, -0.5f), {{0, 0.7f, 0, 0.5f}, {0, 1, 0, 1}, {0, 0, 0, 1}, {0, 0, 0, 1}, 8.0f}},
    {ScaleAndMove(0.7f, -0.8f, -0.4f, 0.6f),
     {{0, 0, 0.8f, 1}, {0, 0, 0.5f, 1}, {0, 0, 0, 1}, {0.1f, 0.1f, 0.3f, 1}, 0}},
    {ScaleAndMove(0.6f, -1.2f, 0.9f, -0.3f), {{1, 1, 0, 1}, {1, 1, 0.5f, 1}, {0, 0, 0, 1}, {0.3f, 0.3f, 0, 1}, 8.0f}},
    {ScaleAndMove(0.9f, 0.2f, -0.9f, -1.0f), {{0.65f, 0, 0.65f, 0.4f}, {0.65f, 0, 0.65f, 1}, {0, 0, 0, 1}, {}, 8.0f}},
    {{0.9f, 0.52f, 0, 0, -0.3f, 0.52f, 0, 0, 0, 0, 0.7f, 0, 1.6f, -0.6f, 0.3f, 1},
     {{1, 0.5f, 0.25f, 1}, {1, 0.5f, 0.25f, 1}, {0, 0, 0, 1}, {0, 0, 0, 1}, 8.0f}},
};

// A picture file of the given RGBA pixels, rows top first.
void WritePng(const char* pPath, int iWidth, int iHeight, std::vector<uint32_t> vPixels)
{
    SDL_Surface* pSurface =
        SDL_CreateRGBSurfaceWithFormatFrom(vPixels.data(), iWidth, iHeight, 32, iWidth * 4, SDL_PIXELFORMAT_RGBA8888);
    ASSERT_EQ(IMG_SavePNG(pSurface, pPath), 0);
    SDL_FreeSurface(pSurface);
}

// An uncompressed 32-bit TGA of BGRA pixels, its rows stored bottom first as the format has them by default.
std::string Tga(uint8_t ucWidth, uint8_t ucHeight, const std::vector<uint32_t>& vBottomUpArgb)
{
    std::string File = {0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    File += {static_cast<char>(ucWidth), 0, static_cast<char>(ucHeight), 0, 32, 8};
    for(uint32_t uiArgb : vBottomUpArgb)
        File.append(reinterpret_cast<const char*>(&uiArgb), 4); // little-endian ARGB is B, G, R, A
    return File;
}

// The game's way of naming a file, with backslashes.
std::string GamePath(std::string Path)
{
    for(char& c : Path)
        c = c == '/' ? '\\' : c;
    return Path;
}
} // namespace

class GraphicsEngine : public ::testing::Test
{
protected:
    void SetUp() override
    {
        const char* pError = "";
        ASSERT_TRUE(m_Window.Create("Trelvane", &pError)) << pError;
        ASSERT_TRUE(m_Device.Init(m_Window));
        // The game's blending: by the alpha of the picture times that of the vertex or material.
        m_Device.SetRenderState(RS_ALPHABLENDENABLE, 1);
        m_Device.SetRenderState(RS_SRCBLEND, BLEND_SRCALPHA);
        m_Device.SetRenderState(RS_DESTBLEND, BLEND_INVSRCALPHA);
        m_Device.SetTextureStageState(0, TSS_ALPHAOP, TOP_MODULATE);
        m_Device.SetTextureStageState(0, TSS_COLORARG2, TA_DIFFUSE);
    }

    template <class T> void Draw(EPrimitive Type, uint32_t uiFVF, const std::vector<T>& vVertices, uint32_t uiCount)
    {
        std::unique_ptr<IVertexBuffer> pBuffer = m_Device.CreateVertexBuffer(sizeof(T) * vVertices.size(), uiFVF);
        std::memcpy(pBuffer->Lock(), vVertices.data(), sizeof(T) * vVertices.size());
        m_Device.SetFVF(uiFVF);
        m_Device.SetStreamSource(pBuffer.get(), sizeof(T));
        m_Device.DrawPrimitive(Type, 0, uiCount);
    }

    // A sprite's two triangles, as the game lays them out.
    void DrawQuad(float x, float y, float w, float h, float z)
    {
        Draw<CScreenVertex>(PT_TRIANGLELIST, SCREEN_FVF,
                            {{x, y + h, z, 1, 0, 1},
                             {x, y, z, 1, 0, 0},
                             {x + w, y, z, 1, 1, 0},
                             {x, y + h, z, 1, 0, 1},
                             {x + w, y, z, 1, 1, 0},
                             {x + w, y + h, z, 1, 1, 1}},
                            2);
    }

    void Read() { ASSERT_TRUE(m_Device.ReadPixels(m_vPixels)); }

    // Lit as the game lights its balls, by one white light along (1, 1, 1) and some ambient light, and seen from
    // 5 in front of the origin.
    void LightAsTheGame()
    {
        m_Device.SetRenderState(RS_AMBIENT, 0xff404040);
        m_Device.SetRenderState(RS_SPECULARENABLE, 1);
        m_Device.SetRenderState(RS_NORMALIZENORMALS, 1);
        CLight Light;
        Light.m_Diffuse = {0.8f, 0.8f, 0.8f, 1.0f};
        Light.m_Specular = {0.3f, 0.3f, 0.3f, 1.0f};
        Light.m_afDirection = {0.57735f, 0.57735f, 0.57735f};
        m_Device.SetLight(2, Light);
        m_Device.LightEnable(2, true);
        m_Device.SetTransform(TRANSFORM_PROJECTION, PerspectiveFovLH());
        m_Device.SetTransform(TRANSFORM_VIEW, LookAtLHAlongZ(5.0f));
    }

    void DrawBall(IMesh& Sphere, const CBallDraw& Ball)
    {
        m_Device.SetTransform(TRANSFORM_WORLD, Ball.m_World);
        m_Device.SetMaterial(Ball.m_Material);
        Sphere.DrawSubset(0);
    }

    // Red, green and blue of a pixel of the last read, as 0xRRGGBB.
    uint32_t Pixel(int x, int y) const
    {
        const uint8_t* p = &m_vPixels[(static_cast<size_t>(y) * 800 + x) * 4];
        return static_cast<uint32_t>(p[0] << 16 | p[1] << 8 | p[2]);
    }

    CBox Unlike(uint32_t uiBackground, const CRect& Area = {0, 0, 800, 600}) const
    {
        CBox Box;
        for(int y = Area.m_iTop; y < Area.m_iBottom; y++)
        {
            for(int x = Area.m_iLeft; x < Area.m_iRight; x++)
            {
                if(Pixel(x, y) == (uiBackground & 0xffffff))
                    continue;
                Box = {std::min(Box.m_iLeft, x), std::min(Box.m_iTop, y), std::max(Box.m_iRight, x + 1),
                       std::max(Box.m_iBottom, y + 1), Box.m_iCount + 1};
            }
        }
        return Box;
    }

    CSdlWindow m_Window;
    CGlRenderDevice m_Device;
    std::vector<uint8_t> m_vPixels;
};

TEST_F(GraphicsEngine, GlDeviceClearsTheWholeBackBuffer)
{
    m_Device.Clear(0xff336699, 1.0f);
    Read();
    ASSERT_EQ(m_vPixels.size(), 800u * 600u * 4u);
    EXPECT_EQ(Unlike(0x336699).m_iCount, 0);
    EXPECT_EQ(m_vPixels[3], 0xff);
}

TEST_F(GraphicsEngine, GlDeviceDrawsAPictureFileAtExactlyItsPixels)
{
    CTempFile Picture("", "sprite.png"), Broken("not a picture", "broken.png");
    CTempFile Targa(Tga(2, 2, {0xff0000ff, 0xffffffff, 0xffff0000, 0xff00ff00}), "flare.tga");
    // Top row red, green, blue, white; bottom row black, yellow, see-through, grey.
    WritePng(Picture.Path(), 4, 2,
             {0xff0000ff, 0x00ff00ff, 0x0000ffff, 0xffffffff, 0x000000ff, 0xffff00ff, 0x12345600, 0x808080ff});
    uint32_t uiWidth = 0, uiHeight = 0;
    ASSERT_TRUE(m_Device.GetImageInfoFromFile(GamePath(Picture.Path()).c_str(), uiWidth, uiHeight));
    EXPECT_EQ(uiWidth, 4u);
    EXPECT_EQ(uiHeight, 2u);
    for(const char* pBad : {Broken.Path(), "data\\no such picture.png"})
    {
        EXPECT_FALSE(m_Device.GetImageInfoFromFile(pBad, uiWidth, uiHeight)) << pBad;
        EXPECT_EQ(m_Device.CreateTextureFromFile(pBad), nullptr) << pBad;
    }

    std::unique_ptr<ITexture> pTexture = m_Device.CreateTextureFromFile(GamePath(Picture.Path()).c_str());
    ASSERT_NE(pTexture, nullptr);
    m_Device.Clear(0xff6070a0, 1.0f);
    m_Device.SetTexture(0, pTexture.get());
    DrawQuad(100, 50, 40, 20, 0.0f); // each texel ten pixels square
    std::unique_ptr<ITexture> pTarga = m_Device.CreateTextureFromFile(Targa.Path());
    ASSERT_NE(pTarga, nullptr);
    m_Device.SetTexture(0, pTarga.get());
    DrawQuad(300, 100, 20, 20, 0.0f);
    m_Device.SetTexture(0, nullptr);
    DrawQuad(300, 300, 5, 5, 0.0f);
    Read();
    EXPECT_EQ(Pixel(305, 105), 0xff0000u);
    EXPECT_EQ(Pixel(315, 105), 0x00ff00u);
    EXPECT_EQ(Pixel(305, 115), 0x0000ffu);
    EXPECT_EQ(Pixel(315, 115), 0xffffffu);
    const uint32_t auiTexels[2][4] = {{0xff0000, 0x00ff00, 0x0000ff, 0xffffff},
                                      {0x000000, 0xffff00, 0x6070a0, 0x808080}};
    for(int iRow = 0; iRow < 2; iRow++)
    {
        for(int iColumn = 0; iColumn < 4; iColumn++)
        {
            for(auto [dx, dy] : {std::pair{0, 0}, {9, 9}})
                EXPECT_EQ(Pixel(100 + 10 * iColumn + dx, 50 + 10 * iRow + dy), auiTexels[iRow][iColumn])
                    << iColumn << "," << iRow;
        }
    }
    const CBox Sprite = Unlike(0x6070a0, {0, 0, 200, 600});
    EXPECT_EQ(Sprite.m_iLeft, 100);
    EXPECT_EQ(Sprite.m_iTop, 50);
    EXPECT_EQ(Sprite.m_iRight, 140);
    EXPECT_EQ(Sprite.m_iBottom, 70);
    const CBox Untextured = Unlike(0x6070a0, {200, 200, 800, 600});
    EXPECT_EQ(Pixel(300, 300), 0xffffffu);
    EXPECT_EQ(Untextured.m_iCount, 25);
}

TEST_F(GraphicsEngine, GlDeviceDrawsALitSphereInItsMaterialColourInFrontOfTheFarBackground)
{
    LightAsTheGame();
    std::unique_ptr<IMesh> pSphere = m_Device.CreateSphere(1.0f, 10, 10);
    ASSERT_NE(pSphere, nullptr);

    m_Device.Clear(0xff006478, 1.0f);
    m_Device.SetMaterial({{0.8f, 0, 0, 1}, {1, 0, 0, 1}, {0, 0, 0, 1}, {0, 0, 0, 1}, 8.0f});
    m_Device.SetTransform(TRANSFORM_WORLD, IDENTITY);
    pSphere->DrawSubset(0);
    // A small green ball to the right: in a left-handed world +x is on the right of the screen.
    m_Device.SetMaterial({{0, 0.7f, 0, 1}, {0, 1, 0, 1}, {0, 0, 0, 1}, {0, 0, 0, 1}, 8.0f});
    m_Device.SetTransform(TRANSFORM_WORLD, ScaleAndMove(0.5f, 2.0f, 0.0f, 0.0f));
    pSphere->DrawSubset(0);
    Draw<CScreenVertex>(PT_TRIANGLESTRIP, SCREEN_FVF,
                        {{0, 0, 1, 1, 0, 0}, {800, 0, 1, 1, 1, 0}, {0, 600, 1, 1, 0, 1}, {800, 600, 1, 1, 1, 1}}, 2);
    Read();

    // Facing the eye the red ball takes the ambient light, 0.25, and the light's 0.64 at 55 degrees.
    const uint32_t uiCentre = Pixel(400, 300);
    EXPECT_NEAR(static_cast<int>(uiCentre >> 16), 158, 3);
    EXPECT_EQ(uiCentre & 0xffff, 0u);
    EXPECT_EQ(Pixel(400, 300 - 130) & 0xffff, 0u); // within the ball's outline, about 148 pixels round
    EXPECT_EQ(Pixel(400, 300 - 160), 0xffffffu);
    EXPECT_EQ(Pixel(10, 10), 0xffffffu);
    const uint32_t uiGreen = Pixel(690, 300);
    EXPECT_GT((uiGreen >> 8) & 0xff, 100u);
    EXPECT_EQ(uiGreen & 0xff00ff, 0u);
    EXPECT_EQ(Pixel(110, 300), 0xffffffu);
}

// Balls in a row wait to be drawn together, lit on the CPU; with a picture set the device draws each at once,
// lit by GL. A plain white picture changes nothing in the colours under the game's texture stage, and under one
// that shows the picture both are white, so each time the two pictures must match.
TEST_F(GraphicsEngine, GlDeviceDrawsBallsInARowAsItDrawsThemOneByOne)
{
    CTempFile Picture("", "white.png");
    WritePng(Picture.Path(), 1, 1, {0xffffffff});
    std::unique_ptr<ITexture> pWhite = m_Device.CreateTextureFromFile(Picture.Path());
    std::unique_ptr<IMesh> pSphere = m_Device.CreateSphere(1.0f, 10, 10);
    ASSERT_NE(pSphere, nullptr);
    LightAsTheGame();
    CLight Blue;
    Blue.m_Diffuse = {0.2f, 0.3f, 0.6f, 1.0f};
    Blue.m_Ambient = {0.1f, 0.05f, 0.0f, 1.0f};
    Blue.m_afDirection = {-0.8f, 0.2f, 0.5f};
    m_Device.SetLight(5, Blue);
    m_Device.LightEnable(5, true);
    auto DrawTheBalls = [&](ITexture* pTexture) {
        m_Device.Clear(0xff006478, 1.0f);
        m_Device.SetRenderState(RS_AMBIENT, 0xff404040);
        m_Device.SetTexture(0, pTexture);
        for(size_t i = 0; i < std::size(OVERLAPPING_BALLS); i++)
        {
            if(i == 3) // the balls before are lit as it was before
                m_Device.SetRenderState(RS_AMBIENT, 0xff203050);
            DrawBall(*pSphere, OVERLAPPING_BALLS[i]);
        }
        Read();
    };

    for(uint32_t uiColourOp : {TOP_MODULATE, TOP_SELECTARG1})
    {
        m_Device.SetTextureStageState(0, TSS_COLOROP, uiColourOp);
        DrawTheBalls(pWhite.get());
        const std::vector<uint8_t> vOneByOne = m_vPixels;
        DrawTheBalls(nullptr);
        EXPECT_GT(Unlike(0x006478).m_iCount, 30000);
        int iUnlike = 0;
        for(size_t i = 0; i < m_vPixels.size(); i++)
            iUnlike += std::abs(m_vPixels[i] - vOneByOne[i]) > 2;
        EXPECT_EQ(iUnlike, 0) << uiColourOp;
    }
}

// What the batch does not light as GL does, GL draws: a highlight, a picture read at its corner, no lighting.
TEST_F(GraphicsEngine, GlDeviceLeavesToGlTheBallsTheBatchCannotLight)
{
    CTempFile Picture("", "green.png");
    WritePng(Picture.Path(), 1, 1, {0x00ff00ff});
    std::unique_ptr<ITexture> pGreen = m_Device.CreateTextureFromFile(Picture.Path());
    std::unique_ptr<IMesh> pSphere = m_Device.CreateSphere(1.0f, 10, 10);
    LightAsTheGame();
    m_Device.Clear(0xff000000, 1.0f);
    CBallDraw Shiny = {ScaleAndMove(0.8f, -1.8f, 0.0f, 0.0f), OVERLAPPING_BALLS[0].m_Material};
    Shiny.m_Material.m_Specular = {1.0f, 1.0f, 1.0f, 1.0f};
    DrawBall(*pSphere, Shiny);
    m_Device.SetTexture(0, pGreen.get());
    DrawBall(*pSphere, {ScaleAndMove(0.8f, 0.0f, 0.0f, 0.0f), OVERLAPPING_BALLS[3].m_Material});
    m_Device.SetTexture(0, nullptr);
    m_Device.SetRenderState(RS_LIGHTING, 0);
    DrawBall(*pSphere, {ScaleAndMove(0.8f, 1.8f, 0.0f, 0.0f), OVERLAPPING_BALLS[0].m_Material});
    Read();
    EXPECT_GT((Pixel(139, 300) >> 8) & 0xff, 10u); // the red's green comes from the highlight alone
    EXPECT_EQ(Pixel(400, 300) >> 16, 0u);          // yellow through green
    EXPECT_GT((Pixel(400, 300) >> 8) & 0xff, 100u);
    EXPECT_EQ(Pixel(661, 300), 0xffffffu);
}

TEST_F(GraphicsEngine, GlDeviceDrawsWaitingBallsBeforeTheQuadsAndTextDrawnAfterThem)
{
    std::unique_ptr<IMesh> pSphere = m_Device.CreateSphere(1.0f, 10, 10);
    std::unique_ptr<IFont> pFont = m_Device.CreateFont(26, 400, "Tahoma");
    ASSERT_NE(pFont, nullptr);
    LightAsTheGame();
    m_Device.Clear(0xff000000, 1.0f);
    const CBallDraw& Red = OVERLAPPING_BALLS[0];
    DrawBall(*pSphere, Red);
    // Half-transparent white over the left half of the screen, nearer than anything: had it gone before the
    // ball, it would hide the ball and only lighten the black.
    const uint32_t uiWhite = 0x80ffffff;
    Draw<CTintVertex>(
        PT_TRIANGLESTRIP, FVF_XYZRHW | FVF_DIFFUSE,
        {{0, 0, 0, 1, uiWhite}, {400, 0, 0, 1, uiWhite}, {0, 600, 0, 1, uiWhite}, {400, 600, 0, 1, uiWhite}}, 2);
    // Black text over a second red ball on the right, which would cover the text were it drawn later.
    DrawBall(*pSphere, {ScaleAndMove(0.8f, 1.8f, 0.0f, 0.0f), Red.m_Material});
    const CRect TextBox = {600, 285, 720, 320};
    pFont->DrawText("Marbles", -1, TextBox, DT_NOCLIP, 0xff000000);
    Read();

    // Half white over the lit red, which is over 150 of red; over the black it is grey.
    EXPECT_GT(Pixel(380, 300) >> 16, 0xc0u);
    EXPECT_EQ(Pixel(380, 300) & 0xffff, 0x8080u);
    EXPECT_EQ(Pixel(100, 300), 0x808080u);
    // Within the second ball, which is red everywhere, black letters.
    const int iRed = Unlike(0x000000, TextBox).m_iCount;
    EXPECT_GT(iRed, 2000);
    EXPECT_GT((TextBox.m_iRight - TextBox.m_iLeft) * (TextBox.m_iBottom - TextBox.m_iTop) - iRed, 50);
}

TEST_F(GraphicsEngine, GlDeviceBlendsHalfTransparentLinesOverTheClearColour)
{
    m_Device.SetRenderState(RS_LIGHTING, 0);
    m_Device.Clear(0xffff0000, 1.0f);
    Draw<CLineVertex>(PT_LINELIST, LINE_FVF, {{-0.5f, 0.2f, 0.5f, 0x7f00ffff}, {0.5f, 0.2f, 0.5f, 0x7f00ffff}}, 1);
    Read();
    // The line lies on row 240's pixel centres, which the game puts on whole coordinates.
    EXPECT_EQ(Pixel(400, 240), 0x807f7fu);
    const CBox Line = Unlike(0xff0000);
    EXPECT_EQ(Line.m_iTop, 240);
    EXPECT_EQ(Line.m_iBottom, 241);
    EXPECT_NEAR(Line.m_iLeft, 200, 1);
    EXPECT_NEAR(Line.m_iRight, 600, 1);
}

TEST_F(GraphicsEngine, GlDeviceDrawsTextInItsCellOverEverythingAndLeavesTheStatesAlone)
{
    CTempFile Picture("", "blue.png");
    WritePng(Picture.Path(), 1, 1, {0x3080c0ff});
    std::unique_ptr<ITexture> pTexture = m_Device.CreateTextureFromFile(Picture.Path());
    std::unique_ptr<IFont> pFont = m_Device.CreateFont(26, 400, "Tahoma");
    ASSERT_NE(pFont, nullptr);
    m_Device.Clear(0xffffffff, 1.0f);
    m_Device.SetTexture(0, pTexture.get());
    DrawQuad(0, 0, 800, 100, 0.0f); // nearest of all, yet the text comes out on top
    pFont->DrawText("Marbles", -1, {100, 20, 800, 50}, DT_NOCLIP, 0xff000000);
    pFont->DrawText("Wide", 1, {400, 200, 440, 233}, DT_CENTER | DT_NOCLIP, 0xff000000);
    pFont->DrawText("Clipped", -1, {500, 400, 520, 410}, 0, 0xff000000);
    Read();
    const CBox Text = Unlike(0x3080c0, {0, 0, 800, 100});
    EXPECT_GE(Text.m_iLeft, 100);
    EXPECT_GE(Text.m_iTop, 20);
    EXPECT_LE(Text.m_iBottom, 46);
    EXPECT_GT(Text.m_iCount, 200);
    // Narrowed to the width the screens were laid out for: a sixth narrower than the face draws it.
    EXPECT_GT(Text.m_iRight - Text.m_iLeft, 60);
    EXPECT_LT(Text.m_iRight - Text.m_iLeft, 80);
    const CBox Letter = Unlike(0xffffff, {300, 100, 500, 600});
    EXPECT_NEAR((Letter.m_iLeft + Letter.m_iRight) / 2, 420, 2);
    EXPECT_LT(Letter.m_iRight - Letter.m_iLeft, 30);
    EXPECT_GE(Letter.m_iTop, 200);
    const CBox Clipped = Unlike(0xffffff, {480, 300, 800, 600});
    EXPECT_GT(Clipped.m_iCount, 0);
    EXPECT_GE(Clipped.m_iLeft, 500);
    EXPECT_LE(Clipped.m_iRight, 520);
    EXPECT_GE(Clipped.m_iTop, 400);
    EXPECT_LE(Clipped.m_iBottom, 410);

    // The text wrote no depth and left the picture bound: a far quad covers it in the picture's colour.
    DrawQuad(300, 150, 200, 100, 1.0f);
    Read();
    EXPECT_EQ(Unlike(0x3080c0, {300, 150, 500, 250}).m_iCount, 0);
}

TEST_F(GraphicsEngine, GlDeviceDrawsPointSpritesAtTheirDistancesSize)
{
    CTempFile Picture("", "flare.png");
    WritePng(Picture.Path(), 2, 2, {0xff0000ff, 0x00ff00ff, 0x0000ffff, 0xffffffff});
    std::unique_ptr<ITexture> pFlare = m_Device.CreateTextureFromFile(Picture.Path());
    m_Device.Clear(0xff000000, 1.0f);
    m_Device.SetTransform(TRANSFORM_PROJECTION, PerspectiveFovLH());
    m_Device.SetTexture(0, pFlare.get());
    m_Device.SetRenderState(RS_LIGHTING, 0);
    m_Device.SetRenderState(RS_SRCBLEND, BLEND_ONE);
    m_Device.SetRenderState(RS_DESTBLEND, BLEND_ONE);
    m_Device.SetRenderState(RS_POINTSPRITEENABLE, 1);
    m_Device.SetRenderState(RS_POINTSIZE, FloatToBits(8.0f));
    Draw<CLineVertex>(PT_POINTLIST, LINE_FVF, {{-3.0f, 0.0f, 10.0f, 0xffffffff}}, 1);
    m_Device.SetRenderState(RS_POINTSCALEENABLE, 1);
    m_Device.SetRenderState(RS_POINTSIZE, FloatToBits(0.2f));
    m_Device.SetRenderState(RS_POINTSIZE_MIN, FloatToBits(0.0f));
    m_Device.SetRenderState(RS_POINTSCALE_A, FloatToBits(0.0f));
    m_Device.SetRenderState(RS_POINTSCALE_C, FloatToBits(1.0f));
    // 600 x 0.2 / 10 pixels at distance 10; at distance 1 it would be 120, but no point outgrows 64. Off the
    // middle of the view the distance is more than the depth: 20 pixels at (2.5, 1.8, 5), not 24.
    Draw<CLineVertex>(PT_POINTLIST, LINE_FVF,
                      {{0.0f, 0.0f, 10.0f, 0xffffffff}, {0.3f, 0.0f, 1.0f, 0xffffffff}, {2.5f, 1.8f, 5.0f, 0xffffffff}},
                      3);
    DrawQuad(20, 500, 20, 20, 0.0f); // point sprites still on: only points take point coordinates
    Read();
    EXPECT_EQ(Pixel(25, 505), 0xff0000u);
    EXPECT_EQ(Pixel(35, 515), 0xffffffu);
    const int aiExpected[4] = {8, 12, 64, 20};
    const int aiX[4] = {183, 400, 617, 762}, aiY[4] = {300, 300, 300, 39};
    for(int i = 0; i < 4; i++)
    {
        const CBox Sprite = Unlike(0x000000, {aiX[i] - 50, 0, std::min(aiX[i] + 50, 800), 600});
        EXPECT_NEAR(Sprite.m_iRight - Sprite.m_iLeft, aiExpected[i], 1) << i;
        EXPECT_NEAR(Sprite.m_iBottom - Sprite.m_iTop, aiExpected[i], 1) << i;
        EXPECT_NEAR((Sprite.m_iLeft + Sprite.m_iRight) / 2, aiX[i], 1) << i;
        EXPECT_NEAR((Sprite.m_iTop + Sprite.m_iBottom) / 2, aiY[i], 1) << i;
        // The picture spreads over the square, top row at the top.
        const int iQuarter = aiExpected[i] / 4;
        EXPECT_EQ(Pixel(aiX[i] - iQuarter, aiY[i] - iQuarter), 0xff0000u) << i;
        EXPECT_EQ(Pixel(aiX[i] + iQuarter, aiY[i] - iQuarter), 0x00ff00u) << i;
        EXPECT_EQ(Pixel(aiX[i] - iQuarter, aiY[i] + iQuarter), 0x0000ffu) << i;
        EXPECT_EQ(Pixel(aiX[i] + iQuarter, aiY[i] + iQuarter), 0xffffffu) << i;
    }
}

TEST_F(GraphicsEngine, GlDeviceSkipsDrawsPastTheEndOfTheirBuffer)
{
    m_Device.Clear(0xff000000, 1.0f);
    std::unique_ptr<IVertexBuffer> pBuffer = m_Device.CreateVertexBuffer(3 * sizeof(CScreenVertex), SCREEN_FVF);
    const CScreenVertex aTriangle[3] = {{0, 600, 0, 1, 0, 0}, {0, 0, 0, 1, 0, 0}, {800, 0, 0, 1, 0, 0}};
    std::memcpy(pBuffer->Lock(), aTriangle, sizeof(aTriangle));
    m_Device.SetFVF(SCREEN_FVF);
    // Two triangles of three vertices, one from the second vertex, one with a stride that runs past the end.
    m_Device.SetStreamSource(pBuffer.get(), sizeof(CScreenVertex));
    m_Device.DrawPrimitive(PT_TRIANGLELIST, 0, 2);
    m_Device.DrawPrimitive(PT_TRIANGLELIST, 1, 1);
    m_Device.SetStreamSource(pBuffer.get(), sizeof(CScreenVertex) + 4);
    m_Device.DrawPrimitive(PT_TRIANGLELIST, 0, 1);
    Read();
    EXPECT_EQ(Unlike(0x000000).m_iCount, 0);
    // The buffer set as the stream outlives its owner, as the device keeps what is set on it.
    m_Device.SetStreamSource(pBuffer.get(), sizeof(CScreenVertex));
    pBuffer.reset();
    m_Device.DrawPrimitive(PT_TRIANGLELIST, 0, 1);
    Read();
    EXPECT_EQ(Pixel(10, 10), 0xffffffu);
    EXPECT_EQ(Pixel(790, 590), 0x000000u);
}

// Run with a 1280x720 virtual screen: the 800x600 picture becomes 960x720 with bars of 160 pixels each side.
TEST_F(GraphicsEngine, GlDevicePresentsTheBackBufferLetterboxedInTheWindow)
{
    ASSERT_STREQ(SDL_GetCurrentVideoDriver(), "x11") << "needs an X display; a virtual one will do";
    // With no window manager on the virtual screen nobody makes the window full screen; do what one would.
    ASSERT_EQ(
        RunCommand("xdotool search --name '^Trelvane$' windowmove --sync 0 0 windowsize --sync 1280 720").m_iExitCode,
        0);
    while(m_Window.HandleOneEvent())
    {
    }
    int iWidth = 0, iHeight = 0;
    m_Window.GetDrawableSize(iWidth, iHeight);
    ASSERT_EQ(iWidth, 1280);
    ASSERT_EQ(iHeight, 720);
    m_Device.Clear(0xff00ff00, 1.0f);
    m_Device.SetTexture(0, nullptr);
    DrawQuad(0, 0, 400, 300, 0.0f); // the top left quarter white
    // The driver takes the window's new size at a swap, so the first frame after the resize is lost to it.
    m_Device.Present();
    m_Device.Present();

    // The window's own buffer still holds what was presented: the software driver copies it out on a swap.
    CGlFunctions Gl;
    ASSERT_TRUE(Gl.Load());
    Gl.m_pfnBindFramebuffer(GL_FRAMEBUFFER, 0);
    glReadBuffer(GL_BACK);
    std::vector<uint8_t> vScreen(1280 * 720 * 4);
    glReadPixels(0, 0, 1280, 720, GL_RGBA, GL_UNSIGNED_BYTE, vScreen.data());
    // Red, green and blue of a window pixel counted from the top left.
    auto At = [&vScreen](int x, int y) {
        const uint8_t* p = &vScreen[(static_cast<size_t>(719 - y) * 1280 + x) * 4];
        return static_cast<uint32_t>(p[0] << 16 | p[1] << 8 | p[2]);
    };
    for(int x : {0, 159, 1120, 1279})
        EXPECT_EQ(At(x, 360), 0x000000u) << x;
    for(int x : {160, 640, 1119})
        EXPECT_EQ(At(x, 600), 0x00ff00u) << x;
    EXPECT_EQ(At(170, 10), 0xffffffu);
    EXPECT_EQ(At(1110, 10), 0x00ff00u);
    EXPECT_EQ(At(170, 710), 0x00ff00u);
}
