#pragma once
#include "math/Vector.h"

#include <cstdint>
#include <vector>

// A uniform open B-spline over the knots 0, 1, 2, ...: it starts near the first control point and ends near
// the last without touching either. Build turns the control polygon into raw samples (for the drawn line) and
// points evenly spaced along them (the rail that balls and the eye ride on), once, while a level loads.
class CBSpline
{
public:
    // Balls need at least this many control points under a curve; fewer leave the curve empty.
    static constexpr uint32_t MIN_CONTROL_POINTS = 4;
    // Each sample costs 2^degree evaluations; a level file asking for more is built at this degree.
    static constexpr uint32_t MAX_DEGREE = 12;
    // More halvings than this would only come from an absurdly long or broken polygon.
    static constexpr int MAX_SUBDIVISIONS = 20;

    uint32_t m_uiDegree = 0;
    uint32_t m_uiNumControlPoints = 0;
    uint32_t m_uiNumSamples = 0;
    uint32_t m_uiNumPoints = 0;
    uint32_t m_uiNumDistances = 0;
    std::vector<CPoint3> m_vControlPoints;
    std::vector<CPoint3> m_vSamples;
    std::vector<CPoint3> m_vPoints;
    std::vector<float> m_vDistances;

    void Build();
    CPoint3 Evaluate(float t, float k, float j) const;
    void SampleCurve();

    static void AccumulateDistances(const std::vector<CPoint3>& vPoints, std::vector<float>& vDistances);
    static void SubdivideDistances(std::vector<float>& vDistances, float fLimit);
    static void ResamplePoints(const std::vector<CPoint3>& vSamples, const std::vector<float>& vDistances,
                               std::vector<CPoint3>& vPoints);

private:
    uint32_t Degree() const;
};
