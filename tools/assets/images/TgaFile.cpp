#include "TgaFile.h"

#include <fstream>
#include <stdexcept>

namespace art
{
namespace
{
constexpr std::uint8_t UNCOMPRESSED_TRUE_COLOUR = 2;
constexpr std::uint8_t BITS_PER_PIXEL = 32;
// Eight bits of alpha, and bit 5: the first row stored is the top row.
constexpr std::uint8_t DESCRIPTOR = 0x08 | 0x20;

void PutWord(std::vector<std::uint8_t>& vOut, int iValue)
{
    vOut.push_back(static_cast<std::uint8_t>(iValue & 0xff));
    vOut.push_back(static_cast<std::uint8_t>((iValue >> 8) & 0xff));
}
} // namespace

std::vector<std::uint8_t> EncodeTga(const CCanvas& Canvas)
{
    std::vector<std::uint8_t> vOut;
    vOut.push_back(0); // no image id
    vOut.push_back(0); // no colour map
    vOut.push_back(UNCOMPRESSED_TRUE_COLOUR);
    for(int i = 0; i < 5; ++i)
        vOut.push_back(0); // colour map fields, unused
    PutWord(vOut, 0);      // x origin
    PutWord(vOut, 0);      // y origin
    PutWord(vOut, Canvas.Width());
    PutWord(vOut, Canvas.Height());
    vOut.push_back(BITS_PER_PIXEL);
    vOut.push_back(DESCRIPTOR);
    for(std::uint32_t uiArgb : Canvas.ToArgb())
    {
        vOut.push_back(static_cast<std::uint8_t>(uiArgb & 0xff));
        vOut.push_back(static_cast<std::uint8_t>((uiArgb >> 8) & 0xff));
        vOut.push_back(static_cast<std::uint8_t>((uiArgb >> 16) & 0xff));
        vOut.push_back(static_cast<std::uint8_t>(uiArgb >> 24));
    }
    return vOut;
}

void SaveTga(const CCanvas& Canvas, const std::string& Path)
{
    std::vector<std::uint8_t> vBytes = EncodeTga(Canvas);
    std::ofstream File(Path, std::ios::binary);
    File.write(reinterpret_cast<const char*>(vBytes.data()), static_cast<std::streamsize>(vBytes.size()));
    if(!File)
        throw std::runtime_error("cannot write " + Path);
}
} // namespace art
