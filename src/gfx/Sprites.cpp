#include "gfx/GraphicsEngine.h"

#include "input/Input.h"

#include <cstdio>

namespace
{
constexpr float SCREEN_WIDTH = 800.0f;
constexpr float SCREEN_HEIGHT = 600.0f;
constexpr float NEAREST = 0.0f;  // sprites: whatever comes later stays behind them
constexpr float FARTHEST = 1.0f; // the background: shows only where nothing else was drawn
constexpr size_t BACKGROUND_PATH_CHARS = 39;
} // namespace

// Two triangles at the picture's own size, wound so that the device keeps them.
void CGraphicsEngine::DrawSprite(CSprite& Sprite)
{
    if(!Sprite.m_pImage || !m_pDevice)
        return;
    const float X = static_cast<float>(Sprite.m_nX);
    const float Y = static_cast<float>(Sprite.m_nY);
    const float W = static_cast<float>(Sprite.m_pImage->m_nWidth);
    const float H = static_cast<float>(Sprite.m_pImage->m_nHeight);
    const CScreenVertex aVertices[6] = {
        {X, Y + H, NEAREST, 1.0f, 0.0f, 1.0f}, {X, Y, NEAREST, 1.0f, 0.0f, 0.0f},
        {X + W, Y, NEAREST, 1.0f, 1.0f, 0.0f}, {X, Y + H, NEAREST, 1.0f, 0.0f, 1.0f},
        {X + W, Y, NEAREST, 1.0f, 1.0f, 0.0f}, {X + W, Y + H, NEAREST, 1.0f, 1.0f, 1.0f},
    };
    Sprite.m_pVB = CreateVertexBuffer(sizeof(aVertices), SCREEN_FVF);
    if(!FillVertexBuffer(Sprite.m_pVB.get(), aVertices, sizeof(aVertices), "ERROR: Failed to Lock Vertex Buffer"))
    {
        Sprite.m_pVB.reset();
        return;
    }
    m_pDevice->SetFVF(SCREEN_FVF);
    m_pDevice->SetTexture(0, Sprite.m_pImage->m_pTexture.get());
    m_pDevice->SetStreamSource(Sprite.m_pVB.get(), sizeof(CScreenVertex));
    m_pDevice->DrawPrimitive(PT_TRIANGLELIST, 0, 2);
    m_pDevice->SetTexture(0, nullptr); // the world of the next frame is drawn untextured
    Sprite.m_pVB.reset();
}

// Reading the mouse moves the cursor, so this is the menu frame's one reading.
void CGraphicsEngine::DrawCursor()
{
    CSprite& Cursor = m_aSprites[SPR_CURSOR];
    Cursor.m_nX = static_cast<uint32_t>(GetMouseX());
    Cursor.m_nY = static_cast<uint32_t>(GetMouseY());
    DrawSprite(Cursor);
}

// A name too long for the path is cut where the path ends, so a long name finds no picture rather than
// another one.
void CGraphicsEngine::LoadBackground(const char* pName)
{
    if(!m_pDevice)
        return;
    char szPath[BACKGROUND_PATH_CHARS + 1];
    std::snprintf(szPath, sizeof(szPath), "%s%s", BACKGROUND_FOLDER, pName);
    m_pBackgroundVB.reset();
    m_pBackgroundTexture.reset();
    const CScreenVertex aVertices[4] = {
        {0.0f, 0.0f, FARTHEST, 1.0f, 0.0f, 0.0f},
        {SCREEN_WIDTH, 0.0f, FARTHEST, 1.0f, 1.0f, 0.0f},
        {0.0f, SCREEN_HEIGHT, FARTHEST, 1.0f, 0.0f, 1.0f},
        {SCREEN_WIDTH, SCREEN_HEIGHT, FARTHEST, 1.0f, 1.0f, 1.0f},
    };
    m_pBackgroundVB = CreateVertexBuffer(sizeof(aVertices), SCREEN_FVF);
    if(m_pBackgroundVB && !FillVertexBuffer(m_pBackgroundVB.get(), aVertices, sizeof(aVertices)))
        m_pBackgroundVB.reset();
    m_pBackgroundTexture = m_pDevice->CreateTextureFromFile(szPath);
}

// Drawn after the world at the farthest depth, so it shows only where no world pixel stands. It leaves its
// picture bound.
void CGraphicsEngine::DrawBackground()
{
    if(!m_pBackgroundVB)
        return;
    m_pDevice->SetFVF(SCREEN_FVF);
    m_pDevice->SetStreamSource(m_pBackgroundVB.get(), sizeof(CScreenVertex));
    m_pDevice->SetTexture(0, m_pBackgroundTexture.get());
    m_pDevice->DrawPrimitive(PT_TRIANGLESTRIP, 0, 2);
}
