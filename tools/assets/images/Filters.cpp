#include "Filters.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace art
{
namespace
{
// One box pass along a line of iCount values nStride apart, half-width k, zero outside.
void BoxLine(float* pData, int iCount, std::ptrdiff_t nStride, int k, std::vector<float>& vScratch)
{
    vScratch.assign(static_cast<std::size_t>(iCount), 0.0f);
    float fSum = 0.0f, fNorm = 1.0f / (2 * k + 1);
    for(int i = -k; i <= k; ++i)
        if(i >= 0 && i < iCount)
            fSum += pData[i * nStride];
    for(int i = 0; i < iCount; ++i)
    {
        vScratch[static_cast<std::size_t>(i)] = fSum * fNorm;
        int iOut = i - k, iIn = i + k + 1;
        if(iOut >= 0)
            fSum -= pData[iOut * nStride];
        if(iIn < iCount)
            fSum += pData[iIn * nStride];
    }
    for(int i = 0; i < iCount; ++i)
        pData[i * nStride] = vScratch[static_cast<std::size_t>(i)];
}

CMask Padded(const CMask& Mask, int iPad)
{
    CMask Out(Mask.m_iLeft - iPad, Mask.m_iTop - iPad, Mask.m_iWidth + 2 * iPad, Mask.m_iHeight + 2 * iPad);
    for(int iY = 0; iY < Mask.m_iHeight; ++iY)
        for(int iX = 0; iX < Mask.m_iWidth; ++iX)
            Out.Cell(Mask.m_iLeft + iX, Mask.m_iTop + iY) =
                Mask.m_vCover[static_cast<std::size_t>(iY) * Mask.m_iWidth + iX];
    return Out;
}

float Fade(float fT)
{
    return fT * fT * (3.0f - 2.0f * fT);
}
} // namespace

CMask Blurred(const CMask& Mask, float fRadius)
{
    int k = std::max(1, static_cast<int>(std::lround(fRadius / 2.0f)));
    CMask Out = Padded(Mask, 3 * k + 1);
    std::vector<float> vScratch;
    for(int iPass = 0; iPass < 3; ++iPass)
    {
        for(int iY = 0; iY < Out.m_iHeight; ++iY)
            BoxLine(&Out.m_vCover[static_cast<std::size_t>(iY) * Out.m_iWidth], Out.m_iWidth, 1, k, vScratch);
        for(int iX = 0; iX < Out.m_iWidth; ++iX)
            BoxLine(&Out.m_vCover[static_cast<std::size_t>(iX)], Out.m_iHeight, Out.m_iWidth, k, vScratch);
    }
    return Out;
}

CMask Dilated(const CMask& Mask, float fRadius)
{
    int iR = static_cast<int>(std::ceil(fRadius));
    CMask Source = Padded(Mask, iR + 1), Out = Source;
    for(int iY = Source.m_iTop; iY < Source.m_iTop + Source.m_iHeight; ++iY)
        for(int iX = Source.m_iLeft; iX < Source.m_iLeft + Source.m_iWidth; ++iX)
        {
            float fBest = 0.0f;
            for(int iDy = -iR; iDy <= iR; ++iDy)
                for(int iDx = -iR; iDx <= iR; ++iDx)
                {
                    float fReach =
                        std::min(1.0f, std::max(0.0f, fRadius + 0.5f - std::sqrt(float(iDx * iDx + iDy * iDy))));
                    fBest = std::max(fBest, Source.At(iX + iDx, iY + iDy) * fReach);
                }
            Out.Cell(iX, iY) = fBest;
        }
    return Out;
}

CMask Shifted(const CMask& Mask, int iDx, int iDy)
{
    CMask Out = Mask;
    Out.m_iLeft += iDx;
    Out.m_iTop += iDy;
    return Out;
}

CMask ScaledCover(const CMask& Mask, float fFactor)
{
    CMask Out = Mask;
    for(float& fCover : Out.m_vCover)
        fCover = std::min(1.0f, fCover * fFactor);
    return Out;
}

CMask Multiplied(const CMask& a, const CMask& b)
{
    CMask Out = a;
    for(int iY = a.m_iTop; iY < a.m_iTop + a.m_iHeight; ++iY)
        for(int iX = a.m_iLeft; iX < a.m_iLeft + a.m_iWidth; ++iX)
            Out.Cell(iX, iY) *= b.At(iX, iY);
    return Out;
}

CMask United(const CMask& a, const CMask& b)
{
    int iLeft = std::min(a.m_iLeft, b.m_iLeft), iTop = std::min(a.m_iTop, b.m_iTop);
    int iRight = std::max(a.m_iLeft + a.m_iWidth, b.m_iLeft + b.m_iWidth),
        iBottom = std::max(a.m_iTop + a.m_iHeight, b.m_iTop + b.m_iHeight);
    CMask Out(iLeft, iTop, iRight - iLeft, iBottom - iTop);
    for(int iY = iTop; iY < iBottom; ++iY)
        for(int iX = iLeft; iX < iRight; ++iX)
            Out.Cell(iX, iY) = std::max(a.At(iX, iY), b.At(iX, iY));
    return Out;
}

CMask FullMask(int iWidth, int iHeight)
{
    CMask Mask(0, 0, iWidth, iHeight);
    std::fill(Mask.m_vCover.begin(), Mask.m_vCover.end(), 1.0f);
    return Mask;
}

CNoise::CNoise(std::uint32_t uiSeed) : m_uiSeed(uiSeed) {}

float CNoise::Lattice(int iX, int iY) const
{
    std::uint32_t uiHash = static_cast<std::uint32_t>(iX) * 374761393u + static_cast<std::uint32_t>(iY) * 668265263u +
                           m_uiSeed * 2246822519u;
    uiHash = (uiHash ^ (uiHash >> 13)) * 1274126177u;
    uiHash ^= uiHash >> 16;
    return static_cast<float>(uiHash & 0xffffff) / 16777215.0f;
}

float CNoise::At(float fX, float fY) const
{
    float fFloorX = std::floor(fX), fFloorY = std::floor(fY);
    int iX = static_cast<int>(fFloorX), iY = static_cast<int>(fFloorY);
    float fU = Fade(fX - fFloorX), fV = Fade(fY - fFloorY);
    float fTop = Lattice(iX, iY) + (Lattice(iX + 1, iY) - Lattice(iX, iY)) * fU;
    float fBottom = Lattice(iX, iY + 1) + (Lattice(iX + 1, iY + 1) - Lattice(iX, iY + 1)) * fU;
    return fTop + (fBottom - fTop) * fV;
}

float CNoise::Fractal(float fX, float fY, float fScale, int iOctaves) const
{
    float fSum = 0.0f, fWeight = 0.5f, fTotal = 0.0f, fFrequency = 1.0f / fScale;
    for(int i = 0; i < iOctaves; ++i)
    {
        fSum += At(fX * fFrequency + i * 17.31f, fY * fFrequency - i * 9.17f) * fWeight;
        fTotal += fWeight;
        fWeight *= 0.5f;
        fFrequency *= 2.0f;
    }
    return fSum / fTotal;
}
} // namespace art
