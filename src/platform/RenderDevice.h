#pragma once
#include <array>
#include <cstdint>
#include <vector>

enum ETransform
{
    TRANSFORM_WORLD,
    TRANSFORM_VIEW,
    TRANSFORM_PROJECTION,
};

// Sixteen floats row after row, for row vectors on the left, as the game builds its matrices; the same
// memory is a column-major matrix for column vectors on the right.
typedef std::array<float, 16> CMatrixData;

// What the game draws with. The real device draws with OpenGL; the recording twin keeps what it was told.
class IRenderDevice
{
public:
    virtual ~IRenderDevice() = default;
    virtual void SetTransform(ETransform Kind, const CMatrixData& Matrix) = 0;
};

class CRecordingRenderDevice : public IRenderDevice
{
public:
    struct CTransformCall
    {
        ETransform m_Kind;
        CMatrixData m_Matrix;
    };

    void SetTransform(ETransform Kind, const CMatrixData& Matrix) override { m_vTransforms.push_back({Kind, Matrix}); }
    std::vector<CTransformCall> m_vTransforms;
};
