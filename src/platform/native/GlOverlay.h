#pragma once
#include "platform/interfaces/RenderDevice.h"
#include "platform/native/GlScreenSpace.h"

// Flat pictures in pixels of the back buffer over everything drawn so far, for as long as the object lives:
// no depth test or write, no lighting or culling, blended by the picture's alpha. Whatever the device had set
// comes back when the object goes.
class CGlOverlay
{
public:
    CGlOverlay();
    CGlOverlay(const CGlOverlay&) = delete;
    CGlOverlay& operator=(const CGlOverlay&) = delete;
    ~CGlOverlay();

    // Nothing is drawn outside the rectangle from now on.
    void ClipTo(const CRect& Rect);
    // The texture's whole picture at its own size, its colours multiplied by the ARGB colour.
    void DrawPicture(GLuint uiTexture, int iX, int iY, int iWidth, int iHeight, uint32_t uiColour);

private:
    CGlScreenSpace m_ScreenSpace;
};
