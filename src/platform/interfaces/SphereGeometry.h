#pragma once
#include <cstdint>
#include <vector>

// A position and its normal, as a lit mesh holds them.
struct CMeshVertex
{
    float x, y, z;
    float nx, ny, nz;
};

// A sphere around the origin laid out as the game's mesh library made it: poles on the z axis, one ring of
// vertices between each two stacks, a fan at each pole and two triangles for each cell between. Every
// triangle is wound clockwise as seen from outside, which is the front face of a left-handed world.
struct CSphereGeometry
{
    std::vector<CMeshVertex> m_vVertices;
    std::vector<uint16_t> m_vIndices; // three to a triangle
};

// Slices and stacks under 3 and 2 are taken as 3 and 2, and the vertex count stays within 16-bit indices.
CSphereGeometry BuildSphere(float fRadius, uint32_t uiSlices, uint32_t uiStacks);
