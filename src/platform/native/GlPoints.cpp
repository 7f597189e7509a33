// Points as the game's device draws them: squares facing the viewer, sized in pixels or by their distance from the eye.
#include "platform/native/GlRenderDevice.h"

#include "math/FloatBits.h"
#include "platform/interfaces/GameMatrix.h"
#include "platform/native/GlScreenSpace.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace
{
// The device keeps points at most this big unless told otherwise, and the game never tells it.
constexpr float MAX_POINT_SIZE = 64.0f;

// One corner of the square a scaled point becomes: a position in the back buffer and its depth, the point's
// colour and a texture coordinate.
struct CCorner
{
    float x, y, z;
    uint32_t m_uiColour;
    float u, v;
};

const CVertexLayout CORNER_LAYOUT = LayoutOf(FVF_XYZ | FVF_DIFFUSE | FVF_TEX1);

float LimitPointSize(float fSize, float fMinimum)
{
    return std::min(std::max(fSize, fMinimum), MAX_POINT_SIZE);
}

// The device drops a point whose centre is outside the view, however big the point.
bool InView(const std::array<float, 4>& Clip)
{
    const float w = Clip[3];
    return w > 0.0f && std::fabs(Clip[0]) <= w && std::fabs(Clip[1]) <= w && Clip[2] >= 0.0f && Clip[2] <= w;
}

template <class T> T Field(const uint8_t* pVertex, uint32_t uiOffset)
{
    T Value;
    std::memcpy(&Value, pVertex + uiOffset, sizeof(Value));
    return Value;
}
} // namespace

float CGlRenderDevice::StateAsFloat(ERenderState State) const
{
    return FloatFromBits(m_auiStates[State]);
}

// Unscaled, the size is in pixels and GL's own points are the same squares.
void CGlRenderDevice::ApplyPointSize()
{
    glPointSize(LimitPointSize(StateAsFloat(RS_POINTSIZE), StateAsFloat(RS_POINTSIZE_MIN)));
}

float CGlRenderDevice::ScaledPointSize(float fDistance) const
{
    const float fDivisor = StateAsFloat(RS_POINTSCALE_A) + StateAsFloat(RS_POINTSCALE_B) * fDistance +
                           StateAsFloat(RS_POINTSCALE_C) * fDistance * fDistance;
    const float fSize =
        fDivisor > 0.0f ? CGlBackBuffer::HEIGHT * StateAsFloat(RS_POINTSIZE) / std::sqrt(fDivisor) : MAX_POINT_SIZE;
    return LimitPointSize(fSize, StateAsFloat(RS_POINTSIZE_MIN));
}

// The device scales a point to viewport height x size x sqrt(1 / (A + B d + C d^2)), d being its distance from the
// eye. GL's own attenuation takes the point's depth before the eye for d, which makes points away from the middle
// of the view too big, and a size for each point would cost a draw each; so every point becomes its square here,
// and all are drawn at once. The squares keep the lighting of points, which have no normal.
void CGlRenderDevice::DrawScaledPoints(const CVertexLayout& Layout, const uint8_t* pFirst, GLsizei iCount)
{
    const bool bSprites = m_auiStates[RS_POINTSPRITEENABLE] != 0;
    std::vector<CCorner> vCorners;
    for(GLsizei i = 0; i < iCount; i++)
    {
        const uint8_t* pVertex = pFirst + static_cast<size_t>(i) * m_uiStride;
        const auto Position = Field<std::array<float, 3>>(pVertex, 0);
        const std::array<float, 4> Eye =
            Transformed(m_View, Transformed(m_World, {Position[0], Position[1], Position[2], 1}));
        const std::array<float, 4> Clip = Transformed(m_Projection, Eye);
        if(!InView(Clip))
            continue;
        const float fHalf = 0.5f * ScaledPointSize(std::sqrt(Eye[0] * Eye[0] + Eye[1] * Eye[1] + Eye[2] * Eye[2]));
        // The game's pixel centres lie on whole coordinates, GL's half a pixel further right and down.
        const float x = (Clip[0] / Clip[3] + 1.0f) * CGlBackBuffer::WIDTH / 2 + 0.5f;
        const float y = (1.0f - Clip[1] / Clip[3]) * CGlBackBuffer::HEIGHT / 2 + 0.5f;
        const float z = Clip[2] / Clip[3];
        const uint32_t uiColour = Layout.m_bColour ? Field<uint32_t>(pVertex, Layout.m_uiColourOffset) : 0xffffffff;
        const auto Texel =
            Layout.m_bTexture ? Field<std::array<float, 2>>(pVertex, Layout.m_uiTextureOffset) : std::array<float, 2>{};
        for(const auto& [fDx, fDy] : {std::pair{-1.0f, -1.0f}, {1.0f, -1.0f}, {1.0f, 1.0f}, {-1.0f, 1.0f}})
        {
            // A sprite spreads the whole texture over its square; a plain point shows its one texel.
            const float u = bSprites ? (fDx + 1.0f) / 2 : Texel[0], v = bSprites ? (fDy + 1.0f) / 2 : Texel[1];
            vCorners.push_back({x + fDx * fHalf, y + fDy * fHalf, z, uiColour, u, v});
        }
    }
    if(vCorners.empty())
        return;
    CVertexLayout Corners = CORNER_LAYOUT;
    Corners.m_bColour = Layout.m_bColour;
    BindVertexArrays(Corners, reinterpret_cast<const uint8_t*>(vCorners.data()), sizeof(CCorner));
    const CGlScreenSpace ScreenSpace;
    glDrawArrays(GL_QUADS, 0, static_cast<GLsizei>(vCorners.size()));
}

// GL's point sprites are on only while points are drawn: while they are on, the driver hands point coordinates
// to every primitive in place of its texture coordinates.
void CGlRenderDevice::DrawArrays(GLenum eMode, GLsizei iCount)
{
    const bool bSprites = eMode == GL_POINTS && m_auiStates[RS_POINTSPRITEENABLE] != 0;
    if(bSprites)
        glEnable(GL_POINT_SPRITE);
    glDrawArrays(eMode, 0, iCount);
    if(bSprites)
        glDisable(GL_POINT_SPRITE);
}
