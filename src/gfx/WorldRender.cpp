#include "gfx/GraphicsEngine.h"

#include "platform/interfaces/ErrorBox.h"
#include "play/Ball.h"
#include "tracks/Level.h"

namespace
{
constexpr float BALL_SCALE = 1.38f; // the unit sphere grown to the size at which neighbours touch
constexpr float AIM_BALL_SCALE = 0.1f;
const CPoint3 ORIGIN(0.0f, 0.0f, 0.0f);

// The world's axes, each way from the origin: bright towards the positive end, dark towards the negative.
const CLineVertex AXES[12] = {
    {0, 0, 0, 0xFFFF0000}, {100, 0, 0, 0xFFFF0000}, {0, 0, 0, 0xFF640000}, {-100, 0, 0, 0xFF640000},
    {0, 0, 0, 0xFF00FF00}, {0, 100, 0, 0xFF00FF00}, {0, 0, 0, 0xFF006400}, {0, -100, 0, 0xFF006400},
    {0, 0, 0, 0xFF0000FF}, {0, 0, 100, 0xFF0000FF}, {0, 0, 0, 0xFF000064}, {0, 0, -100, 0xFF000064},
};
} // namespace

CMatrixData ScaleAndTranslate(float fScale, const CPoint3& p)
{
    return {fScale, 0, 0, 0, 0, fScale, 0, 0, 0, 0, fScale, 0, p.x(), p.y(), p.z(), 1};
}

// Track lines first, then shots, then the chains. Balls are not sorted: the depth buffer sorts them, and a
// powerup ball blends with whatever was drawn before it.
void CGraphicsEngine::RenderWorld()
{
    if(!m_pLevel)
        return;
    for(CTrack& Track : m_pLevel->m_vTracks)
        DrawLines(Track.m_Lines.m_pVertexBuffer.get(), Track.m_Lines.m_uiNumLines);
    for(const CBall* pShot : m_pLevel->m_lstShots)
    {
        if(pShot)
            DrawBall(*pShot);
    }
    for(const CTrack& Track : m_pLevel->m_vTracks)
    {
        for(const CBall* pBall : Track.m_lstBalls)
        {
            if(pBall)
                DrawBall(*pBall);
        }
    }
}

void CGraphicsEngine::DrawBall(const CBall& Ball)
{
    const CMaterial* pMaterial = GetBallMaterial(Ball.m_ucColour, Ball.m_bPowerup);
    if(pMaterial)
        DrawSphereAt(Ball.m_Position, BALL_SCALE, *pMaterial);
}

// The cross-hair: a small ball of the next shot's colour where the shot will start. It never pulses.
void CGraphicsEngine::RenderAimBall()
{
    const uint8_t ucColour = m_pLevel ? m_pLevel->m_ucShotColour : 0;
    if(ucColour < m_aMaterials.size())
        DrawSphereAt(m_vLookAt, AIM_BALL_SCALE, m_aMaterials[ucColour]);
}

void CGraphicsEngine::DrawSphereAt(const CPoint3& Position, float fScale, const CMaterial& Material)
{
    m_pDevice->SetTransform(TRANSFORM_WORLD, ScaleAndTranslate(fScale, Position));
    m_pDevice->SetMaterial(Material);
    if(m_pSphereMesh)
        m_pSphereMesh->DrawSubset(0);
}

// Lines carry their own colours, so they are drawn unlit.
void CGraphicsEngine::DrawLines(IVertexBuffer* pVertexBuffer, uint32_t uiNumLines)
{
    if(!pVertexBuffer)
        return;
    m_pDevice->SetRenderState(RS_LIGHTING, false);
    m_pDevice->SetTransform(TRANSFORM_WORLD, ScaleAndTranslate(1.0f, ORIGIN));
    m_pDevice->SetFVF(LINE_FVF);
    m_pDevice->SetStreamSource(pVertexBuffer, sizeof(CLineVertex));
    m_pDevice->DrawPrimitive(PT_LINELIST, 0, uiNumLines);
    m_pDevice->SetRenderState(RS_LIGHTING, true);
}

void CGraphicsEngine::CreateLineSet(const std::vector<CLineVertex>& vVertices)
{
    auto pSet = std::make_unique<CLineSegmentSet>();
    const uint32_t uiLength = static_cast<uint32_t>(vVertices.size() * sizeof(CLineVertex));
    pSet->m_pVertexBuffer = CreateVertexBuffer(uiLength, LINE_FVF);
    if(pSet->m_pVertexBuffer &&
       !FillVertexBuffer(pSet->m_pVertexBuffer.get(), vVertices.data(), uiLength, "Failed to lock Vertex Buffer"))
        pSet->m_pVertexBuffer.reset();
    pSet->m_uiNumLines = static_cast<uint32_t>(vVertices.size() / 2);
    if(!pSet->m_pVertexBuffer)
    {
        ShowError("ERROR: Couldn't Create Line Segment Set, NULL Pointer");
        return;
    }
    m_lstLineSets.push_back(std::move(pSet));
}

// The axes are built at start-up for finding one's way in a level, but no frame shows them.
void CGraphicsEngine::DrawLineSets()
{
    m_pDevice->SetRenderState(RS_LIGHTING, false);
    m_pDevice->SetTransform(TRANSFORM_WORLD, ScaleAndTranslate(1.0f, ORIGIN));
    m_pDevice->SetFVF(LINE_FVF);
    for(const auto& pSet : m_lstLineSets)
    {
        m_pDevice->SetStreamSource(pSet->m_pVertexBuffer.get(), sizeof(CLineVertex));
        m_pDevice->DrawPrimitive(PT_LINELIST, 0, pSet->m_uiNumLines);
    }
    m_pDevice->SetRenderState(RS_LIGHTING, true);
}

void CGraphicsEngine::SetupLineSets()
{
    CreateLineSet(std::vector<CLineVertex>(std::begin(AXES), std::end(AXES)));
}

void CGraphicsEngine::CreateCurveBuffer(CCurveLines& Lines)
{
    Lines.m_pVertexBuffer.reset();
    if(Lines.m_uiNumLines == 0 || Lines.m_vVertices.empty())
        return;
    const uint32_t uiLength = static_cast<uint32_t>(Lines.m_vVertices.size() * sizeof(CLineVertex));
    Lines.m_pVertexBuffer = CreateVertexBuffer(uiLength, LINE_FVF);
    if(Lines.m_pVertexBuffer && !FillVertexBuffer(Lines.m_pVertexBuffer.get(), Lines.m_vVertices.data(), uiLength))
        Lines.m_pVertexBuffer.reset();
}
