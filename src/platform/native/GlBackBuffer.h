#pragma once
#include "platform/native/GlFunctions.h"

#include <cstdint>
#include <vector>

class CSdlWindow;

// The game's 800x600 back buffer. A shown window whose drawable is exactly 800x600 is drawn into directly.
// Otherwise the frame goes to an offscreen framebuffer (colour RGBA8 and the 16-bit depth the game asks for),
// and presenting scales that into the window with its 4:3 shape kept and black bars around.
class CGlBackBuffer
{
public:
    static constexpr int WIDTH = 800;
    static constexpr int HEIGHT = 600;

    explicit CGlBackBuffer(const CGlFunctions& Gl) : m_Gl(Gl) {}
    CGlBackBuffer(const CGlBackBuffer&) = delete;
    CGlBackBuffer& operator=(const CGlBackBuffer&) = delete;
    ~CGlBackBuffer();

    // Makes the offscreen framebuffer and picks where the first frame goes; false when the driver can't make it.
    bool Create(CSdlWindow& Window);
    // Shows the frame, then picks where the next one goes: a window that changed size changes it from then on.
    void Present(CSdlWindow& Window);
    // The picture as RGBA bytes, top row first.
    bool ReadPixels(std::vector<uint8_t>& vRgba) const;

private:
    void Target(const CSdlWindow& Window);
    void Blit(const CSdlWindow& Window);
    void Release();

    const CGlFunctions& m_Gl;
    GLuint m_uiFramebuffer = 0;
    GLuint m_uiColour = 0;
    GLuint m_uiDepth = 0;
    bool m_bDirect = false; // drawing straight into the window's own back buffer
};
