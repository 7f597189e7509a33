#include "platform/native/GlBackBuffer.h"

#include "platform/native/SdlWindow.h"

#include <algorithm>

namespace
{
// Where the 800x600 picture lands in a drawable of the given size: as large as fits, centred.
struct CPlacement
{
    int m_iX, m_iY, m_iWidth, m_iHeight;
};

CPlacement Letterbox(int iWidth, int iHeight)
{
    const int W = CGlBackBuffer::WIDTH, H = CGlBackBuffer::HEIGHT;
    CPlacement Place{0, 0, iWidth, iHeight};
    if(static_cast<int64_t>(iWidth) * H > static_cast<int64_t>(iHeight) * W)
        Place.m_iWidth = static_cast<int>(static_cast<int64_t>(iHeight) * W / H);
    else
        Place.m_iHeight = static_cast<int>(static_cast<int64_t>(iWidth) * H / W);
    Place.m_iX = (iWidth - Place.m_iWidth) / 2;
    Place.m_iY = (iHeight - Place.m_iHeight) / 2;
    return Place;
}
} // namespace

CGlBackBuffer::~CGlBackBuffer()
{
    Release();
}

bool CGlBackBuffer::Create(CSdlWindow& Window)
{
    m_Gl.m_pfnGenRenderbuffers(1, &m_uiColour);
    m_Gl.m_pfnBindRenderbuffer(GL_RENDERBUFFER, m_uiColour);
    m_Gl.m_pfnRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, WIDTH, HEIGHT);
    m_Gl.m_pfnGenRenderbuffers(1, &m_uiDepth);
    m_Gl.m_pfnBindRenderbuffer(GL_RENDERBUFFER, m_uiDepth);
    m_Gl.m_pfnRenderbufferStorage(GL_RENDERBUFFER, GL_DEPTH_COMPONENT16, WIDTH, HEIGHT);
    m_Gl.m_pfnGenFramebuffers(1, &m_uiFramebuffer);
    m_Gl.m_pfnBindFramebuffer(GL_FRAMEBUFFER, m_uiFramebuffer);
    m_Gl.m_pfnFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, m_uiColour);
    m_Gl.m_pfnFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, m_uiDepth);
    if(m_Gl.m_pfnCheckFramebufferStatus(GL_FRAMEBUFFER) != GL_FRAMEBUFFER_COMPLETE)
    {
        Release();
        return false;
    }
    glViewport(0, 0, WIDTH, HEIGHT);
    Target(Window);
    return true;
}

// A window of the back buffer's own size needs no scaling, and drawing into it spares the copy of every frame.
void CGlBackBuffer::Target(const CSdlWindow& Window)
{
    int iWidth = 0, iHeight = 0;
    Window.GetDrawableSize(iWidth, iHeight);
    m_bDirect = Window.IsShown() && iWidth == WIDTH && iHeight == HEIGHT;
    m_Gl.m_pfnBindFramebuffer(GL_FRAMEBUFFER, m_bDirect ? 0 : m_uiFramebuffer);
}

void CGlBackBuffer::Present(CSdlWindow& Window)
{
    if(!m_bDirect)
        Blit(Window);
    Window.SwapBuffers();
    Target(Window);
}

void CGlBackBuffer::Blit(const CSdlWindow& Window)
{
    int iWidth = 0, iHeight = 0;
    Window.GetDrawableSize(iWidth, iHeight);
    const CPlacement Place = Letterbox(iWidth, iHeight);
    m_Gl.m_pfnBindFramebuffer(GL_DRAW_FRAMEBUFFER, 0);
    // Only the bars need black: the picture covers the rest.
    if(Place.m_iWidth < iWidth || Place.m_iHeight < iHeight)
    {
        glClearColor(0.0f, 0.0f, 0.0f, 1.0f);
        glClear(GL_COLOR_BUFFER_BIT);
    }
    m_Gl.m_pfnBlitFramebuffer(0, 0, WIDTH, HEIGHT, Place.m_iX, Place.m_iY, Place.m_iX + Place.m_iWidth,
                              Place.m_iY + Place.m_iHeight, GL_COLOR_BUFFER_BIT, GL_LINEAR);
}

bool CGlBackBuffer::ReadPixels(std::vector<uint8_t>& vRgba) const
{
    if(!m_uiFramebuffer)
        return false;
    const size_t uRow = static_cast<size_t>(WIDTH) * 4;
    vRgba.resize(uRow * HEIGHT);
    glPixelStorei(GL_PACK_ALIGNMENT, 4);
    glReadPixels(0, 0, WIDTH, HEIGHT, GL_RGBA, GL_UNSIGNED_BYTE, vRgba.data());
    // GL counts rows from the bottom; the game's pictures have their top row first.
    for(size_t uTop = 0, uBottom = HEIGHT - 1; uTop < uBottom; uTop++, uBottom--)
        std::swap_ranges(vRgba.begin() + uTop * uRow, vRgba.begin() + (uTop + 1) * uRow,
                         vRgba.begin() + uBottom * uRow);
    return true;
}

void CGlBackBuffer::Release()
{
    if(m_uiFramebuffer)
        m_Gl.m_pfnDeleteFramebuffers(1, &m_uiFramebuffer);
    if(m_uiColour)
        m_Gl.m_pfnDeleteRenderbuffers(1, &m_uiColour);
    if(m_uiDepth)
        m_Gl.m_pfnDeleteRenderbuffers(1, &m_uiDepth);
    m_uiFramebuffer = m_uiColour = m_uiDepth = 0;
}
