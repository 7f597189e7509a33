#pragma once
#include "platform/interfaces/MeshFaces.h"
#include "platform/interfaces/SphereGeometry.h"
#include "platform/native/GlLighting.h"

#include <memory>
#include <vector>

typedef std::shared_ptr<const CSphereGeometry> CSphereGeometryRef;

// Draws of one sphere mesh waiting to be drawn together, so that the driver sets up one draw where the game
// asks for hundreds. The batch moves every draw's vertices into the world and lights them itself, leaves out
// the triangles whose backs the eye sees, and hands the rest to GL in the order they came: GL draws the
// triangles of a call in order, so depth and blending come out as they would draw by draw. Its arrays are kept
// from flush to flush.
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

    // What the device is drawing with when the batch is drawn.
    struct CScene
    {
        const CMatrixData& m_View;
        const CMatrixData& m_Projection;
        const CEyeLights& m_Lights;
    };
    // Draws everything added since the last time and empties the batch. GL's lighting must be off and its
    // modelview matrix the view.
    void Draw(const CScene& Scene);

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
    void Prepare(const CScene& Scene);
    void Gather(const CDraw& Draw, const CScene& Scene);

    CSphereGeometryRef m_pGeometry;
    std::vector<CDraw> m_vDraws;
    CSphereGeometryRef m_pPrepared; // the geometry m_pFaces was made from
    std::unique_ptr<CMeshFaces> m_pFaces;
    std::vector<CFacing> m_vUnturnedFacing; // of each vertex, for the draws whose world matrix turns nothing
    std::vector<uint32_t> m_vSlot;          // where each vertex of the sphere being gathered went, if it did
    std::vector<CLitVertex> m_vVertices;
    std::vector<uint16_t> m_vIndices;
};
