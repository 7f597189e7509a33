#pragma once
#include "math/Vector.h"

// Square matrices stored row after row. A vector or point on a matrix is a column on the right.
template <int N, typename T> class TMatrix : public TElements<N * N, T, TMatrix<N, T>>
{
    static_assert(N >= 2 && N <= 4, "matrices are 2x2 to 4x4");

public:
    using TElements<N * N, T, TMatrix>::TElements;
    using TElements<N * N, T, TMatrix>::m_aElem;

    T& At(int Row, int Col) { return m_aElem[Row * N + Col]; }
    T At(int Row, int Col) const { return m_aElem[Row * N + Col]; }

    TMatrix operator+(const TMatrix& B) const
    {
        return ElementWise<TMatrix>(*this, B, [](T a, T b) { return static_cast<T>(a + b); });
    }
    TMatrix operator-(const TMatrix& B) const
    {
        return ElementWise<TMatrix>(*this, B, [](T a, T b) { return static_cast<T>(a - b); });
    }
    TMatrix operator*(T s) const
    {
        return ElementWise<TMatrix>(*this, *this, [s](T a, T) { return static_cast<T>(a * s); });
    }
    TMatrix operator/(T s) const
    {
        return ElementWise<TMatrix>(*this, *this, [s](T a, T) { return static_cast<T>(a / s); });
    }
    TMatrix& operator+=(const TMatrix& B) { return *this = *this + B; }
    TMatrix& operator-=(const TMatrix& B) { return *this = *this - B; }
    TMatrix& operator*=(T s) { return *this = *this * s; }
    TMatrix& operator/=(T s) { return *this = *this / s; }
    TMatrix& operator*=(const TMatrix& B) { return *this = *this * B; }

    TMatrix operator*(const TMatrix& B) const
    {
        TMatrix R;
        for(int i = 0; i < N; i++)
        {
            for(int j = 0; j < N; j++)
                R.At(i, j) = RowTimes(i, [&B, j](int k) { return B.At(k, j); });
        }
        return R;
    }
    TVector<N, T> operator*(const TVector<N, T>& v) const { return Apply<TVector<N, T>>(v); }
    TPoint<N, T> operator*(const TPoint<N, T>& p) const { return Apply<TPoint<N, T>>(p); }

    T Determinant() const
    {
        static_assert(N == 2 || N == 3, "determinants are for 2x2 and 3x3 matrices");
        const T* a = m_aElem;
        if constexpr(N == 2)
            return a[0] * a[3] - a[1] * a[2];
        else // the rule of Sarrus
            return a[0] * a[4] * a[8] + a[1] * a[5] * a[6] + a[2] * a[3] * a[7] - a[2] * a[4] * a[6] -
                   a[1] * a[3] * a[8] - a[0] * a[5] * a[7];
    }

    TMatrix& Transpose()
    {
        for(int i = 0; i < N; i++)
        {
            for(int j = i + 1; j < N; j++)
            {
                T Swap = At(i, j);
                At(i, j) = At(j, i);
                At(j, i) = Swap;
            }
        }
        return *this;
    }

    // The adjugate over the determinant; a singular matrix gives infinities, as there is no test for zero.
    TMatrix& Inverse()
    {
        static_assert(N == 2 || N == 3, "inverses are for 2x2 and 3x3 matrices");
        const T Scale = T(1) / Determinant();
        const T* a = m_aElem;
        TMatrix Adj;
        if constexpr(N == 2)
            Adj = TMatrix(a[3], -a[1], -a[2], a[0]);
        else
        {
            // The order of the elements inside each 2x2 determinant carries the cofactor's sign.
            auto D = [a](int p, int q, int r, int s) { return static_cast<T>(a[p] * a[s] - a[q] * a[r]); };
            Adj = TMatrix(D(4, 5, 7, 8), D(2, 1, 8, 7), D(1, 2, 4, 5), D(5, 3, 8, 6), D(0, 2, 6, 8), D(2, 0, 5, 3),
                          D(3, 4, 6, 7), D(1, 0, 7, 6), D(0, 1, 3, 4));
        }
        return *this = Adj * Scale;
    }

private:
    template <typename F> T RowTimes(int Row, F Column) const
    {
        T Sum = static_cast<T>(At(Row, 0) * Column(0));
        for(int k = 1; k < N; k++)
            Sum = static_cast<T>(Sum + static_cast<T>(At(Row, k) * Column(k)));
        return Sum;
    }
    template <typename R, typename V> R Apply(const V& v) const
    {
        R Result;
        for(int i = 0; i < N; i++)
            Result[i] = RowTimes(i, [&v](int k) { return v[k]; });
        return Result;
    }
};

using CMatrix2 = TMatrix<2, float>;
using CMatrix3 = TMatrix<3, float>;
using CMatrix4 = TMatrix<4, float>;
using CMatrix2d = TMatrix<2, double>;
using CMatrix3d = TMatrix<3, double>;
using CMatrix4d = TMatrix<4, double>;
