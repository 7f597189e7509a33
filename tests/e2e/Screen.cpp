#include "e2e/Screen.h"

#include "platform/native/PngFile.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace
{
// The fields of the dump header that matter here, by their index among its 32-bit big-endian words.
enum
{
    HEADER_SIZE = 0,
    WIDTH = 4,
    HEIGHT = 5,
    BITS_PER_PIXEL = 11,
    BYTES_PER_LINE = 12,
    COLOURS = 19,
    HEADER_WORDS = 25
};
constexpr size_t COLOUR_ENTRY_BYTES = 12;

uint32_t Word(const std::string& Bytes, size_t uIndex)
{
    uint32_t uiValue = 0;
    for(size_t i = 0; i < 4; i++)
        uiValue = uiValue << 8 | static_cast<uint8_t>(Bytes[uIndex * 4 + i]);
    return uiValue;
}

bool SamePixel(const uint8_t* pMine, const uint8_t* pTheirs, int iTolerance)
{
    for(int c = 0; c < 3; c++)
    {
        if(std::abs(pTheirs[c] - pMine[c]) > iTolerance)
            return false;
    }
    return true;
}

// Calls fnPixel(mine, theirs) for each opaque pixel of Other that falls on Picture at (iX, iY), until it
// returns false.
template <typename TFunction>
void ForOpaquePixels(const CPicture& Picture, const CPicture& Other, int iX, int iY, TFunction fnPixel)
{
    for(int y = 0; y < Other.m_iHeight && iY + y < Picture.m_iHeight; y++)
    {
        for(int x = 0; x < Other.m_iWidth && iX + x < Picture.m_iWidth; x++)
        {
            const uint8_t* pTheirs = &Other.m_vRgba[(static_cast<size_t>(y) * Other.m_iWidth + x) * 4];
            const uint8_t* pMine = &Picture.m_vRgba[(static_cast<size_t>(iY + y) * Picture.m_iWidth + iX + x) * 4];
            if(pTheirs[3] == 255 && !fnPixel(pMine, pTheirs))
                return;
        }
    }
}
} // namespace

uint32_t CPicture::Rgb(int x, int y) const
{
    const uint8_t* p = &m_vRgba[(static_cast<size_t>(y) * m_iWidth + x) * 4];
    return static_cast<uint32_t>(p[0]) << 16 | static_cast<uint32_t>(p[1]) << 8 | p[2];
}

bool CPicture::Shows(const CPicture& Other, int iX, int iY, int iTolerance) const
{
    bool bSame = true;
    ForOpaquePixels(*this, Other, iX, iY, [&](const uint8_t* pMine, const uint8_t* pTheirs) {
        bSame = SamePixel(pMine, pTheirs, iTolerance);
        return bSame;
    });
    return bSame;
}

double CPicture::Likeness(const CPicture& Other, int iX, int iY, int iTolerance) const
{
    size_t uSame = 0, uAll = 0;
    ForOpaquePixels(*this, Other, iX, iY, [&](const uint8_t* pMine, const uint8_t* pTheirs) {
        uSame += SamePixel(pMine, pTheirs, iTolerance);
        uAll++;
        return true;
    });
    return uAll ? static_cast<double>(uSame) / static_cast<double>(uAll) : 0.0;
}

bool ReadScreen(const std::string& FrameBufferFile, CPicture& Screen)
{
    std::ifstream File(FrameBufferFile, std::ios::binary);
    const std::string Bytes((std::istreambuf_iterator<char>(File)), std::istreambuf_iterator<char>());
    if(Bytes.size() < HEADER_WORDS * 4 || Word(Bytes, BITS_PER_PIXEL) != 32)
        return false;
    const size_t uPixels = Word(Bytes, HEADER_SIZE) + Word(Bytes, COLOURS) * COLOUR_ENTRY_BYTES;
    Screen.m_iWidth = static_cast<int>(Word(Bytes, WIDTH));
    Screen.m_iHeight = static_cast<int>(Word(Bytes, HEIGHT));
    const size_t uLine = Word(Bytes, BYTES_PER_LINE);
    if(Bytes.size() < uPixels + uLine * Screen.m_iHeight)
        return false;
    Screen.m_vRgba.resize(static_cast<size_t>(Screen.m_iWidth) * Screen.m_iHeight * 4);
    for(int y = 0; y < Screen.m_iHeight; y++)
    {
        for(int x = 0; x < Screen.m_iWidth; x++)
        {
            const char* p = &Bytes[uPixels + y * uLine + x * 4]; // blue, green, red, unused
            uint8_t* q = &Screen.m_vRgba[(static_cast<size_t>(y) * Screen.m_iWidth + x) * 4];
            q[0] = static_cast<uint8_t>(p[2]);
            q[1] = static_cast<uint8_t>(p[1]);
            q[2] = static_cast<uint8_t>(p[0]);
            q[3] = 255;
        }
    }
    return true;
}

bool ReadPicture(const std::string& FileName, CPicture& Picture)
{
    return LoadPng(FileName.c_str(), Picture.m_vRgba, Picture.m_iWidth, Picture.m_iHeight);
}
