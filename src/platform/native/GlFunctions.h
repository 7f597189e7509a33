#pragma once
#include <GL/gl.h>
#include <GL/glext.h>

// The entry points the device needs beyond OpenGL 1.1: framebuffer objects for the 800x600 back buffer. They are
// looked up through the context's loader, which works whichever way SDL reached the driver.
struct CGlFunctions
{
    PFNGLGENFRAMEBUFFERSPROC m_pfnGenFramebuffers = nullptr;
    PFNGLDELETEFRAMEBUFFERSPROC m_pfnDeleteFramebuffers = nullptr;
    PFNGLBINDFRAMEBUFFERPROC m_pfnBindFramebuffer = nullptr;
    PFNGLCHECKFRAMEBUFFERSTATUSPROC m_pfnCheckFramebufferStatus = nullptr;
    PFNGLFRAMEBUFFERRENDERBUFFERPROC m_pfnFramebufferRenderbuffer = nullptr;
    PFNGLBLITFRAMEBUFFERPROC m_pfnBlitFramebuffer = nullptr;
    PFNGLGENRENDERBUFFERSPROC m_pfnGenRenderbuffers = nullptr;
    PFNGLDELETERENDERBUFFERSPROC m_pfnDeleteRenderbuffers = nullptr;
    PFNGLBINDRENDERBUFFERPROC m_pfnBindRenderbuffer = nullptr;
    PFNGLRENDERBUFFERSTORAGEPROC m_pfnRenderbufferStorage = nullptr;

    // Needs a current context; false when any entry point is missing.
    bool Load();
};
