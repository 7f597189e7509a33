#include "PngFile.h"

#include <SDL.h>
#include <SDL_image.h>

#include <stdexcept>
#include <vector>

namespace art
{
void SavePng(const CCanvas& Canvas, const std::string& Path)
{
    std::vector<std::uint32_t> vArgb = Canvas.ToArgb();
    // The surface borrows the pixel words; with identical pixels the encoder writes identical bytes, and it
    // stamps no time into the file.
    SDL_Surface* pSurface = SDL_CreateRGBSurfaceWithFormatFrom(vArgb.data(), Canvas.Width(), Canvas.Height(), 32,
                                                               Canvas.Width() * 4, SDL_PIXELFORMAT_ARGB8888);
    if(!pSurface)
        throw std::runtime_error("cannot make a surface for " + Path + ": " + SDL_GetError());
    int iResult = IMG_SavePNG(pSurface, Path.c_str());
    SDL_FreeSurface(pSurface);
    if(iResult != 0)
        throw std::runtime_error("cannot write " + Path + ": " + IMG_GetError());
}
} // namespace art
