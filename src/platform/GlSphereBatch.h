#pragma once
#include "platform/GlLighting.h"
#include "platform/SphereGeometry.h"

#include <memory>
#include <vector>

typedef std::shared_ptr<const CSphereGeometry> CSphereGeometryRef;

// Draws of one sphere mesh waiting to be drawn together, so that the driver sets up one draw where the game asks
// for hundreds. The batch moves every draw's vertices into the world and lights them itself, then hands all their
// triangles to GL in one call, in the order they came: GL draws the triangles of one call in order, so depth and
// blending come out as they would draw by draw. Its arrays are kept from flush to flush.
class CGlSphereBatch
{
public:
    // Whether the batch turns a draw's vertices and normals as GL would with these matrices: it takes those
    // that keep parallel lines parallel and squash nothing flat.
    static bool Handles(const CMatrixData& World, const CMatrixData& View);
    bool IsEmpty() const { return m_vDraws.empty(); }
    // Whether a draw of the geometry may join: a batch holds one geometry and a bounded number of vertices.
    bool Takes(const CSphereGeometry& Geometry) const;
    void Add(const CSphereGeometryRef& pGeometry, const CMatrixData& World, const CMaterial& Material);
    // Draws everything added since the last time and empties the batch. GL's lighting must be off and its
    // modelview matrix the view.
    void Draw(const CMatrixData& View, const CEyeLights& Lights);

private:
    struct CDraw
    {
        CMatrixData m_World;
        CMaterial m_Material;
    };
    struct CLitVertex
    {
        float x, y, z;
        std::array<float, 4> m_afColour;
    };

    void FaceUnturned(const CMatrixData& View, const CEyeLights& Lights);
    void Light(const CDraw& Draw, const CMatrixData& View, const CEyeLights& Lights, CLitVertex* pOut) const;
    void IndexSpheres(size_t uSpheres);

    CSphereGeometryRef m_pGeometry;
    std::vector<CDraw> m_vDraws;
    std::vector<CFacing> m_vUnturnedFacing; // of each vertex, for the draws whose world matrix turns nothing
    std::vector<CLitVertex> m_vVertices;
    CSphereGeometryRef m_pIndexed;    // the geometry whose triangles m_vIndices repeats
    std::vector<uint16_t> m_vIndices; // its triangles, sphere after sphere, each sphere's vertices after the last's
};
