#include "Shapes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace art
{
namespace
{
float Length(float fX, float fY)
{
    return std::sqrt(fX * fX + fY * fY);
}

float SegmentDistance(CPoint p, CPoint a, CPoint b)
{
    float fDx = b.m_fX - a.m_fX, fDy = b.m_fY - a.m_fY;
    float fLen2 = fDx * fDx + fDy * fDy;
    float fT = fLen2 > 0.0f ? ((p.m_fX - a.m_fX) * fDx + (p.m_fY - a.m_fY) * fDy) / fLen2 : 0.0f;
    fT = std::min(1.0f, std::max(0.0f, fT));
    return Length(p.m_fX - (a.m_fX + fDx * fT), p.m_fY - (a.m_fY + fDy * fT));
}

CShape Grown(CShape Shape, float fBy)
{
    Shape.m_fLeft -= fBy;
    Shape.m_fTop -= fBy;
    Shape.m_fRight += fBy;
    Shape.m_fBottom += fBy;
    return Shape;
}

CShape BoundsOf(const std::vector<CPoint>& vPoints, float fMargin)
{
    CShape Result{1e9f, 1e9f, -1e9f, -1e9f, nullptr};
    for(const CPoint& p : vPoints)
    {
        Result.m_fLeft = std::min(Result.m_fLeft, p.m_fX);
        Result.m_fTop = std::min(Result.m_fTop, p.m_fY);
        Result.m_fRight = std::max(Result.m_fRight, p.m_fX);
        Result.m_fBottom = std::max(Result.m_fBottom, p.m_fY);
    }
    return Grown(Result, fMargin);
}
} // namespace

CShape Circle(float fCx, float fCy, float fRadius)
{
    return {fCx - fRadius, fCy - fRadius, fCx + fRadius, fCy + fRadius,
            [=](float fX, float fY) { return Length(fX - fCx, fY - fCy) - fRadius; }};
}

CShape Ellipse(float fCx, float fCy, float fRx, float fRy)
{
    // Scaled circle distance: exact on the axes, close enough elsewhere for the small eccentricities used.
    float fK = std::min(fRx, fRy);
    return {fCx - fRx, fCy - fRy, fCx + fRx, fCy + fRy,
            [=](float fX, float fY) { return (Length((fX - fCx) / fRx, (fY - fCy) / fRy) - 1.0f) * fK; }};
}

CShape RoundRect(float fLeft, float fTop, float fWidth, float fHeight, float fRadius)
{
    float fHx = fWidth / 2, fHy = fHeight / 2, fCx = fLeft + fHx, fCy = fTop + fHy;
    float fR = std::min(fRadius, std::min(fHx, fHy));
    return {fLeft, fTop, fLeft + fWidth, fTop + fHeight, [=](float fX, float fY) {
                float fQx = std::fabs(fX - fCx) - (fHx - fR), fQy = std::fabs(fY - fCy) - (fHy - fR);
                float fOutside = Length(std::max(fQx, 0.0f), std::max(fQy, 0.0f));
                return fOutside + std::min(std::max(fQx, fQy), 0.0f) - fR;
            }};
}

CShape Capsule(CPoint a, CPoint b, float fRadius)
{
    CShape Result = BoundsOf({a, b}, fRadius);
    Result.m_fnDistance = [=](float fX, float fY) { return SegmentDistance({fX, fY}, a, b) - fRadius; };
    return Result;
}

CShape Polygon(std::vector<CPoint> vCorners)
{
    CShape Result = BoundsOf(vCorners, 0.0f);
    Result.m_fnDistance = [vCorners = std::move(vCorners)](float fX, float fY) {
        float fBest = 1e9f;
        bool bInside = false;
        for(std::size_t i = 0, j = vCorners.size() - 1; i < vCorners.size(); j = i++)
        {
            const CPoint& a = vCorners[j];
            const CPoint& b = vCorners[i];
            fBest = std::min(fBest, SegmentDistance({fX, fY}, a, b));
            bool bCrosses = (b.m_fY > fY) != (a.m_fY > fY);
            if(bCrosses && fX < (a.m_fX - b.m_fX) * (fY - b.m_fY) / (a.m_fY - b.m_fY) + b.m_fX)
                bInside = !bInside;
        }
        return bInside ? -fBest : fBest;
    };
    return Result;
}

CShape Polyline(std::vector<CPoint> vPoints, float fWidth)
{
    CShape Result = BoundsOf(vPoints, fWidth / 2);
    Result.m_fnDistance = [vPoints = std::move(vPoints), fWidth](float fX, float fY) {
        float fBest = 1e9f;
        for(std::size_t i = 1; i < vPoints.size(); ++i)
            fBest = std::min(fBest, SegmentDistance({fX, fY}, vPoints[i - 1], vPoints[i]));
        if(vPoints.size() == 1)
            fBest = Length(fX - vPoints[0].m_fX, fY - vPoints[0].m_fY);
        return fBest - fWidth / 2;
    };
    return Result;
}

CShape Arc(float fCx, float fCy, float fRadius, float fA0, float fA1, float fWidth)
{
    std::vector<CPoint> vPoints;
    int iSteps = std::max(4, static_cast<int>(std::fabs(fA1 - fA0) * fRadius / 2.0f));
    for(int i = 0; i <= iSteps; ++i)
    {
        float fA = fA0 + (fA1 - fA0) * i / iSteps;
        vPoints.push_back({fCx + std::cos(fA) * fRadius, fCy + std::sin(fA) * fRadius});
    }
    return Polyline(std::move(vPoints), fWidth);
}

CShape Outline(const CShape& Shape, float fWidth)
{
    CShape Result = Grown(Shape, fWidth / 2);
    auto fnDistance = Shape.m_fnDistance;
    Result.m_fnDistance = [fnDistance, fWidth](float fX, float fY) {
        return std::fabs(fnDistance(fX, fY)) - fWidth / 2;
    };
    return Result;
}

CShape Inset(const CShape& Shape, float fAmount)
{
    CShape Result = fAmount < 0 ? Grown(Shape, -fAmount) : Shape;
    auto fnDistance = Shape.m_fnDistance;
    Result.m_fnDistance = [fnDistance, fAmount](float fX, float fY) { return fnDistance(fX, fY) + fAmount; };
    return Result;
}

CShape Unite(const CShape& a, const CShape& b)
{
    auto fnDistanceA = a.m_fnDistance, fnDistanceB = b.m_fnDistance;
    return {std::min(a.m_fLeft, b.m_fLeft), std::min(a.m_fTop, b.m_fTop), std::max(a.m_fRight, b.m_fRight),
            std::max(a.m_fBottom, b.m_fBottom), [fnDistanceA, fnDistanceB](float fX, float fY) {
                return std::min(fnDistanceA(fX, fY), fnDistanceB(fX, fY));
            }};
}

CShape Subtract(const CShape& From, const CShape& Cut)
{
    CShape Result = From;
    auto fnDistanceA = From.m_fnDistance, fnDistanceB = Cut.m_fnDistance;
    Result.m_fnDistance = [fnDistanceA, fnDistanceB](float fX, float fY) {
        return std::max(fnDistanceA(fX, fY), -fnDistanceB(fX, fY));
    };
    return Result;
}

CShape Intersect(const CShape& a, const CShape& b)
{
    auto fnDistanceA = a.m_fnDistance, fnDistanceB = b.m_fnDistance;
    return {std::max(a.m_fLeft, b.m_fLeft), std::max(a.m_fTop, b.m_fTop), std::min(a.m_fRight, b.m_fRight),
            std::min(a.m_fBottom, b.m_fBottom), [fnDistanceA, fnDistanceB](float fX, float fY) {
                return std::max(fnDistanceA(fX, fY), fnDistanceB(fX, fY));
            }};
}

CMask Rasterize(const CShape& Shape, float fSoftness)
{
    int iLeft = static_cast<int>(std::floor(Shape.m_fLeft - fSoftness - 1));
    int iTop = static_cast<int>(std::floor(Shape.m_fTop - fSoftness - 1));
    int iRight = static_cast<int>(std::ceil(Shape.m_fRight + fSoftness + 1));
    int iBottom = static_cast<int>(std::ceil(Shape.m_fBottom + fSoftness + 1));
    CMask Mask(iLeft, iTop, iRight - iLeft, iBottom - iTop);
    for(int iY = iTop; iY < iBottom; ++iY)
        for(int iX = iLeft; iX < iRight; ++iX)
        {
            float fD = Shape.m_fnDistance(iX + 0.5f, iY + 0.5f);
            Mask.Cell(iX, iY) = std::min(1.0f, std::max(0.0f, 0.5f - fD / fSoftness));
        }
    return Mask;
}

std::vector<CPoint> SmoothCurve(const std::vector<CPoint>& vThrough, int iSteps)
{
    std::vector<CPoint> vOut;
    auto At = [&vThrough](int i) {
        return vThrough[static_cast<std::size_t>(std::min(std::max(i, 0), static_cast<int>(vThrough.size()) - 1))];
    };
    for(int i = 0; i + 1 < static_cast<int>(vThrough.size()); ++i)
        for(int iStep = 0; iStep < iSteps; ++iStep)
        {
            float fT = static_cast<float>(iStep) / iSteps, fT2 = fT * fT, fT3 = fT2 * fT;
            CPoint a = At(i - 1), b = At(i), c = At(i + 1), d = At(i + 2);
            auto Blend = [&](float fPa, float fPb, float fPc, float fPd) {
                return 0.5f * (2 * fPb + (fPc - fPa) * fT + (2 * fPa - 5 * fPb + 4 * fPc - fPd) * fT2 +
                               (3 * fPb - fPa - 3 * fPc + fPd) * fT3);
            };
            vOut.push_back({Blend(a.m_fX, b.m_fX, c.m_fX, d.m_fX), Blend(a.m_fY, b.m_fY, c.m_fY, d.m_fY)});
        }
    vOut.push_back(vThrough.back());
    return vOut;
}

std::vector<CPoint> Spaced(const std::vector<CPoint>& vPath, float fSpacing)
{
    std::vector<CPoint> vOut;
    if(vPath.empty())
        return vOut;
    vOut.push_back(vPath.front());
    float fCarried = 0.0f;
    for(std::size_t i = 1; i < vPath.size(); ++i)
    {
        CPoint a = vPath[i - 1], b = vPath[i];
        float fSeg = Length(b.m_fX - a.m_fX, b.m_fY - a.m_fY);
        float fPos = fSpacing - fCarried;
        while(fPos <= fSeg)
        {
            float fT = fPos / fSeg;
            vOut.push_back({a.m_fX + (b.m_fX - a.m_fX) * fT, a.m_fY + (b.m_fY - a.m_fY) * fT});
            fPos += fSpacing;
        }
        fCarried = fSeg - (fPos - fSpacing);
    }
    return vOut;
}

void FillShape(CCanvas& Canvas, const CShape& Shape, const CPaint& fnPaint, float fSoftness)
{
    Canvas.Paint(Rasterize(Shape, fSoftness), fnPaint);
}
} // namespace art
