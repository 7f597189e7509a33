#pragma once
#include "math/Vector.h"
#include "platform/interfaces/RenderDevice.h"
#include "platform/interfaces/SphereGeometry.h"

#include <optional>
#include <vector>

// The plane of each triangle of a mesh, facing the side from which the triangle is seen wound clockwise: its
// front in a left-handed world. With them the triangles whose backs the eye sees can be left out before the
// driver is handed them, since its culling would drop them anyway.
class CMeshFaces
{
public:
    explicit CMeshFaces(const CSphereGeometry& Geometry);
    // Whether an eye at this point of the mesh's own space may see the front of the triangle. Only backs seen
    // clearly count as unseen: a triangle seen nearly edge on is kept, so rounding never drops one the driver
    // would draw.
    bool MaySee(const CVector3& Eye, size_t uTriangle) const;
    size_t Count() const { return m_vPlanes.size(); }

private:
    struct CPlane
    {
        CVector3 m_Normal; // of unit length, or zero for a triangle without area
        float m_fOffset;
    };
    std::vector<CPlane> m_vPlanes;
};

// Where the eye stands in the space of a mesh drawn with these matrices; none unless the front faces are the
// ones the eye sees wound clockwise: the projection's centre is the view's origin, it looks down +z and mirrors
// nothing, and the world and view matrices keep parallel lines parallel and keep the handedness.
std::optional<CVector3> EyeInMesh(const CMatrixData& World, const CMatrixData& View, const CMatrixData& Projection);
