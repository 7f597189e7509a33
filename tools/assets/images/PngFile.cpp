#include "PngFile.h"

#include <SDL.h>
#include <SDL_image.h>

#include <stdexcept>
#include <vector>

namespace art {

void savePng(const Canvas &canvas, const std::string &path)
{
    std::vector<std::uint32_t> argb = canvas.toArgb();
    // The surface borrows the pixel words; with identical pixels the encoder writes identical bytes, and it
    // stamps no time into the file.
    SDL_Surface *surface = SDL_CreateRGBSurfaceWithFormatFrom(argb.data(), canvas.width(), canvas.height(), 32,
                                                              canvas.width() * 4, SDL_PIXELFORMAT_ARGB8888);
    if (!surface)
        throw std::runtime_error("cannot make a surface for " + path + ": " + SDL_GetError());
    int result = IMG_SavePNG(surface, path.c_str());
    SDL_FreeSurface(surface);
    if (result != 0)
        throw std::runtime_error("cannot write " + path + ": " + IMG_GetError());
}

} // namespace art
