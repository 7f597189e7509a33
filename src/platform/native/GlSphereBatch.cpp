#include "platform/native/GlSphereBatch.h"

#include "platform/interfaces/GameMatrix.h"

#include <GL/gl.h>

#include <cstdint>

namespace
{
// As many vertices as 16-bit indices reach: some seven hundred of the game's balls. A frame full of them takes a
// batch or two, and the arrays stay a few megabytes however many are drawn.
constexpr size_t MAX_VERTICES = 1 << 16;

// A world matrix that grows the mesh evenly and moves it leaves every normal's direction as the view alone
// turns it: each ball's world matrix is such.
bool TurnsNothing(const CMatrixData& World)
{
    const float s = World[0];
    return s > 0.0f && World[5] == s && World[10] == s && World[1] == 0.0f && World[2] == 0.0f && World[4] == 0.0f &&
           World[6] == 0.0f && World[8] == 0.0f && World[9] == 0.0f;
}

// GL turns a normal by the inverse of the modelview's directions, so that it stays at right angles to the
// surface however the mesh is stretched, and then normalises it. The game's matrices act on row vectors, and
// the inverse taken as it is then acts on the normal as a column, which is the transpose GL applies.
CVector3 NormalInEye(const CMatrix3& ToEye, const CMeshVertex& Vertex)
{
    CVector3 Normal = ToEye * CVector3(Vertex.nx, Vertex.ny, Vertex.nz);
    return Normal.Normalize();
}

CMatrix3 NormalsToEye(CMatrix3 Turn)
{
    return Turn.Inverse();
}

float InWorld(const CMatrixData& World, const CMeshVertex& Vertex, int iAxis)
{
    return Vertex.x * World[iAxis] + Vertex.y * World[4 + iAxis] + Vertex.z * World[8 + iAxis] + World[12 + iAxis];
}
} // namespace

bool CGlSphereBatch::Handles(const CMatrixData& World, const CMatrixData& View)
{
    return IsAffine(World) && IsAffine(View) && Linear(World).Determinant() != 0.0f &&
           Linear(View).Determinant() != 0.0f;
}

bool CGlSphereBatch::Takes(const CSphereGeometry& Geometry) const
{
    if(m_vDraws.empty())
        return true;
    return &Geometry == m_pGeometry.get() && (m_vDraws.size() + 1) * Geometry.m_vVertices.size() <= MAX_VERTICES;
}

void CGlSphereBatch::Add(const CSphereGeometryRef& pGeometry, const CMatrixData& World, const CMaterial& Material)
{
    m_pGeometry = pGeometry;
    m_vDraws.push_back({World, Material});
}

void CGlSphereBatch::Draw(const CScene& Scene)
{
    Prepare(Scene);
    for(const CDraw& Draw : m_vDraws)
        Gather(Draw, Scene);
    m_vDraws.clear();
    if(m_vIndices.empty())
        return;
    const GLsizei iStride = sizeof(CLitVertex);
    glVertexPointer(3, GL_FLOAT, iStride, &m_vVertices[0].x);
    glEnableClientState(GL_COLOR_ARRAY);
    glColorPointer(4, GL_FLOAT, iStride, m_vVertices[0].m_afColour.data());
    // The mesh has no texture coordinates: a texture is read at its corner, as the mesh drawn alone reads it.
    glDisableClientState(GL_TEXTURE_COORD_ARRAY);
    glTexCoord2f(0.0f, 0.0f);
    glDrawRangeElements(GL_TRIANGLES, 0, static_cast<GLuint>(m_vVertices.size() - 1),
                        static_cast<GLsizei>(m_vIndices.size()), GL_UNSIGNED_SHORT, m_vIndices.data());
}

void CGlSphereBatch::Prepare(const CScene& Scene)
{
    if(m_pPrepared != m_pGeometry)
    {
        m_pFaces = std::make_unique<CMeshFaces>(*m_pGeometry);
        m_pPrepared = m_pGeometry;
    }
    const CMatrix3 ToEye = NormalsToEye(Linear(Scene.m_View));
    m_vUnturnedFacing.clear();
    for(const CMeshVertex& Vertex : m_pGeometry->m_vVertices)
        m_vUnturnedFacing.push_back(FacingOf(Scene.m_Lights, NormalInEye(ToEye, Vertex)));
    m_vVertices.clear();
    m_vIndices.clear();
}

// Adds the triangles of one draw that the eye may see the fronts of, with their vertices moved and lit.
void CGlSphereBatch::Gather(const CDraw& Draw, const CScene& Scene)
{
    const std::optional<CVector3> Eye = EyeInMesh(Draw.m_World, Scene.m_View, Scene.m_Projection);
    const CLitMaterial Material(Draw.m_Material, Scene.m_Lights);
    const bool bTurns = !TurnsNothing(Draw.m_World);
    // Only a turning world matrix needs the normals turned afresh; the others share the frame's facing.
    const CMatrix3 ToEye = bTurns ? NormalsToEye(Linear(Draw.m_World) * Linear(Scene.m_View)) : CMatrix3();
    const std::vector<CMeshVertex>& vVertices = m_pGeometry->m_vVertices;
    const std::vector<uint16_t>& vSphere = m_pGeometry->m_vIndices;
    m_vSlot.assign(vVertices.size(), UINT32_MAX);
    for(size_t uTriangle = 0; uTriangle < m_pFaces->Count(); uTriangle++)
    {
        if(Eye && !m_pFaces->MaySee(*Eye, uTriangle))
            continue;
        for(size_t k = 0; k < 3; k++)
        {
            const uint16_t usVertex = vSphere[uTriangle * 3 + k];
            if(m_vSlot[usVertex] == UINT32_MAX)
            {
                const CMeshVertex& Vertex = vVertices[usVertex];
                const CFacing Facing =
                    bTurns ? FacingOf(Scene.m_Lights, NormalInEye(ToEye, Vertex)) : m_vUnturnedFacing[usVertex];
                m_vSlot[usVertex] = static_cast<uint32_t>(m_vVertices.size());
                m_vVertices.push_back({InWorld(Draw.m_World, Vertex, 0), InWorld(Draw.m_World, Vertex, 1),
                                       InWorld(Draw.m_World, Vertex, 2), Material.Colour(Facing)});
            }
            m_vIndices.push_back(static_cast<uint16_t>(m_vSlot[usVertex]));
        }
    }
}
