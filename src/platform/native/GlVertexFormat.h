#pragma once
#include "platform/interfaces/RenderDevice.h"

#include <GL/gl.h>

// Where the fields of a flexible vertex format lie in each vertex. The device draws positions (x, y, z, or the
// back buffer's pixels x, y, z, rhw), optionally followed by an ARGB colour and one pair of texture coordinates.
struct CVertexLayout
{
    bool m_bKnown = false;
    bool m_bScreen = false; // already transformed: pixels of the back buffer and a depth
    bool m_bColour = false;
    bool m_bTexture = false;
    uint32_t m_uiColourOffset = 0;
    uint32_t m_uiTextureOffset = 0;
    uint32_t m_uiSize = 0;
};

CVertexLayout LayoutOf(uint32_t uiFVF);

// GL's primitive for one of the device's; false for one the device does not draw.
bool ModeOf(EPrimitive Type, GLenum& eMode);

// Points the client arrays at vertices of the layout. A missing colour is opaque white and missing texture
// coordinates are (0, 0).
void BindVertexArrays(const CVertexLayout& Layout, const uint8_t* pFirst, uint32_t uiStride);
