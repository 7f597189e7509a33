#pragma once
#include "math/Matrix.h"
#include "platform/interfaces/RenderDevice.h"

#include <array>

// The game's matrices act on row vectors: a point p lands at p * M, and the bottom row moves it.

inline std::array<float, 4> Transformed(const CMatrixData& m, const std::array<float, 4>& p)
{
    std::array<float, 4> Moved;
    for(size_t i = 0; i < Moved.size(); i++)
        Moved[i] = p[0] * m[i] + p[1] * m[4 + i] + p[2] * m[8 + i] + p[3] * m[12 + i];
    return Moved;
}

// The part that turns directions, as a matrix whose rows are the game's.
inline CMatrix3 Linear(const CMatrixData& m)
{
    return CMatrix3(m[0], m[1], m[2], m[4], m[5], m[6], m[8], m[9], m[10]);
}

inline CVector3 Translation(const CMatrixData& m)
{
    return CVector3(m[12], m[13], m[14]);
}

// Keeps parallel lines parallel: no perspective in it.
inline bool IsAffine(const CMatrixData& m)
{
    return m[3] == 0.0f && m[7] == 0.0f && m[11] == 0.0f && m[15] == 1.0f;
}
