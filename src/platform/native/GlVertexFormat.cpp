#include "platform/native/GlVertexFormat.h"

namespace
{
constexpr uint32_t POSITION_MASK = 0x400E;
constexpr uint32_t XYZ_BYTES = 12;
constexpr uint32_t XYZRHW_BYTES = 16;
constexpr uint32_t COLOUR_BYTES = 4;
constexpr uint32_t TEXTURE_BYTES = 8;
} // namespace

CVertexLayout LayoutOf(uint32_t uiFVF)
{
    CVertexLayout Layout;
    const uint32_t uiPosition = uiFVF & POSITION_MASK;
    if((uiFVF & ~(POSITION_MASK | FVF_DIFFUSE | FVF_TEX1)) != 0 || (uiPosition != FVF_XYZ && uiPosition != FVF_XYZRHW))
        return Layout;
    Layout.m_bKnown = true;
    Layout.m_bScreen = uiPosition == FVF_XYZRHW;
    Layout.m_uiSize = Layout.m_bScreen ? XYZRHW_BYTES : XYZ_BYTES;
    Layout.m_bColour = (uiFVF & FVF_DIFFUSE) != 0;
    if(Layout.m_bColour)
    {
        Layout.m_uiColourOffset = Layout.m_uiSize;
        Layout.m_uiSize += COLOUR_BYTES;
    }
    Layout.m_bTexture = (uiFVF & FVF_TEX1) != 0;
    if(Layout.m_bTexture)
    {
        Layout.m_uiTextureOffset = Layout.m_uiSize;
        Layout.m_uiSize += TEXTURE_BYTES;
    }
    return Layout;
}

bool ModeOf(EPrimitive Type, GLenum& eMode)
{
    switch(Type)
    {
    case PT_POINTLIST: eMode = GL_POINTS; return true;
    case PT_LINELIST: eMode = GL_LINES; return true;
    case PT_TRIANGLELIST: eMode = GL_TRIANGLES; return true;
    case PT_TRIANGLESTRIP: eMode = GL_TRIANGLE_STRIP; return true;
    default: return false;
    }
}

void BindVertexArrays(const CVertexLayout& Layout, const uint8_t* pFirst, uint32_t uiStride)
{
    const GLsizei iStride = static_cast<GLsizei>(uiStride);
    glVertexPointer(3, GL_FLOAT, iStride, pFirst);
    if(Layout.m_bColour)
    {
        // The colour is a little-endian ARGB word: its bytes in memory are blue, green, red, alpha.
        glEnableClientState(GL_COLOR_ARRAY);
        glColorPointer(GL_BGRA, GL_UNSIGNED_BYTE, iStride, pFirst + Layout.m_uiColourOffset);
    }
    else
    {
        glDisableClientState(GL_COLOR_ARRAY);
        glColor4f(1.0f, 1.0f, 1.0f, 1.0f);
    }
    if(Layout.m_bTexture)
    {
        glEnableClientState(GL_TEXTURE_COORD_ARRAY);
        glTexCoordPointer(2, GL_FLOAT, iStride, pFirst + Layout.m_uiTextureOffset);
    }
    else
    {
        glDisableClientState(GL_TEXTURE_COORD_ARRAY);
        glTexCoord2f(0.0f, 0.0f);
    }
}
