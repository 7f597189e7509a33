#include "platform/native/GlMesh.h"

#include "platform/native/GlRenderDevice.h"

std::unique_ptr<CGlMesh> CGlMesh::Create(CGlRenderDevice& Device, CSphereGeometryRef pGeometry)
{
    const CSphereGeometry& Geometry = *pGeometry;
    const GLuint uiList = glGenLists(1);
    if(!uiList)
        return nullptr;
    glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_NORMAL_ARRAY);
    glDisableClientState(GL_COLOR_ARRAY);
    glDisableClientState(GL_TEXTURE_COORD_ARRAY);
    glVertexPointer(3, GL_FLOAT, sizeof(CMeshVertex), &Geometry.m_vVertices[0].x);
    glNormalPointer(GL_FLOAT, sizeof(CMeshVertex), &Geometry.m_vVertices[0].nx);
    glNewList(uiList, GL_COMPILE);
    // The mesh has neither colours nor texture coordinates: unlit it is white, and a texture is read at its
    // corner, as for every vertex that lacks them.
    glColor4f(1.0f, 1.0f, 1.0f, 1.0f);
    glTexCoord2f(0.0f, 0.0f);
    glDrawElements(GL_TRIANGLES, static_cast<GLsizei>(Geometry.m_vIndices.size()), GL_UNSIGNED_SHORT,
                   Geometry.m_vIndices.data());
    glEndList();
    glPopClientAttrib();
    return std::unique_ptr<CGlMesh>(new CGlMesh(Device, std::move(pGeometry), uiList));
}

CGlMesh::~CGlMesh()
{
    glDeleteLists(m_uiList, 1);
}

void CGlMesh::DrawSubset(uint32_t uiSubset)
{
    if(uiSubset == 0)
        m_Device.DrawSphere(*this);
}
