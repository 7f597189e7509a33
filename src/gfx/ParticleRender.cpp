#include "gfx/ParticleSystem.h"

#include "math/FloatBits.h"
#include "tracks/CurveLines.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr char FLARE_FILE[] = "data\\hud\\images\\flare.tga";
const CMatrixData IDENTITY = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
constexpr float POINT_SIZE_MIN = 0.0f;
constexpr float POINT_SCALE_A = 0.0f;
constexpr float POINT_SCALE_B = 0.0f;
constexpr float POINT_SCALE_C = 1.0f;

uint32_t ColourChannel(float fValue, int iShift)
{
    return static_cast<uint32_t>(std::lround(std::clamp(fValue, 0.0f, 1.0f) * 255.0f)) << iShift;
}

CLineVertex ToVertex(const CParticle& Particle)
{
    const CColourF& c = Particle.m_Colour;
    return {Particle.m_vPosition.x(), Particle.m_vPosition.y(), Particle.m_vPosition.z(),
            ColourChannel(c.m_fA, 24) | ColourChannel(c.m_fR, 16) | ColourChannel(c.m_fG, 8) |
                ColourChannel(c.m_fB, 0)};
}

// Where the batch at the system's offset goes; null when the buffer can't be had or has no room for a whole
// batch there, and then nothing more is written this frame.
CLineVertex* LockBatch(CParticleSystemBase& System)
{
    const size_t uEnd = (static_cast<size_t>(System.m_uiVBOffset) + System.m_uiBatchSize) * sizeof(CLineVertex);
    if(System.m_uiBatchSize == 0 || uEnd > System.m_pVB->GetLength())
        return nullptr;
    void* pBuffer = System.m_pVB->Lock();
    return pBuffer ? static_cast<CLineVertex*>(pBuffer) + System.m_uiVBOffset : nullptr;
}

// A full batch goes to the card, and the next one is written behind it, or at the start once the buffer is
// used up.
CLineVertex* FlushFullBatch(CParticleSystemBase& System)
{
    System.m_pVB->Unlock();
    System.m_pDevice->DrawPrimitive(PT_POINTLIST, System.m_uiVBOffset, System.m_uiBatchSize);
    System.m_uiVBOffset += System.m_uiBatchSize;
    if(System.m_uiVBOffset >= System.m_uiVBSize)
        System.m_uiVBOffset = 0;
    return LockBatch(System);
}

void WriteBatches(CParticleSystemBase& System)
{
    CLineVertex* pBatch = LockBatch(System);
    uint32_t uiCount = 0;
    for(const CParticle& Particle : System.m_lstParticles)
    {
        if(!pBatch)
            return;
        if(!Particle.m_bAlive)
            continue;
        pBatch[uiCount++] = ToVertex(Particle);
        if(uiCount == System.m_uiBatchSize)
        {
            pBatch = FlushFullBatch(System);
            uiCount = 0;
        }
    }
    if(!pBatch)
        return;
    System.m_pVB->Unlock();
    if(uiCount != 0)
        System.m_pDevice->DrawPrimitive(PT_POINTLIST, System.m_uiVBOffset, uiCount);
}
} // namespace

bool CParticleSystemBase::Init(IRenderDevice* pDevice, const char* pFileName)
{
    m_pDevice = pDevice;
    if(!m_pDevice)
        return false;
    m_pVB = m_pDevice->CreateVertexBuffer(m_uiVBSize * sizeof(CLineVertex), LINE_FVF);
    if(!m_pVB)
        return false;
    m_pTexture = m_pDevice->CreateTextureFromFile(pFileName);
    return m_pTexture != nullptr;
}

void CParticleSystemBase::PreRender()
{
    m_pDevice->SetRenderState(RS_LIGHTING, false);
    m_pDevice->SetRenderState(RS_POINTSPRITEENABLE, true);
    m_pDevice->SetRenderState(RS_POINTSCALEENABLE, true);
    m_pDevice->SetRenderState(RS_POINTSIZE, FloatToBits(m_fSize));
    m_pDevice->SetRenderState(RS_POINTSIZE_MIN, FloatToBits(POINT_SIZE_MIN));
    m_pDevice->SetRenderState(RS_POINTSCALE_A, FloatToBits(POINT_SCALE_A));
    m_pDevice->SetRenderState(RS_POINTSCALE_B, FloatToBits(POINT_SCALE_B));
    m_pDevice->SetRenderState(RS_POINTSCALE_C, FloatToBits(POINT_SCALE_C));
    // A particle is as opaque as its picture.
    m_pDevice->SetTextureStageState(0, TSS_ALPHAARG1, TA_TEXTURE);
    m_pDevice->SetTextureStageState(0, TSS_ALPHAOP, TOP_SELECTARG1);
}

// Everything drawn after a burst takes its alpha from its material or vertex colour again, as before the
// first burst: track lines stay half transparent and powerup balls keep pulsing.
void CParticleSystemBase::PostRender()
{
    m_pDevice->SetRenderState(RS_LIGHTING, true);
    m_pDevice->SetRenderState(RS_POINTSPRITEENABLE, false);
    m_pDevice->SetRenderState(RS_POINTSCALEENABLE, false);
    m_pDevice->SetTextureStageState(0, TSS_ALPHAOP, TOP_MODULATE);
    m_pDevice->SetTextureStageState(0, TSS_ALPHAARG1, TA_TEXTURE);
}

// The offset moves by a whole batch even after a short last one, so the next frame writes behind whatever
// the card may still be reading.
void CParticleSystemBase::Render()
{
    if(m_lstParticles.empty() || !m_pVB || !m_pTexture)
        return;
    PreRender();
    m_pDevice->SetTexture(0, m_pTexture.get());
    m_pDevice->SetFVF(LINE_FVF);
    m_pDevice->SetStreamSource(m_pVB.get(), sizeof(CLineVertex));
    if(m_uiVBOffset >= m_uiVBSize)
        m_uiVBOffset = 0;
    WriteBatches(*this);
    m_uiVBOffset += m_uiBatchSize;
    PostRender();
}

// The flares add up to light, stay behind nearer things by the depth test, and hide nothing.
void CParticleSystem::PreRender()
{
    CParticleSystemBase::PreRender();
    m_pDevice->SetRenderState(RS_SRCBLEND, BLEND_ONE);
    m_pDevice->SetRenderState(RS_DESTBLEND, BLEND_ONE);
    m_pDevice->SetRenderState(RS_ZWRITEENABLE, false);
}

// The blend factors are the HUD's to set back, as it draws next.
void CParticleSystem::PostRender()
{
    CParticleSystemBase::PostRender();
    m_pDevice->SetRenderState(RS_ZWRITEENABLE, true);
}

void CParticleSystem::DrawParticles(IRenderDevice* pDevice)
{
    if(!m_pVB)
        Init(pDevice, FLARE_FILE);
    if(!m_pDevice)
        return;
    m_pDevice->SetTransform(TRANSFORM_WORLD, IDENTITY);
    Render();
}
