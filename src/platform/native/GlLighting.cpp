#include "platform/native/GlLighting.h"

#include <algorithm>

namespace
{
CVector3 Rgb(const CColourValue& Colour)
{
    return CVector3(Colour.r, Colour.g, Colour.b);
}

// Channel by channel, as one coloured light lights a coloured surface.
CVector3 Times(const CColourValue& a, const CColourValue& b)
{
    return CVector3(a.r * b.r, a.g * b.g, a.b * b.b);
}
} // namespace

CFacing FacingOf(const CEyeLights& Lights, const CVector3& Normal)
{
    CFacing Facing{};
    for(uint32_t i = 0; i < Lights.m_uiCount; i++)
        Facing[i] = std::max(0.0f, Dot(Normal, Lights.m_aLights[i].m_Towards));
    return Facing;
}

CLitMaterial::CLitMaterial(const CMaterial& Material, const CEyeLights& Lights)
    : m_Unlit(Rgb(Material.m_Emissive) + Times(Material.m_Ambient, Lights.m_Ambient)), m_uiLights(Lights.m_uiCount),
      m_fAlpha(Material.m_Diffuse.a)
{
    for(uint32_t i = 0; i < Lights.m_uiCount; i++)
    {
        m_Unlit += Times(Material.m_Ambient, Lights.m_aLights[i].m_Ambient);
        m_aDiffuse[i] = Times(Material.m_Diffuse, Lights.m_aLights[i].m_Diffuse);
    }
}
