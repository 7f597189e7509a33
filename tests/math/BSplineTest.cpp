#include "math/BSpline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <cstring>

namespace
{
uint32_t Bits(float f)
{
    uint32_t u;
    std::memcpy(&u, &f, sizeof(u));
    return u;
}

CBSpline MakeCurve(uint32_t uiDegree, std::vector<CPoint3> vPolygon)
{
    CBSpline Spline;
    Spline.m_uiDegree = uiDegree;
    Spline.m_vControlPoints = std::move(vPolygon);
    Spline.Build();
    return Spline;
}

std::vector<CPoint3> Line(int n, float fStep = 1.0f)
{
    std::vector<CPoint3> v;
    for(int i = 0; i < n; i++)
        v.emplace_back(i * fStep, 0.0f, 0.0f);
    return v;
}

// An independent scalar form of de Boor's recurrence, one coordinate at a time, to hold the class to the bit.
float RefEvaluate(const std::vector<float>& c, int p, float t, float k, float j)
{
    if(k == 0.0f)
        return static_cast<size_t>(j) < c.size() ? c[static_cast<size_t>(j)] : 0.0f;
    const float a = static_cast<float>(p) + j - k + 1.0f;
    const float w1 = (t - j) / (a - j), w2 = (a - t) / (a - j);
    float fSum = 0.0f + w1 * RefEvaluate(c, p, t, k - 1.0f, j);
    return fSum + w2 * RefEvaluate(c, p, t, k - 1.0f, j - 1.0f);
}

std::vector<CPoint3> RefSamples(const std::vector<CPoint3>& vPolygon, int p)
{
    std::vector<float> aCoords[3];
    for(const CPoint3& q : vPolygon)
    {
        for(int i = 0; i < 3; i++)
            aCoords[i].push_back(q[i]);
    }
    std::vector<CPoint3> vSamples;
    const float fStep = 0.1f;
    for(float t = static_cast<float>(p); t <= static_cast<float>(vPolygon.size()); t += fStep)
    {
        CPoint3 s;
        for(int i = 0; i < 3; i++)
            s[i] = RefEvaluate(aCoords[i], p, t, static_cast<float>(p), std::floor(t));
        vSamples.push_back(s);
    }
    return vSamples;
}
} // namespace

TEST(BSpline, SampleCountsFollowTheAccumulatedParameter)
{
    // A straight, evenly spaced polygon makes the cubic run at x = t - 2, so each sample shows its parameter.
    const CBSpline Four = MakeCurve(3, Line(4));
    ASSERT_EQ(Four.m_uiNumSamples, 11u);
    EXPECT_EQ(Four.m_vSamples.front(), CPoint3(1.0f, 0.0f, 0.0f)) << "only the middle of the polygon is covered";
    EXPECT_LT(Four.m_vSamples.back().x(), 2.0f);
    EXPECT_NEAR(Four.m_vSamples.back().x(), 1.999999f, 2e-6f);

    const CBSpline Ten = MakeCurve(3, Line(10));
    ASSERT_EQ(Ten.m_uiNumSamples, 70u) << "the parameter stops at 9.900002, short of 10";
    EXPECT_NEAR(Ten.m_vSamples.back().x(), 7.900002f, 2e-6f);

    // With n = 9 and degree 4 the parameter lands exactly on 9.0, where point number 9 would be needed.
    const CBSpline Nine = MakeCurve(4, Line(9));
    ASSERT_EQ(Nine.m_uiNumSamples, 51u);
    EXPECT_EQ(Nine.m_vSamples.back(), CPoint3(6.5f, 0.0f, 0.0f));

    const CPoint3 P0(0, 0, 0), P1(1, 2, 0), P2(3, 3, 1);
    const CBSpline Bent = MakeCurve(3, {P0, P1, P2, CPoint3(5, 0, 2), CPoint3(6, -1, 0)});
    const CPoint3 Knot = P0 + (CVector3(P1[0] * 4 + P2[0], P1[1] * 4 + P2[1], P1[2] * 4 + P2[2]) / 6.0f);
    EXPECT_NEAR(Bent.m_vSamples.front().x(), Knot.x(), 1e-6f) << "(P0 + 4 P1 + P2) / 6 at the first knot";
    EXPECT_NEAR(Bent.m_vSamples.front().y(), Knot.y(), 1e-6f);
    EXPECT_NEAR(Bent.m_vSamples.front().z(), Knot.z(), 1e-6f);

    EXPECT_EQ(MakeCurve(3, Line(3)).m_vPoints.size(), 0u) << "three control points give no curve";
    EXPECT_EQ(MakeCurve(1, Line(3)).m_vSamples.size(), 0u) << "whatever the degree";
}

TEST(BSpline, SamplesAreExactToTheBitOnArbitraryPolygons)
{
    std::srand(1234);
    for(int iCase = 0; iCase < 40; iCase++)
    {
        const int p = 1 + iCase % 6;
        const int n = p + 1 + std::rand() % 12 + (p < 3 ? 3 : 0);
        std::vector<CPoint3> vPolygon;
        for(int i = 0; i < n; i++)
            vPolygon.emplace_back((std::rand() % 20001 - 10000) / 97.0f, (std::rand() % 2001 - 1000) / 13.0f,
                                  (std::rand() % 20001 - 10000) / 31.0f);
        const CBSpline Spline = MakeCurve(static_cast<uint32_t>(p), vPolygon);
        const std::vector<CPoint3> vRef = RefSamples(vPolygon, p);
        ASSERT_EQ(Spline.m_vSamples.size(), vRef.size()) << "degree " << p << ", " << n << " points";
        for(size_t i = 0; i < vRef.size(); i++)
        {
            for(int c = 0; c < 3; c++)
                ASSERT_EQ(Bits(Spline.m_vSamples[i][c]), Bits(vRef[i][c])) << "sample " << i << " of case " << iCase;
        }
    }
}

TEST(BSpline, EvenPointsAreAPowerOfTwoGridOverTheSamples)
{
    std::vector<float> vDistances = {0.0f, 100.0f};
    CBSpline::SubdivideDistances(vDistances, 0.2f);
    ASSERT_EQ(vDistances.size(), 513u);
    EXPECT_EQ(vDistances[1] - vDistances[0], 0.1953125f);
    EXPECT_EQ(vDistances.back(), 100.0f);

    std::vector<float> vShort = {0.0f, 0.2f};
    CBSpline::SubdivideDistances(vShort, 0.2f);
    EXPECT_EQ(vShort.size(), 2u) << "a total of at most 0.2 stays one interval";

    std::srand(99);
    for(int iCase = 0; iCase < 20; iCase++)
    {
        std::vector<CPoint3> vPolygon;
        for(int i = 0; i < 6 + iCase; i++)
            vPolygon.emplace_back(std::rand() % 41 - 20, std::rand() % 21 - 10, std::rand() % 41 - 20);
        const CBSpline Spline = MakeCurve(3, vPolygon);
        std::vector<float> vSampleDistances;
        CBSpline::AccumulateDistances(Spline.m_vSamples, vSampleDistances);
        const float fTotal = vSampleDistances.back();
        size_t Intervals = 1;
        while(fTotal / static_cast<float>(Intervals) > 0.2f)
            Intervals *= 2;
        ASSERT_EQ(Spline.m_vPoints.size(), Intervals + 1) << "case " << iCase;
        EXPECT_EQ(Spline.m_uiNumPoints, Spline.m_vPoints.size());
        EXPECT_EQ(Spline.m_vDistances.size(), Spline.m_vPoints.size());
        EXPECT_EQ(Spline.m_vDistances[0], 0.0f);
        EXPECT_EQ(Spline.m_vPoints.front(), Spline.m_vSamples.front());
        EXPECT_EQ(Spline.m_vPoints.back(), Spline.m_vSamples.back());
        for(size_t i = 1; i + 1 < Spline.m_vPoints.size(); i++)
            ASSERT_LE((Spline.m_vPoints[i] - Spline.m_vPoints[i - 1]).Length(), 0.2f + 1e-4f);
    }
}

TEST(BSpline, ResamplingSkipsChordsOfZeroLength)
{
    // A long run of equal control points gives equal samples, whose chords have no direction.
    std::vector<CPoint3> vPolygon = Line(4, 3.0f);
    vPolygon.insert(vPolygon.begin() + 2, 6, CPoint3(3.0f, 0.0f, 0.0f));
    const CBSpline Spline = MakeCurve(3, vPolygon);
    bool bRepeated = false;
    for(size_t i = 1; i < Spline.m_vSamples.size(); i++)
        bRepeated |= Spline.m_vSamples[i] == Spline.m_vSamples[i - 1];
    ASSERT_TRUE(bRepeated);
    for(const CPoint3& p : Spline.m_vPoints)
        ASSERT_TRUE(std::isfinite(p.x()) && std::isfinite(p.y()) && std::isfinite(p.z()));

    const CBSpline Still = MakeCurve(3, std::vector<CPoint3>(6, CPoint3(1, 2, 3)));
    ASSERT_EQ(Still.m_vPoints.size(), 1u) << "a polygon of one place gives the last sample alone";
    EXPECT_EQ(Still.m_vPoints[0], CPoint3(1, 2, 3));
}

TEST(BSpline, HostilePolygonsStayBounded)
{
    const CBSpline Huge = MakeCurve(
        3, {CPoint3(0, 0, 0), CPoint3(3e38f, 0, 0), CPoint3(-3e38f, 0, 0), CPoint3(3e38f, 0, 0), CPoint3(0, 0, 0)});
    EXPECT_TRUE(Huge.m_vPoints.empty()) << "a curve whose length overflows lays no rail";

    const CBSpline Long = MakeCurve(3, Line(8, 1e6f));
    EXPECT_EQ(Long.m_vPoints.size(), (1u << CBSpline::MAX_SUBDIVISIONS) + 1) << "the grid stops at its cap";

    const CBSpline Steep = MakeCurve(40, Line(44)); // would cost 2^40 a sample uncapped
    EXPECT_EQ(Steep.m_uiDegree, 40u);
    EXPECT_NEAR(Steep.m_vSamples.front().x(), 5.5f, 1e-5f) << "built at the capped degree";
    EXPECT_GE(Steep.m_uiNumSamples, 300u);

    EXPECT_TRUE(MakeCurve(9, Line(6)).m_vPoints.empty()) << "a degree above the polygon gives no samples";
    const CBSpline Flat = MakeCurve(0, Line(5));
    EXPECT_EQ(Flat.m_vSamples.back(), CPoint3(4, 0, 0)) << "degree 0 never reads past the last point";
}
