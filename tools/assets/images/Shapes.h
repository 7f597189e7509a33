// Shapes as signed distance fields: negative inside, positive outside, in pixels. A field gives clean
// antialiased edges at any size, and strokes, insets and unions come from simple arithmetic on it.
#pragma once

#include "Canvas.h"

#include <functional>
#include <vector>

namespace art
{
struct CPoint
{
    float m_fX = 0, m_fY = 0;
};

struct CShape
{
    float m_fLeft = 0, m_fTop = 0, m_fRight = 0, m_fBottom = 0; // nothing of the shape lies outside
    std::function<float(float fX, float fY)> m_fnDistance;
};

// Angles of arcs are in radians.
constexpr float PI = 3.14159265f;

CShape Circle(float fCx, float fCy, float fRadius);
CShape Ellipse(float fCx, float fCy, float fRx, float fRy);
CShape RoundRect(float fLeft, float fTop, float fWidth, float fHeight, float fRadius);
CShape Capsule(CPoint a, CPoint b, float fRadius);
CShape Polygon(std::vector<CPoint> vCorners);
CShape Polyline(std::vector<CPoint> vPoints, float fWidth); // a stroke with round joins and caps
// An arc of the circle, from angle fA0 to fA1 in radians (clockwise on screen, 0 pointing right).
CShape Arc(float fCx, float fCy, float fRadius, float fA0, float fA1, float fWidth);

CShape Outline(const CShape& Shape, float fWidth); // a band of that width centred on the edge
CShape Inset(const CShape& Shape, float fAmount);  // grows inwards for positive amounts
CShape Unite(const CShape& a, const CShape& b);
CShape Subtract(const CShape& From, const CShape& Cut);
CShape Intersect(const CShape& a, const CShape& b);

// Coverage of the shape; fSoftness widens the edge ramp (1 is a crisp antialiased edge).
CMask Rasterize(const CShape& Shape, float fSoftness = 1.0f);

// Points of a curve through the given points (Catmull-Rom), iSteps points per span.
std::vector<CPoint> SmoothCurve(const std::vector<CPoint>& vThrough, int iSteps);
// Points spaced evenly by arc length along a polyline.
std::vector<CPoint> Spaced(const std::vector<CPoint>& vPath, float fSpacing);

// Rasterise and paint in one step.
void FillShape(CCanvas& Canvas, const CShape& Shape, const CPaint& fnPaint, float fSoftness = 1.0f);
} // namespace art
