// Pixels of a picture while it is drawn: float RGBA with premultiplied alpha, so that blending and scaling
// stay exact until the one rounding step when the file is written.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace art
{
// A colour with straight (not premultiplied) alpha, components 0..1.
struct CRgba
{
    float m_fR = 0, m_fG = 0, m_fB = 0, m_fA = 0;
};

// 0xRRGGBB with an alpha of 0..1.
CRgba Hex(std::uint32_t uiRgb, float fAlpha = 1.0f);
CRgba Mix(CRgba From, CRgba To, float fT);
CRgba WithAlpha(CRgba Colour, float fAlpha);
CRgba Scaled(CRgba Colour, float fFactor); // multiplies red, green and blue (clamped), alpha unchanged

// Where a colour comes from at a pixel centre: a solid, a gradient, a shaded ball...
using CPaint = std::function<CRgba(float fX, float fY)>;
CPaint Solid(CRgba Colour);

enum class EBlend
{
    Over,
    Add
};

// Coverage 0..1 over a rectangle of the picture that starts at (m_iLeft, m_iTop).
struct CMask
{
    int m_iLeft = 0, m_iTop = 0, m_iWidth = 0, m_iHeight = 0;
    std::vector<float> m_vCover;

    CMask() = default;
    CMask(int iLeft, int iTop, int iWidth, int iHeight);
    float At(int iX, int iY) const; // picture coordinates; 0 outside
    float& Cell(int iX, int iY) { return m_vCover[static_cast<std::size_t>(iY - m_iTop) * m_iWidth + (iX - m_iLeft)]; }
};

class CCanvas
{
public:
    CCanvas(int iWidth, int iHeight);

    int Width() const { return m_iWidth; }
    int Height() const { return m_iHeight; }

    // Premultiplied pixel access.
    const CRgba& Pixel(int iX, int iY) const { return m_vPixels[static_cast<std::size_t>(iY) * m_iWidth + iX]; }
    CRgba& Pixel(int iX, int iY) { return m_vPixels[static_cast<std::size_t>(iY) * m_iWidth + iX]; }

    void Fill(const CPaint& fnPaint);
    void Paint(const CMask& Mask, const CPaint& fnPaint, EBlend eBlend = EBlend::Over, float fOpacity = 1.0f);
    void Draw(const CCanvas& Picture, int iLeft, int iTop, float fOpacity = 1.0f); // over, no scaling

    // Straight-alpha 8-bit ARGB, one word a pixel, rows top to bottom.
    std::vector<std::uint32_t> ToArgb() const;

private:
    void BlendPixel(int iX, int iY, CRgba Straight, float fCoverage, EBlend eBlend);

    int m_iWidth, m_iHeight;
    std::vector<CRgba> m_vPixels;
};

// A box-filtered copy at another size; used for thumbnails.
CCanvas Resized(const CCanvas& Source, int iWidth, int iHeight);
} // namespace art
