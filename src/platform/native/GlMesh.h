#pragma once
#include "platform/native/GlSphereBatch.h"

#include <GL/gl.h>

class CGlRenderDevice;

// A sphere mesh for the device. It keeps its vertices for the device to batch its draws with others, and a
// display list of them for a draw the batch can't reproduce.
class CGlMesh : public IMesh
{
public:
    // Null when the driver has no room for the list.
    static std::unique_ptr<CGlMesh> Create(CGlRenderDevice& Device, CSphereGeometryRef pGeometry);
    CGlMesh(const CGlMesh&) = delete;
    CGlMesh& operator=(const CGlMesh&) = delete;
    ~CGlMesh() override;
    // Hands the draw to the device, which decides how to draw it.
    void DrawSubset(uint32_t uiSubset) override;

    const CSphereGeometryRef& Geometry() const { return m_pGeometry; }
    // Draws at once, lit by GL, with the present modelview matrix and material.
    void CallList() const { glCallList(m_uiList); }

private:
    CGlMesh(CGlRenderDevice& Device, CSphereGeometryRef pGeometry, GLuint uiList)
        : m_Device(Device), m_pGeometry(std::move(pGeometry)), m_uiList(uiList)
    {
    }

    CGlRenderDevice& m_Device;
    CSphereGeometryRef m_pGeometry; // shared with the device's batch while its draws wait there
    GLuint m_uiList;
};
