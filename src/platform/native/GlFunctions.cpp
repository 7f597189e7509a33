#include "platform/native/GlFunctions.h"

#include <SDL.h>

namespace
{
template <class T> bool Find(T& pfnFunction, const char* pName)
{
    pfnFunction = reinterpret_cast<T>(SDL_GL_GetProcAddress(pName));
    return pfnFunction != nullptr;
}
} // namespace

bool CGlFunctions::Load()
{
    return Find(m_pfnGenFramebuffers, "glGenFramebuffers") && Find(m_pfnDeleteFramebuffers, "glDeleteFramebuffers") &&
           Find(m_pfnBindFramebuffer, "glBindFramebuffer") &&
           Find(m_pfnCheckFramebufferStatus, "glCheckFramebufferStatus") &&
           Find(m_pfnFramebufferRenderbuffer, "glFramebufferRenderbuffer") &&
           Find(m_pfnBlitFramebuffer, "glBlitFramebuffer") && Find(m_pfnGenRenderbuffers, "glGenRenderbuffers") &&
           Find(m_pfnDeleteRenderbuffers, "glDeleteRenderbuffers") &&
           Find(m_pfnBindRenderbuffer, "glBindRenderbuffer") && Find(m_pfnRenderbufferStorage, "glRenderbufferStorage");
}
