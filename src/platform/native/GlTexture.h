#pragma once
#include "platform/interfaces/RenderDevice.h"

#include <GL/gl.h>

#include <memory>

struct SDL_Surface;

// One GL texture, deleted with the object. The game's texture and the device, while the texture is set on it,
// share it: a set texture stays alive until it is replaced.
class CGlTextureName
{
public:
    CGlTextureName();
    CGlTextureName(const CGlTextureName&) = delete;
    CGlTextureName& operator=(const CGlTextureName&) = delete;
    ~CGlTextureName();

    GLuint Get() const { return m_uiName; }

private:
    GLuint m_uiName = 0;
};

typedef std::shared_ptr<const CGlTextureName> CGlTextureRef;

class CGlTexture : public ITexture
{
public:
    explicit CGlTexture(CGlTextureRef pName) : m_pName(std::move(pName)) {}
    const CGlTextureRef& Name() const { return m_pName; }

private:
    CGlTextureRef m_pName;
};

struct CSurfaceDeleter
{
    void operator()(SDL_Surface* pSurface) const;
};
typedef std::unique_ptr<SDL_Surface, CSurfaceDeleter> CSurfacePtr;

// A picture file (PNG or TGA) named the game's way, top row first; null when the file is missing or is not a
// picture.
CSurfacePtr LoadPicture(const char* pGamePath);
// Any surface as a texture of its own size, sampled the device's default way (nearest texel,
// repeating); null when it can't be converted or is larger than the driver takes.
CGlTextureRef TextureFromSurface(SDL_Surface* pSurface);
// One opaque white texel: what a stage without a texture reads as its texture.
CGlTextureRef WhiteTexture();
