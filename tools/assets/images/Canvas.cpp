#include "Canvas.h"

#include <algorithm>
#include <cmath>

namespace art
{
namespace
{
float Clamp01(float fV)
{
    return std::min(1.0f, std::max(0.0f, fV));
}

std::uint32_t ToByte(float fV)
{
    return static_cast<std::uint32_t>(std::lround(Clamp01(fV) * 255.0f));
}
} // namespace

CRgba Hex(std::uint32_t uiRgb, float fAlpha)
{
    return {((uiRgb >> 16) & 0xff) / 255.0f, ((uiRgb >> 8) & 0xff) / 255.0f, (uiRgb & 0xff) / 255.0f, fAlpha};
}

CRgba Mix(CRgba From, CRgba To, float fT)
{
    return {From.m_fR + (To.m_fR - From.m_fR) * fT, From.m_fG + (To.m_fG - From.m_fG) * fT,
            From.m_fB + (To.m_fB - From.m_fB) * fT, From.m_fA + (To.m_fA - From.m_fA) * fT};
}

CRgba WithAlpha(CRgba Colour, float fAlpha)
{
    Colour.m_fA = fAlpha;
    return Colour;
}

CRgba Scaled(CRgba Colour, float fFactor)
{
    return {Clamp01(Colour.m_fR * fFactor), Clamp01(Colour.m_fG * fFactor), Clamp01(Colour.m_fB * fFactor),
            Colour.m_fA};
}

CPaint Solid(CRgba Colour)
{
    return [Colour](float, float) { return Colour; };
}

CMask::CMask(int iLeft, int iTop, int iWidth, int iHeight)
    : m_iLeft(iLeft), m_iTop(iTop), m_iWidth(std::max(0, iWidth)), m_iHeight(std::max(0, iHeight)),
      m_vCover(static_cast<std::size_t>(m_iWidth) * m_iHeight, 0.0f)
{
}

float CMask::At(int iX, int iY) const
{
    if(iX < m_iLeft || iY < m_iTop || iX >= m_iLeft + m_iWidth || iY >= m_iTop + m_iHeight)
        return 0.0f;
    return m_vCover[static_cast<std::size_t>(iY - m_iTop) * m_iWidth + (iX - m_iLeft)];
}

CCanvas::CCanvas(int iWidth, int iHeight)
    : m_iWidth(iWidth), m_iHeight(iHeight), m_vPixels(static_cast<std::size_t>(iWidth) * iHeight)
{
}

void CCanvas::Fill(const CPaint& fnPaint)
{
    for(int iY = 0; iY < m_iHeight; ++iY)
        for(int iX = 0; iX < m_iWidth; ++iX)
        {
            CRgba Colour = fnPaint(iX + 0.5f, iY + 0.5f);
            Pixel(iX, iY) = {Colour.m_fR * Colour.m_fA, Colour.m_fG * Colour.m_fA, Colour.m_fB * Colour.m_fA,
                             Colour.m_fA};
        }
}

void CCanvas::BlendPixel(int iX, int iY, CRgba Straight, float fCoverage, EBlend eBlend)
{
    float fA = Clamp01(Straight.m_fA * fCoverage);
    if(fA <= 0.0f)
        return;
    CRgba& Dest = Pixel(iX, iY);
    if(eBlend == EBlend::Add)
    {
        Dest.m_fR = std::min(1.0f, Dest.m_fR + Straight.m_fR * fA);
        Dest.m_fG = std::min(1.0f, Dest.m_fG + Straight.m_fG * fA);
        Dest.m_fB = std::min(1.0f, Dest.m_fB + Straight.m_fB * fA);
        Dest.m_fA = std::max(Dest.m_fA, fA);
        return;
    }
    float fKeep = 1.0f - fA;
    Dest.m_fR = Straight.m_fR * fA + Dest.m_fR * fKeep;
    Dest.m_fG = Straight.m_fG * fA + Dest.m_fG * fKeep;
    Dest.m_fB = Straight.m_fB * fA + Dest.m_fB * fKeep;
    Dest.m_fA = fA + Dest.m_fA * fKeep;
}

void CCanvas::Paint(const CMask& Mask, const CPaint& fnPaint, EBlend eBlend, float fOpacity)
{
    int iX0 = std::max(0, Mask.m_iLeft), iY0 = std::max(0, Mask.m_iTop);
    int iX1 = std::min(m_iWidth, Mask.m_iLeft + Mask.m_iWidth), iY1 = std::min(m_iHeight, Mask.m_iTop + Mask.m_iHeight);
    for(int iY = iY0; iY < iY1; ++iY)
        for(int iX = iX0; iX < iX1; ++iX)
        {
            float fCover =
                Mask.m_vCover[static_cast<std::size_t>(iY - Mask.m_iTop) * Mask.m_iWidth + (iX - Mask.m_iLeft)];
            if(fCover > 0.0f)
                BlendPixel(iX, iY, fnPaint(iX + 0.5f, iY + 0.5f), fCover * fOpacity, eBlend);
        }
}

void CCanvas::Draw(const CCanvas& Picture, int iLeft, int iTop, float fOpacity)
{
    for(int iY = 0; iY < Picture.Height(); ++iY)
        for(int iX = 0; iX < Picture.Width(); ++iX)
        {
            int iToX = iLeft + iX, iToY = iTop + iY;
            if(iToX < 0 || iToY < 0 || iToX >= m_iWidth || iToY >= m_iHeight)
                continue;
            const CRgba& Source = Picture.Pixel(iX, iY);
            float fKeep = 1.0f - Source.m_fA * fOpacity;
            CRgba& Dest = Pixel(iToX, iToY);
            Dest = {Source.m_fR * fOpacity + Dest.m_fR * fKeep, Source.m_fG * fOpacity + Dest.m_fG * fKeep,
                    Source.m_fB * fOpacity + Dest.m_fB * fKeep, Source.m_fA * fOpacity + Dest.m_fA * fKeep};
        }
}

std::vector<std::uint32_t> CCanvas::ToArgb() const
{
    std::vector<std::uint32_t> vOut(m_vPixels.size());
    for(std::size_t i = 0; i < m_vPixels.size(); ++i)
    {
        const CRgba& Colour = m_vPixels[i];
        std::uint32_t uiA = ToByte(Colour.m_fA);
        if(uiA == 0)
        {
            vOut[i] = 0;
            continue;
        }
        float fInv = 1.0f / Colour.m_fA;
        vOut[i] = (uiA << 24) | (ToByte(Colour.m_fR * fInv) << 16) | (ToByte(Colour.m_fG * fInv) << 8) |
                  ToByte(Colour.m_fB * fInv);
    }
    return vOut;
}

CCanvas Resized(const CCanvas& Source, int iWidth, int iHeight)
{
    CCanvas Out(iWidth, iHeight);
    float fSx = static_cast<float>(Source.Width()) / iWidth, fSy = static_cast<float>(Source.Height()) / iHeight;
    for(int iY = 0; iY < iHeight; ++iY)
        for(int iX = 0; iX < iWidth; ++iX)
        {
            int iAx = static_cast<int>(iX * fSx), iAy = static_cast<int>(iY * fSy);
            int iBx = std::max(iAx + 1, static_cast<int>((iX + 1) * fSx));
            int iBy = std::max(iAy + 1, static_cast<int>((iY + 1) * fSy));
            CRgba Sum;
            for(int iV = iAy; iV < iBy; ++iV)
                for(int iU = iAx; iU < iBx; ++iU)
                {
                    const CRgba& Colour = Source.Pixel(iU, iV);
                    Sum = {Sum.m_fR + Colour.m_fR, Sum.m_fG + Colour.m_fG, Sum.m_fB + Colour.m_fB,
                           Sum.m_fA + Colour.m_fA};
                }
            float fN = static_cast<float>((iBx - iAx) * (iBy - iAy));
            Out.Pixel(iX, iY) = {Sum.m_fR / fN, Sum.m_fG / fN, Sum.m_fB / fN, Sum.m_fA / fN};
        }
    return Out;
}
} // namespace art
