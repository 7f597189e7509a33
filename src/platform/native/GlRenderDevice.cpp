#include "platform/native/GlRenderDevice.h"

#include "platform/interfaces/SphereGeometry.h"
#include "platform/native/GlBackBuffer.h"
#include "platform/native/GlColour.h"
#include "platform/native/GlFont.h"
#include "platform/native/GlMesh.h"
#include "platform/native/GlScreenSpace.h"
#include "platform/native/GlVertexFormat.h"
#include "platform/native/SdlWindow.h"

#include <SDL.h>
#include <SDL_ttf.h>

namespace
{
// Far beyond anything the game fills; a request past it fails as if memory had run out, as does
// an empty one.
constexpr uint32_t MAX_BUFFER_BYTES = 64u << 20;

const CMatrixData IDENTITY = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
} // namespace

CGlRenderDevice::CGlRenderDevice()
    : m_auiStates(DefaultRenderStates()), m_View(IDENTITY), m_World(IDENTITY), m_Projection(IDENTITY)
{
}

CGlRenderDevice::~CGlRenderDevice()
{
    if(m_bFonts)
        TTF_Quit();
}

bool CGlRenderDevice::Init(CSdlWindow& Window)
{
    if(!m_Gl.Load())
        return false;
    auto pBackBuffer = std::make_unique<CGlBackBuffer>(m_Gl);
    m_pWhite = WhiteTexture();
    if(!pBackBuffer->Create(Window) || !m_pWhite)
        return false;
    m_pBackBuffer = std::move(pBackBuffer);
    m_pWindow = &Window;
    SetFixedStates();
    for(int iState = 0; iState < RENDER_STATE_COUNT; iState++)
        ApplyRenderState(static_cast<ERenderState>(iState));
    m_Stage.Apply();
    SetTransform(TRANSFORM_PROJECTION, IDENTITY);
    ApplyModelView();
    ApplyMaterial();
    SetTexture(0, nullptr);
    m_bFonts = TTF_Init() == 0;
    return true;
}

// What the device always does and the game never changes: clockwise triangles face the viewer and the others are
// culled, depth passes when nearer or equal, highlights are seen from the eye and added after texturing.
void CGlRenderDevice::SetFixedStates()
{
    glFrontFace(GL_CW);
    glCullFace(GL_BACK);
    glEnable(GL_CULL_FACE);
    glDepthFunc(GL_LEQUAL);
    glDisable(GL_DITHER);
    glLightModeli(GL_LIGHT_MODEL_LOCAL_VIEWER, GL_TRUE);
    glLightModeli(GL_LIGHT_MODEL_COLOR_CONTROL, GL_SEPARATE_SPECULAR_COLOR);
    glEnable(GL_TEXTURE_2D);
    glTexEnvi(GL_POINT_SPRITE, GL_COORD_REPLACE, GL_TRUE);
    glEnableClientState(GL_VERTEX_ARRAY);
    glMatrixMode(GL_MODELVIEW);
}

bool CGlRenderDevice::ReadPixels(std::vector<uint8_t>& vRgba)
{
    FlushSpheres();
    return m_pBackBuffer && m_pBackBuffer->ReadPixels(vRgba);
}

void CGlRenderDevice::Finish()
{
    FlushSpheres();
    glFinish();
}

void CGlRenderDevice::Clear(uint32_t uiColour, float fDepth)
{
    FlushSpheres();
    const std::array<float, 4> afColour = Rgba(uiColour);
    glClearColor(afColour[0], afColour[1], afColour[2], afColour[3]);
    glClearDepth(fDepth);
    glDepthMask(GL_TRUE);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glDepthMask(m_auiStates[RS_ZWRITEENABLE] != 0);
}

void CGlRenderDevice::Present()
{
    FlushSpheres();
    m_pBackBuffer->Present(*m_pWindow);
}

void CGlRenderDevice::SetTexture(uint32_t uiStage, ITexture* pTexture)
{
    if(uiStage != 0)
        return;
    FlushSpheres();
    m_pTexture = pTexture ? static_cast<CGlTexture*>(pTexture)->Name() : m_pWhite;
    glBindTexture(GL_TEXTURE_2D, m_pTexture->Get());
}

void CGlRenderDevice::SetStreamSource(IVertexBuffer* pBuffer, uint32_t uiStride)
{
    m_pStream = pBuffer ? static_cast<CGlVertexBuffer*>(pBuffer)->Bytes() : nullptr;
    m_uiStride = uiStride;
}

// A draw that would read past the end of its buffer, or with a format or primitive the device does not know,
// draws nothing.
void CGlRenderDevice::DrawPrimitive(EPrimitive Type, uint32_t uiStartVertex, uint32_t uiPrimitiveCount)
{
    FlushSpheres();
    const CVertexLayout Layout = LayoutOf(m_uiFVF);
    const uint64_t uVertices = VerticesOf(Type, uiPrimitiveCount);
    GLenum eMode;
    if(!m_pStream || !Layout.m_bKnown || !ModeOf(Type, eMode) || uVertices == 0 || m_uiStride < Layout.m_uiSize)
        return;
    const uint64_t uLast = uiStartVertex + uVertices - 1;
    if(uLast >= m_pStream->size() || uLast * m_uiStride + Layout.m_uiSize > m_pStream->size())
        return;
    const uint8_t* pFirst = m_pStream->data() + static_cast<size_t>(uiStartVertex) * m_uiStride;
    BindVertexArrays(Layout, pFirst, m_uiStride);
    const GLsizei iCount = static_cast<GLsizei>(uVertices);
    if(Layout.m_bScreen)
        DrawScreenVertices(eMode, iCount);
    else
        DrawWorldVertices(eMode, Layout, pFirst, iCount);
}

// Lit vertices without normals get only the ambient and emissive light, and a vertex colour stands for the
// material's diffuse colour, which is how the game's scenes are lit.
void CGlRenderDevice::DrawWorldVertices(GLenum eMode, const CVertexLayout& Layout, const uint8_t* pFirst,
                                        GLsizei iCount)
{
    const bool bColourMaterial = Layout.m_bColour && m_auiStates[RS_LIGHTING] != 0;
    if(bColourMaterial)
    {
        glColorMaterial(GL_FRONT_AND_BACK, GL_DIFFUSE);
        glEnable(GL_COLOR_MATERIAL);
    }
    glNormal3f(0.0f, 0.0f, 0.0f);
    if(eMode == GL_POINTS && m_auiStates[RS_POINTSCALEENABLE] != 0)
        DrawScaledPoints(Layout, pFirst, iCount);
    else
        DrawArrays(eMode, iCount);
    if(bColourMaterial)
    {
        glDisable(GL_COLOR_MATERIAL);
        ApplyMaterial();
    }
}

// Screen vertices are pixels of the back buffer, (0, 0) at the top left, with z as the depth itself; they are
// never lit.
void CGlRenderDevice::DrawScreenVertices(GLenum eMode, GLsizei iCount)
{
    const CGlScreenSpace ScreenSpace;
    const bool bLit = m_auiStates[RS_LIGHTING] != 0;
    if(bLit)
        glDisable(GL_LIGHTING);
    DrawArrays(eMode, iCount);
    if(bLit)
        glEnable(GL_LIGHTING);
}

std::unique_ptr<IVertexBuffer> CGlRenderDevice::CreateVertexBuffer(uint32_t uiLength, uint32_t)
{
    if(uiLength == 0 || uiLength > MAX_BUFFER_BYTES)
        return nullptr;
    return std::make_unique<CGlVertexBuffer>(uiLength);
}

std::unique_ptr<IMesh> CGlRenderDevice::CreateSphere(float fRadius, uint32_t uiSlices, uint32_t uiStacks)
{
    return CGlMesh::Create(*this, std::make_shared<const CSphereGeometry>(BuildSphere(fRadius, uiSlices, uiStacks)));
}

std::unique_ptr<ITexture> CGlRenderDevice::CreateTextureFromFile(const char* pFileName)
{
    const CSurfacePtr pPicture = LoadPicture(pFileName);
    if(pPicture)
        m_LastPicture = {pFileName, static_cast<uint32_t>(pPicture->w), static_cast<uint32_t>(pPicture->h)};
    CGlTextureRef pName = pPicture ? TextureFromSurface(pPicture.get()) : nullptr;
    if(!pName)
        return nullptr;
    return std::make_unique<CGlTexture>(std::move(pName));
}

// Every face the game asks for is drawn in DejaVu Sans, the one sans-serif face every system here has.
std::unique_ptr<IFont> CGlRenderDevice::CreateFont(int32_t iHeight, uint32_t uiWeight, const char*)
{
    if(!m_bFonts)
        return nullptr;
    return CGlFont::Create(*this, iHeight, uiWeight);
}

// The game asks for a picture's size right after making its texture: the size of that load answers, so the
// file is decoded once.
bool CGlRenderDevice::GetImageInfoFromFile(const char* pFileName, uint32_t& uiWidth, uint32_t& uiHeight)
{
    if(pFileName && m_LastPicture.m_Path == pFileName)
    {
        uiWidth = m_LastPicture.m_uiWidth;
        uiHeight = m_LastPicture.m_uiHeight;
        return true;
    }
    const CSurfacePtr pPicture = LoadPicture(pFileName);
    if(!pPicture)
        return false;
    uiWidth = static_cast<uint32_t>(pPicture->w);
    uiHeight = static_cast<uint32_t>(pPicture->h);
    return true;
}
