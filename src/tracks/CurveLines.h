#pragma once
#include "platform/interfaces/RenderDevice.h"

#include <cstdint>
#include <memory>
#include <vector>

// One end of a drawn line: position and a 32-bit ARGB colour, 16 bytes as the vertex format
// position | diffuse lays them out.
struct CLineVertex
{
    float m_fX, m_fY, m_fZ;
    uint32_t m_uiColour;
};
static_assert(sizeof(CLineVertex) == 16, "a line vertex is four 32-bit values");

constexpr uint32_t CURVE_LINE_COLOUR = 0x7F00FFFF; // half-transparent cyan

// The line list of one curve: two vertices for each line, and the device's buffer of them once the level
// is loaded where there is a device. A copy takes the vertices; the buffer stays with the original.
class CCurveLines
{
public:
    CCurveLines() = default;
    CCurveLines(const CCurveLines& Other) : m_vVertices(Other.m_vVertices), m_uiNumLines(Other.m_uiNumLines) {}
    CCurveLines(CCurveLines&&) noexcept = default;
    CCurveLines& operator=(CCurveLines Other) noexcept;

    std::vector<CLineVertex> m_vVertices;
    uint32_t m_uiNumLines = 0;
    std::unique_ptr<IVertexBuffer> m_pVertexBuffer;

    void Release();
};

class CBSpline;
// Lines along the raw samples, so that the drawn line follows the curve itself rather than the rail.
// Drops what the lines held before; a curve of fewer than two samples gets none.
void BuildLines(const CBSpline& Spline, CCurveLines& Lines);
