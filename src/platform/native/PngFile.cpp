#include "platform/native/PngFile.h"

#include <SDL.h>
#include <SDL_image.h>

#include <cstring>

bool SavePng(const char* pFileName, const std::vector<uint8_t>& vRgba, int iWidth, int iHeight)
{
    if(iWidth <= 0 || iHeight <= 0 || vRgba.size() != static_cast<size_t>(iWidth) * static_cast<size_t>(iHeight) * 4)
        return false;
    SDL_Surface* pSurface = SDL_CreateRGBSurfaceWithFormatFrom(const_cast<uint8_t*>(vRgba.data()), iWidth, iHeight, 32,
                                                               iWidth * 4, SDL_PIXELFORMAT_RGBA32);
    if(!pSurface)
        return false;
    const bool bSaved = IMG_SavePNG(pSurface, pFileName) == 0;
    SDL_FreeSurface(pSurface);
    return bSaved;
}

bool LoadPng(const char* pFileName, std::vector<uint8_t>& vRgba, int& iWidth, int& iHeight)
{
    SDL_Surface* pLoaded = IMG_Load(pFileName);
    if(!pLoaded)
        return false;
    SDL_Surface* pRgba = SDL_ConvertSurfaceFormat(pLoaded, SDL_PIXELFORMAT_RGBA32, 0);
    SDL_FreeSurface(pLoaded);
    if(!pRgba)
        return false;
    iWidth = pRgba->w;
    iHeight = pRgba->h;
    vRgba.resize(static_cast<size_t>(iWidth) * static_cast<size_t>(iHeight) * 4);
    for(int y = 0; y < iHeight; y++)
    {
        const uint8_t* pRow = static_cast<const uint8_t*>(pRgba->pixels) + static_cast<size_t>(y) * pRgba->pitch;
        std::memcpy(vRgba.data() + static_cast<size_t>(y) * iWidth * 4, pRow, static_cast<size_t>(iWidth) * 4);
    }
    SDL_FreeSurface(pRgba);
    return true;
}
