#include "platform/native/GlTexture.h"

#include "platform/interfaces/Paths.h"

#include <SDL.h>
#include <SDL_image.h>

namespace
{
constexpr int RGBA_BYTES = 4;

CGlTextureRef Upload(const void* pRgba, int iWidth, int iHeight, int iPitch)
{
    GLint iMaxSize = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &iMaxSize);
    if(iWidth <= 0 || iHeight <= 0 || iWidth > iMaxSize || iHeight > iMaxSize)
        return nullptr;
    auto pName = std::make_shared<CGlTextureName>();
    GLint iPrevious = 0;
    glGetIntegerv(GL_TEXTURE_BINDING_2D, &iPrevious);
    glBindTexture(GL_TEXTURE_2D, pName->Get());
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_REPEAT);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glPixelStorei(GL_UNPACK_ROW_LENGTH, iPitch / RGBA_BYTES);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, iWidth, iHeight, 0, GL_RGBA, GL_UNSIGNED_BYTE, pRgba);
    glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
    glBindTexture(GL_TEXTURE_2D, static_cast<GLuint>(iPrevious));
    return pName;
}
} // namespace

CGlTextureName::CGlTextureName()
{
    glGenTextures(1, &m_uiName);
}

CGlTextureName::~CGlTextureName()
{
    glDeleteTextures(1, &m_uiName);
}

void CSurfaceDeleter::operator()(SDL_Surface* pSurface) const
{
    SDL_FreeSurface(pSurface);
}

CSurfacePtr LoadPicture(const char* pGamePath)
{
    return pGamePath ? CSurfacePtr(IMG_Load(NativePath(pGamePath).c_str())) : nullptr;
}

CGlTextureRef TextureFromSurface(SDL_Surface* pSurface)
{
    CSurfacePtr pRgba(SDL_ConvertSurfaceFormat(pSurface, SDL_PIXELFORMAT_RGBA32, 0));
    if(!pRgba || SDL_LockSurface(pRgba.get()) != 0)
        return nullptr;
    CGlTextureRef pName = Upload(pRgba->pixels, pRgba->w, pRgba->h, pRgba->pitch);
    SDL_UnlockSurface(pRgba.get());
    return pName;
}

CGlTextureRef WhiteTexture()
{
    const uint8_t aWhite[RGBA_BYTES] = {255, 255, 255, 255};
    return Upload(aWhite, 1, 1, RGBA_BYTES);
}
