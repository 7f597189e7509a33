#include "platform/GlSphereBatch.h"

#include "math/Matrix.h"

#include <GL/gl.h>

namespace
{
// As many vertices as 16-bit indices reach: some seven hundred of the game's balls. A frame full of them takes a
// batch or two, and the arrays stay a few megabytes however many are drawn.
constexpr size_t MAX_VERTICES = 1 << 16;

// The part of one of the game's matrices that turns directions.
CMatrix3 Linear(const CMatrixData& Matrix)
{
    return CMatrix3(Matrix[0], Matrix[1], Matrix[2], Matrix[4], Matrix[5], Matrix[6], Matrix[8], Matrix[9], Matrix[10]);
}

bool IsAffine(const CMatrixData& Matrix)
{
    return Matrix[3] == 0.0f && Matrix[7] == 0.0f && Matrix[11] == 0.0f && Matrix[15] == 1.0f;
}

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

void CGlSphereBatch::Draw(const CMatrixData& View, const CEyeLights& Lights)
{
    const size_t uPerSphere = m_pGeometry->m_vVertices.size();
    const size_t uVertices = m_vDraws.size() * uPerSphere;
    if(m_vVertices.size() < uVertices)
        m_vVertices.resize(uVertices);
    FaceUnturned(View, Lights);
    for(size_t i = 0; i < m_vDraws.size(); i++)
        Light(m_vDraws[i], View, Lights, &m_vVertices[i * uPerSphere]);
    IndexSpheres(m_vDraws.size());
    const GLsizei iStride = sizeof(CLitVertex);
    glVertexPointer(3, GL_FLOAT, iStride, &m_vVertices[0].x);
    glEnableClientState(GL_COLOR_ARRAY);
    glColorPointer(4, GL_FLOAT, iStride, m_vVertices[0].m_afColour.data());
    // The mesh has no texture coordinates: a texture is read at its corner, as the mesh drawn alone reads it.
    glDisableClientState(GL_TEXTURE_COORD_ARRAY);
    glTexCoord2f(0.0f, 0.0f);
    const size_t uIndices = m_vDraws.size() * m_pGeometry->m_vIndices.size();
    glDrawRangeElements(GL_TRIANGLES, 0, static_cast<GLuint>(uVertices - 1), static_cast<GLsizei>(uIndices),
                        GL_UNSIGNED_SHORT, m_vIndices.data());
    m_vDraws.clear();
}

void CGlSphereBatch::FaceUnturned(const CMatrixData& View, const CEyeLights& Lights)
{
    const CMatrix3 ToEye = NormalsToEye(Linear(View));
    m_vUnturnedFacing.clear();
    for(const CMeshVertex& Vertex : m_pGeometry->m_vVertices)
        m_vUnturnedFacing.push_back(FacingOf(Lights, NormalInEye(ToEye, Vertex)));
}

void CGlSphereBatch::Light(const CDraw& Draw, const CMatrixData& View, const CEyeLights& Lights, CLitVertex* pOut) const
{
    const CLitMaterial Material(Draw.m_Material, Lights);
    const bool bTurns = !TurnsNothing(Draw.m_World);
    const CMatrix3 ToEye = NormalsToEye(Linear(Draw.m_World) * Linear(View));
    const std::vector<CMeshVertex>& vVertices = m_pGeometry->m_vVertices;
    for(size_t i = 0; i < vVertices.size(); i++)
    {
        const CMeshVertex& Vertex = vVertices[i];
        const CFacing Facing = bTurns ? FacingOf(Lights, NormalInEye(ToEye, Vertex)) : m_vUnturnedFacing[i];
        *pOut++ = {InWorld(Draw.m_World, Vertex, 0), InWorld(Draw.m_World, Vertex, 1), InWorld(Draw.m_World, Vertex, 2),
                   Material.Colour(Facing)};
    }
}

// The triangles of as many spheres as have ever been drawn at once are kept, and a batch draws the first of them.
void CGlSphereBatch::IndexSpheres(size_t uSpheres)
{
    if(m_pIndexed != m_pGeometry)
    {
        m_vIndices.clear();
        m_pIndexed = m_pGeometry;
    }
    const std::vector<uint16_t>& vSphere = m_pGeometry->m_vIndices;
    const size_t uPerSphere = m_pGeometry->m_vVertices.size();
    for(size_t uSphere = m_vIndices.size() / vSphere.size(); uSphere < uSpheres; uSphere++)
    {
        for(uint16_t usIndex : vSphere)
            m_vIndices.push_back(static_cast<uint16_t>(uSphere * uPerSphere + usIndex));
    }
}
