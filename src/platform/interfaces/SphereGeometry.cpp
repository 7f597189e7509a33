#include "platform/interfaces/SphereGeometry.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr uint32_t MAX_SLICES = 256;
constexpr uint32_t MAX_STACKS = 200;

void AddVertex(CSphereGeometry& Sphere, float fRadius, double dTheta, double dPhi)
{
    const float nx = static_cast<float>(std::sin(dTheta) * std::cos(dPhi));
    const float ny = static_cast<float>(std::sin(dTheta) * std::sin(dPhi));
    const float nz = static_cast<float>(std::cos(dTheta));
    Sphere.m_vVertices.push_back({fRadius * nx, fRadius * ny, fRadius * nz, nx, ny, nz});
}

void AddTriangle(CSphereGeometry& Sphere, uint32_t a, uint32_t b, uint32_t c)
{
    for(uint32_t i : {a, b, c})
        Sphere.m_vIndices.push_back(static_cast<uint16_t>(i));
}
} // namespace

CSphereGeometry BuildSphere(float fRadius, uint32_t uiSlices, uint32_t uiStacks)
{
    const double PI = 3.14159265358979323846;
    uiSlices = std::clamp(uiSlices, 3u, MAX_SLICES);
    uiStacks = std::clamp(uiStacks, 2u, MAX_STACKS);
    CSphereGeometry Sphere;
    AddVertex(Sphere, fRadius, 0.0, 0.0); // top pole, vertex 0
    for(uint32_t uiRing = 1; uiRing < uiStacks; uiRing++)
    {
        for(uint32_t uiSlice = 0; uiSlice < uiSlices; uiSlice++)
            AddVertex(Sphere, fRadius, PI * uiRing / uiStacks, 2.0 * PI * uiSlice / uiSlices);
    }
    const uint32_t uiBottom = static_cast<uint32_t>(Sphere.m_vVertices.size());
    AddVertex(Sphere, fRadius, PI, 0.0);

    // Vertex of a ring (1 to stacks - 1) and a slice, the slice wrapping round.
    auto At = [uiSlices](uint32_t uiRing, uint32_t uiSlice) {
        return 1 + (uiRing - 1) * uiSlices + uiSlice % uiSlices;
    };
    for(uint32_t j = 0; j < uiSlices; j++)
        AddTriangle(Sphere, 0, At(1, j), At(1, j + 1));
    for(uint32_t uiRing = 1; uiRing + 1 < uiStacks; uiRing++)
    {
        for(uint32_t j = 0; j < uiSlices; j++)
        {
            AddTriangle(Sphere, At(uiRing, j), At(uiRing + 1, j), At(uiRing + 1, j + 1));
            AddTriangle(Sphere, At(uiRing, j), At(uiRing + 1, j + 1), At(uiRing, j + 1));
        }
    }
    for(uint32_t j = 0; j < uiSlices; j++)
        AddTriangle(Sphere, uiBottom, At(uiStacks - 1, j + 1), At(uiStacks - 1, j));
    return Sphere;
}
