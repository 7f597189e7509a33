#pragma once
#include "platform/GlFunctions.h"

#include <cstdint>
#include <vector>

class CSdlWindow;

// The game's 800x600 back buffer as an offscreen framebuffer (colour RGBA8 and a depth buffer), whatever the
// size of the window. Presenting scales it into the window with its 4:3 shape kept and black bars around.
class CGlBackBuffer
{
public:
    static constexpr int WIDTH = 800;
    static constexpr int HEIGHT = 600;

    explicit CGlBackBuffer(const CGlFunctions& Gl) : m_Gl(Gl) {}
    CGlBackBuffer(const CGlBackBuffer&) = delete;
    CGlBackBuffer& operator=(const CGlBackBuffer&) = delete;
    ~CGlBackBuffer();

    // Makes the framebuffer and draws into it from now on; false when the driver can't make it.
    bool Create();
    void Present(CSdlWindow& Window);
    // The picture as RGBA bytes, top row first.
    bool ReadPixels(std::vector<uint8_t>& vRgba) const;

private:
    void Release();

    const CGlFunctions& m_Gl;
    GLuint m_uiFramebuffer = 0;
    GLuint m_uiColour = 0;
    GLuint m_uiDepth = 0;
};
