#pragma once
#include "math/Vector.h"
#include "platform/interfaces/RenderDevice.h"

#include <array>

// The fixed-function lighting GL gives a vertex, worked out on the CPU: directional lights in eye space, the
// light model's ambient, the material's emissive, ambient and diffuse colours, and no highlight.

constexpr uint32_t MAX_GL_LIGHTS = 8;

// One enabled light as it stands in eye space.
struct CEyeLight
{
    CVector3 m_Towards; // unit length, from every vertex towards the light
    CColourValue m_Diffuse;
    CColourValue m_Ambient;
};

struct CEyeLights
{
    CColourValue m_Ambient; // the light model's, on everything
    std::array<CEyeLight, MAX_GL_LIGHTS> m_aLights;
    uint32_t m_uiCount = 0;
};

// How squarely a vertex faces each of the lights, in their order: the cosine of the angle between its normal
// and the way to the light, and none for a light behind it, however far behind.
typedef std::array<float, MAX_GL_LIGHTS> CFacing;

// The normal must be of unit length and in eye space.
CFacing FacingOf(const CEyeLights& Lights, const CVector3& Normal);

// A material under the lights, with what is the same at every vertex summed once.
class CLitMaterial
{
public:
    CLitMaterial(const CMaterial& Material, const CEyeLights& Lights);

    // The alpha is the diffuse colour's. Nothing is clamped: GL clamps a vertex's colour to 0..1 whether it
    // lit the vertex or was given the colour.
    std::array<float, 4> Colour(const CFacing& Facing) const
    {
        CVector3 Lit = m_Unlit;
        for(uint32_t i = 0; i < m_uiLights; i++)
            Lit += m_aDiffuse[i] * Facing[i];
        return {Lit.x(), Lit.y(), Lit.z(), m_fAlpha};
    }

private:
    CVector3 m_Unlit; // emissive, and the ambient colour under the model's and every light's ambient
    std::array<CVector3, MAX_GL_LIGHTS> m_aDiffuse; // the diffuse colour under each light's
    uint32_t m_uiLights;
    float m_fAlpha;
};
