#pragma once
#include "platform/RenderDevice.h"

#include <GL/gl.h>

#include <memory>

struct CSphereGeometry;

// A mesh compiled once into a display list: the driver keeps the vertices, so that drawing hundreds of balls a
// frame costs one call each.
class CGlMesh : public IMesh
{
public:
    // Null when the driver has no room for the list.
    static std::unique_ptr<CGlMesh> Create(const CSphereGeometry& Geometry);
    CGlMesh(const CGlMesh&) = delete;
    CGlMesh& operator=(const CGlMesh&) = delete;
    ~CGlMesh() override;
    void DrawSubset(uint32_t uiSubset) override;

private:
    explicit CGlMesh(GLuint uiList) : m_uiList(uiList) {}

    GLuint m_uiList;
};
