#include "math/Matrix.h"
#include "math/Vector.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

TEST(VectorMath, PointsAndVectorsCombineOnlyAsPlacesAndDisplacements)
{
    const CPoint3 p(1.5f, -2.0f, 3.25f), q(4.0f, 0.5f, -1.0f);
    const CVector3 d = q - p;
    static_assert(std::is_same_v<decltype(q - p), CVector3>, "two points give a vector");
    static_assert(std::is_same_v<decltype(p + d), CPoint3>, "a point and a vector give a point");
    static_assert(std::is_same_v<decltype(d + p), CPoint3>, "a vector and a point give a point");
    static_assert(std::is_same_v<decltype(p - d), CPoint3>, "a point less a vector is a point");
    EXPECT_EQ(p + d, q);
    EXPECT_EQ(d + p, q);
    EXPECT_EQ(q - d, p);
    EXPECT_EQ(p - p, CVector3(0.0f, 0.0f, 0.0f));
    CPoint3 r = p;
    EXPECT_EQ(r += d, q);
    EXPECT_EQ(-p, CPoint3(-1.5f, 2.0f, -3.25f));
    EXPECT_NE(p, q);
}

TEST(VectorMath, VectorArithmeticLengthAndProducts)
{
    CVector3 v(3.0f, 0.0f, 4.0f);
    EXPECT_EQ(v.Length(), 5.0f);
    v.Normalize();
    EXPECT_EQ(v, CVector3(0.6f, 0.0f, 0.8f));
    EXPECT_FLOAT_EQ(v.Length(), 1.0f);

    EXPECT_EQ(Cross(CVector3(1, 0, 0), CVector3(0, 1, 0)), CVector3(0, 0, 1));
    EXPECT_EQ(Cross(CVector4(0, 1, 0, 7), CVector4(0, 0, 1, 9)), CVector4(1, 0, 0, 0)) << "w of the result is 0";
    EXPECT_EQ(Dot(CVector3(1, 2, 3), CVector3(4, -5, 6)), 12.0f);
    EXPECT_EQ(CVector4(1, 1, 1, 1).Length(), 2.0f) << "w counts in the length";

    const CVector3 u(1.0f, 2.0f, 3.0f);
    EXPECT_EQ(u * 2.0f, CVector3(2, 4, 6));
    EXPECT_EQ(2.0f * u, u * 2.0f);
    EXPECT_EQ(u / 2.0f, CVector3(0.5f, 1.0f, 1.5f));
    EXPECT_EQ(u + u - u, u);
    EXPECT_EQ(-u, CVector3(-1, -2, -3));
    CVector3 w = u;
    EXPECT_EQ((w *= 4.0f) /= 2.0f, u * 2.0f);

    CVector3 Zero(0, 0, 0);
    Zero.Normalize();
    EXPECT_TRUE(std::isnan(Zero.x())) << "a zero vector has no direction";

    // The same template in double precision keeps the digits a float loses.
    EXPECT_NE(CVector2d(0.1, 0.2).Length(), static_cast<double>(CVector2(0.1f, 0.2f).Length()));
}

TEST(VectorMath, MatricesMultiplyInverseAndTranspose)
{
    const float c = std::cos(0.7f), s = std::sin(0.7f);
    for(const CMatrix3& A : {CMatrix3(c, -s, 0, s, c, 0, 0, 0, 1), CMatrix3(2, 0, 0, 0, 4, 0, 0, 0, 0.5f),
                             CMatrix3(1, 2, 3, 0, 1, 4, 5, 6, 0)})
    {
        CMatrix3 Inv = A;
        Inv.Inverse();
        const CMatrix3 I = Inv * A;
        for(int r = 0; r < 3; r++)
        {
            for(int k = 0; k < 3; k++)
                EXPECT_NEAR(I.At(r, k), r == k ? 1.0f : 0.0f, 1e-5f);
        }
    }
    EXPECT_EQ(CMatrix3(1, 2, 3, 0, 1, 4, 5, 6, 0).Determinant(), 1.0f);

    CMatrix2 B(4, 7, 2, 6);
    EXPECT_EQ(B.Determinant(), 10.0f);
    B.Inverse();
    EXPECT_EQ(B, CMatrix2(0.6f, -0.7f, -0.2f, 0.4f));

    CMatrix3 T(1, 2, 3, 4, 5, 6, 7, 8, 9);
    T.Transpose();
    EXPECT_EQ(T, CMatrix3(1, 4, 7, 2, 5, 8, 3, 6, 9));

    // A vector is a column on the right; a point and a vector with the same numbers come out the same.
    const CMatrix3 M(1, 2, 3, 4, 5, 6, 7, 8, 9);
    static_assert(std::is_same_v<decltype(M * CPoint3()), CPoint3>, "a matrix moves a point to a point");
    static_assert(std::is_same_v<decltype(M * CVector3()), CVector3>, "and a vector to a vector");
    EXPECT_EQ(M * CVector3(1, 0, -1), CVector3(-2, -2, -2));
    EXPECT_EQ(M * CPoint3(1, 0, -1), CPoint3(-2, -2, -2));
    EXPECT_EQ(M * T, CMatrix3(14, 32, 50, 32, 77, 122, 50, 122, 194));
    EXPECT_EQ((M + M) / 2.0f, M);
    EXPECT_EQ(M * 2.0f - M, M);

    CMatrix4 Id4(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1);
    CMatrix4 Any4(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16);
    Id4 *= Any4;
    EXPECT_EQ(Id4, Any4);
}
