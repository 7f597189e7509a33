#pragma once
#include <cstdint>
#include <string>
#include <vector>

// An RGB picture: the virtual display's screen or a picture file of the game.
struct CPicture
{
    int m_iWidth = 0;
    int m_iHeight = 0;
    std::vector<uint8_t> m_vRgba; // four bytes a pixel, top row first

    uint32_t Rgb(int x, int y) const; // 0xRRGGBB
    // Whether the pixels of a rectangle of this picture match those of another picture at its origin, each
    // channel within a tolerance, over the pixels that are opaque in the other.
    bool Shows(const CPicture& Other, int iX, int iY, int iTolerance = 8) const;
    // The share of the other picture's opaque pixels that this picture shows at (x, y), within the tolerance:
    // for pictures that the cursor or text may partly cover.
    double Likeness(const CPicture& Other, int iX, int iY, int iTolerance = 8) const;
};

// The screen of the virtual display, from the file the display keeps its frame buffer in.
bool ReadScreen(const std::string& FrameBufferFile, CPicture& Screen);
bool ReadPicture(const std::string& FileName, CPicture& Picture);
