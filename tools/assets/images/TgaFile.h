// Writing a picture as an uncompressed 32-bit TGA, the format the particle flare is loaded from.
#pragma once

#include "Canvas.h"

#include <cstdint>
#include <string>
#include <vector>

namespace art
{
// The whole file: an 18-byte header, then BGRA pixels from the top row down.
std::vector<std::uint8_t> EncodeTga(const CCanvas& Canvas);

// Throws std::runtime_error with the file name if the file can't be written.
void SaveTga(const CCanvas& Canvas, const std::string& Path);
} // namespace art
