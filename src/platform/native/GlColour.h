#pragma once
#include "platform/interfaces/RenderDevice.h"

#include <array>

// Colours as GL takes them: red, green, blue and alpha from 0 to 1.
inline std::array<float, 4> Rgba(const CColourValue& Colour)
{
    return {Colour.r, Colour.g, Colour.b, Colour.a};
}

// The game's 32-bit colours hold alpha, red, green and blue from the top byte down.
inline std::array<float, 4> Rgba(uint32_t uiArgb)
{
    auto Channel = [uiArgb](int iShift) { return static_cast<float>((uiArgb >> iShift) & 0xff) / 255.0f; };
    return {Channel(16), Channel(8), Channel(0), Channel(24)};
}
