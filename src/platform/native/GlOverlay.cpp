#include "platform/native/GlOverlay.h"

#include "platform/native/GlBackBuffer.h"
#include "platform/native/GlColour.h"

#include <algorithm>

CGlOverlay::CGlOverlay()
{
    glPushAttrib(GL_ENABLE_BIT | GL_DEPTH_BUFFER_BIT | GL_COLOR_BUFFER_BIT | GL_TEXTURE_BIT | GL_CURRENT_BIT |
                 GL_POLYGON_BIT | GL_SCISSOR_BIT);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_LIGHTING);
    glDisable(GL_CULL_FACE);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glEnable(GL_TEXTURE_2D);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
}

CGlOverlay::~CGlOverlay()
{
    glPopAttrib();
}

void CGlOverlay::ClipTo(const CRect& Rect)
{
    // GL counts scissor rows from the bottom of the buffer.
    glEnable(GL_SCISSOR_TEST);
    glScissor(Rect.m_iLeft, CGlBackBuffer::HEIGHT - Rect.m_iBottom, std::max(0, Rect.m_iRight - Rect.m_iLeft),
              std::max(0, Rect.m_iBottom - Rect.m_iTop));
}

void CGlOverlay::DrawPicture(GLuint uiTexture, int iX, int iY, int iWidth, int iHeight, uint32_t uiColour)
{
    glBindTexture(GL_TEXTURE_2D, uiTexture);
    glColor4fv(Rgba(uiColour).data());
    glBegin(GL_QUADS);
    glTexCoord2f(0.0f, 0.0f);
    glVertex2i(iX, iY);
    glTexCoord2f(0.0f, 1.0f);
    glVertex2i(iX, iY + iHeight);
    glTexCoord2f(1.0f, 1.0f);
    glVertex2i(iX + iWidth, iY + iHeight);
    glTexCoord2f(1.0f, 0.0f);
    glVertex2i(iX + iWidth, iY);
    glEnd();
}
