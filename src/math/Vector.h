#pragma once
#include <cmath>
#include <cstddef>
#include <iterator>
#include <type_traits>

// Places and displacements are different types: two points give a vector, a point and a vector give a point,
// and only vectors have a length. All arithmetic is element by element, each result rounded to T.

template <int N, typename T> class TVector;

// The elements of a point, vector or matrix (D, the class built on it), and what all three do alike: index,
// compare exactly, negate. Comparison takes two of the same class only, so a point never equals a vector.
template <int Count, typename T, typename D> class TElements
{
public:
    T m_aElem[Count];

    TElements() : m_aElem{} {}
    template <typename... A, typename = std::enable_if_t<sizeof...(A) == Count>>
    explicit TElements(A... Elems) : m_aElem{static_cast<T>(Elems)...}
    {
    }

    T& operator[](int i) { return m_aElem[i]; }
    const T& operator[](int i) const { return m_aElem[i]; }
    T& x() { return m_aElem[0]; }
    T& y() { return m_aElem[1]; }
    T& z()
    {
        static_assert(Count >= 3, "no z in two dimensions");
        return m_aElem[2];
    }
    T& w()
    {
        static_assert(Count >= 4, "w exists in four dimensions only");
        return m_aElem[3];
    }
    T x() const { return m_aElem[0]; }
    T y() const { return m_aElem[1]; }
    T z() const
    {
        static_assert(Count >= 3, "no z in two dimensions");
        return m_aElem[2];
    }
    T w() const
    {
        static_assert(Count >= 4, "w exists in four dimensions only");
        return m_aElem[3];
    }

    bool operator==(const D& Other) const
    {
        for(int i = 0; i < Count; i++)
        {
            if(m_aElem[i] != Other.m_aElem[i])
                return false;
        }
        return true;
    }
    bool operator!=(const D& Other) const { return !(*this == Other); }
    D operator-() const
    {
        D Result;
        for(int i = 0; i < Count; i++)
            Result.m_aElem[i] = -m_aElem[i];
        return Result;
    }
};

// Builds a new R whose element i is Op(a[i], b[i]).
template <typename R, typename A, typename B, typename Op> R ElementWise(const A& a, const B& b, Op Fn)
{
    R Result;
    for(size_t i = 0; i < std::size(Result.m_aElem); i++)
        Result.m_aElem[i] = Fn(a.m_aElem[i], b.m_aElem[i]);
    return Result;
}

template <int N, typename T> class TPoint : public TElements<N, T, TPoint<N, T>>
{
    static_assert(N >= 2 && N <= 4, "points have two to four elements");

public:
    using TElements<N, T, TPoint>::TElements;

    TPoint& operator+=(const TVector<N, T>& v) { return *this = *this + v; }
    TPoint& operator-=(const TVector<N, T>& v) { return *this = *this - v; }
};

template <int N, typename T> class TVector : public TElements<N, T, TVector<N, T>>
{
    static_assert(N >= 2 && N <= 4, "vectors have two to four elements");

public:
    using TElements<N, T, TVector>::TElements;

    TVector& operator+=(const TVector& v) { return *this = *this + v; }
    TVector& operator-=(const TVector& v) { return *this = *this - v; }
    TVector& operator*=(T s) { return *this = *this * s; }
    TVector& operator/=(T s) { return *this = *this / s; }

    T Length() const { return std::sqrt(Dot(*this, *this)); }
    // No test for zero: a zero vector turns into not-a-number elements, and the caller must not use them.
    TVector& Normalize() { return *this /= Length(); }
};

template <int N, typename T> TPoint<N, T> operator+(const TPoint<N, T>& p, const TVector<N, T>& v)
{
    return ElementWise<TPoint<N, T>>(p, v, [](T a, T b) { return static_cast<T>(a + b); });
}
template <int N, typename T> TPoint<N, T> operator+(const TVector<N, T>& v, const TPoint<N, T>& p)
{
    return ElementWise<TPoint<N, T>>(v, p, [](T a, T b) { return static_cast<T>(a + b); });
}
template <int N, typename T> TVector<N, T> operator-(const TPoint<N, T>& p, const TPoint<N, T>& q)
{
    return ElementWise<TVector<N, T>>(p, q, [](T a, T b) { return static_cast<T>(a - b); });
}
template <int N, typename T> TPoint<N, T> operator-(const TPoint<N, T>& p, const TVector<N, T>& v)
{
    return ElementWise<TPoint<N, T>>(p, v, [](T a, T b) { return static_cast<T>(a - b); });
}
template <int N, typename T> TVector<N, T> operator+(const TVector<N, T>& u, const TVector<N, T>& v)
{
    return ElementWise<TVector<N, T>>(u, v, [](T a, T b) { return static_cast<T>(a + b); });
}
template <int N, typename T> TVector<N, T> operator-(const TVector<N, T>& u, const TVector<N, T>& v)
{
    return ElementWise<TVector<N, T>>(u, v, [](T a, T b) { return static_cast<T>(a - b); });
}
template <int N, typename T> TVector<N, T> operator*(const TVector<N, T>& v, T s)
{
    return ElementWise<TVector<N, T>>(v, v, [s](T a, T) { return static_cast<T>(a * s); });
}
template <int N, typename T> TVector<N, T> operator*(T s, const TVector<N, T>& v)
{
    return ElementWise<TVector<N, T>>(v, v, [s](T a, T) { return static_cast<T>(s * a); });
}
template <int N, typename T> TVector<N, T> operator/(const TVector<N, T>& v, T s)
{
    return ElementWise<TVector<N, T>>(v, v, [s](T a, T) { return static_cast<T>(a / s); });
}

template <int N, typename T> T Dot(const TVector<N, T>& u, const TVector<N, T>& v)
{
    T Sum = u[0] * v[0];
    for(int i = 1; i < N; i++)
        Sum = static_cast<T>(Sum + static_cast<T>(u[i] * v[i]));
    return Sum;
}

// In four dimensions the product covers x, y and z, and w of the result is 0.
template <int N, typename T> TVector<N, T> Cross(const TVector<N, T>& u, const TVector<N, T>& v)
{
    static_assert(N == 3 || N == 4, "the cross product needs three or four dimensions");
    TVector<N, T> Result;
    Result[0] = static_cast<T>(u[1] * v[2] - u[2] * v[1]);
    Result[1] = static_cast<T>(u[2] * v[0] - u[0] * v[2]);
    Result[2] = static_cast<T>(u[0] * v[1] - u[1] * v[0]);
    return Result;
}

using CPoint2 = TPoint<2, float>;
using CPoint3 = TPoint<3, float>;
using CPoint4 = TPoint<4, float>;
using CVector2 = TVector<2, float>;
using CVector3 = TVector<3, float>;
using CVector4 = TVector<4, float>;
using CPoint2d = TPoint<2, double>;
using CPoint3d = TPoint<3, double>;
using CPoint4d = TPoint<4, double>;
using CVector2d = TVector<2, double>;
using CVector3d = TVector<3, double>;
using CVector4d = TVector<4, double>;
