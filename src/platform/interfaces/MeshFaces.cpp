#include "platform/interfaces/MeshFaces.h"

#include "platform/interfaces/GameMatrix.h"

#include <cmath>

namespace
{
// Relative to the eye's distance from the mesh's centre: far below anything a pixel shows.
constexpr float EDGE_ON = 1e-4f;

CVector3 PositionOf(const CMeshVertex& Vertex)
{
    return CVector3(Vertex.x, Vertex.y, Vertex.z);
}

// w is the view's z, and x and y keep their turn, so the picture is the scene seen from the view's origin.
bool ProjectsFromOrigin(const CMatrixData& p)
{
    return p[3] == 0.0f && p[7] == 0.0f && p[15] == 0.0f && p[12] == 0.0f && p[13] == 0.0f && p[11] > 0.0f &&
           p[0] * p[5] - p[1] * p[4] > 0.0f;
}
} // namespace

CMeshFaces::CMeshFaces(const CSphereGeometry& Geometry)
{
    const std::vector<CMeshVertex>& vVertices = Geometry.m_vVertices;
    const std::vector<uint16_t>& vIndices = Geometry.m_vIndices;
    for(size_t i = 0; i + 2 < vIndices.size(); i += 3)
    {
        const CVector3 a = PositionOf(vVertices.at(vIndices[i]));
        const CVector3 b = PositionOf(vVertices.at(vIndices[i + 1]));
        const CVector3 c = PositionOf(vVertices.at(vIndices[i + 2]));
        // In left-handed coordinates this normal points to the side that sees a, b, c clockwise.
        CVector3 Normal = Cross(b - a, c - a);
        const float fLength = Normal.Length();
        Normal = fLength > 0.0f ? Normal / fLength : CVector3(0.0f, 0.0f, 0.0f);
        m_vPlanes.push_back({Normal, Dot(Normal, a)});
    }
}

bool CMeshFaces::MaySee(const CVector3& Eye, size_t uTriangle) const
{
    const CPlane& Plane = m_vPlanes[uTriangle];
    const float fTolerance = EDGE_ON * (1.0f + Eye.Length());
    return Dot(Plane.m_Normal, Eye) - Plane.m_fOffset > -fTolerance;
}

std::optional<CVector3> EyeInMesh(const CMatrixData& World, const CMatrixData& View, const CMatrixData& Projection)
{
    if(!IsAffine(World) || !IsAffine(View) || !ProjectsFromOrigin(Projection))
        return std::nullopt;
    // The mesh's point p lands in the view at p * L + T; the eye is the point landing at the origin.
    const CMatrix3 L = Linear(World) * Linear(View);
    const float fDeterminant = L.Determinant();
    if(!(fDeterminant > 0.0f) || !std::isfinite(fDeterminant))
        return std::nullopt;
    const CVector3 T = Linear(View).Transpose() * Translation(World) + Translation(View);
    CMatrix3 ToMesh = L;
    ToMesh.Transpose().Inverse();
    const CVector3 Eye = ToMesh * (-T);
    if(!std::isfinite(Eye.x()) || !std::isfinite(Eye.y()) || !std::isfinite(Eye.z()))
        return std::nullopt;
    return Eye;
}
