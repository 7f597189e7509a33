#include "TgaFile.h"

#include <fstream>
#include <stdexcept>

namespace art {

namespace {

constexpr std::uint8_t kUncompressedTrueColour = 2;
constexpr std::uint8_t kBitsPerPixel = 32;
// Eight bits of alpha, and bit 5: the first row stored is the top row.
constexpr std::uint8_t kDescriptor = 0x08 | 0x20;

void putWord(std::vector<std::uint8_t> &out, int value)
{
    out.push_back(static_cast<std::uint8_t>(value & 0xff));
    out.push_back(static_cast<std::uint8_t>((value >> 8) & 0xff));
}

} // namespace

std::vector<std::uint8_t> encodeTga(const Canvas &canvas)
{
    std::vector<std::uint8_t> out;
    out.push_back(0); // no image id
    out.push_back(0); // no colour map
    out.push_back(kUncompressedTrueColour);
    for (int i = 0; i < 5; ++i)
        out.push_back(0); // colour map fields, unused
    putWord(out, 0);      // x origin
    putWord(out, 0);      // y origin
    putWord(out, canvas.width());
    putWord(out, canvas.height());
    out.push_back(kBitsPerPixel);
    out.push_back(kDescriptor);
    for (std::uint32_t argb : canvas.toArgb()) {
        out.push_back(static_cast<std::uint8_t>(argb & 0xff));
        out.push_back(static_cast<std::uint8_t>((argb >> 8) & 0xff));
        out.push_back(static_cast<std::uint8_t>((argb >> 16) & 0xff));
        out.push_back(static_cast<std::uint8_t>(argb >> 24));
    }
    return out;
}

void saveTga(const Canvas &canvas, const std::string &path)
{
    std::vector<std::uint8_t> bytes = encodeTga(canvas);
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char *>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (!file)
        throw std::runtime_error("cannot write " + path);
}

} // namespace art
