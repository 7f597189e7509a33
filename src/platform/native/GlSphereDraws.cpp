// The game's balls: hundreds of draws of one sphere mesh a frame, each with its own world matrix and material,
// gathered into batches.
#include "platform/native/GlRenderDevice.h"

#include "platform/native/GlColour.h"
#include "platform/native/GlMesh.h"

namespace
{
CColourValue ColourOf(uint32_t uiArgb)
{
    const std::array<float, 4> afRgba = Rgba(uiArgb);
    return {afRgba[0], afRgba[1], afRgba[2], afRgba[3]};
}

bool IsBlack(const CColourValue& Colour)
{
    return Colour.r == 0.0f && Colour.g == 0.0f && Colour.b == 0.0f;
}
} // namespace

void CGlRenderDevice::DrawSphere(const CGlMesh& Mesh)
{
    if(!BatchReproduces())
    {
        FlushSpheres();
        Mesh.CallList();
        return;
    }
    if(!m_Spheres.Takes(*Mesh.Geometry()))
        FlushSpheres();
    m_Spheres.Add(Mesh.Geometry(), m_World, m_Material);
}

// Everything a waiting sphere depends on but its world matrix and material flushes the batch when it changes,
// so the device's states now are those every waiting sphere was drawn with: lit and reading the white texture,
// among them. Under most stages the white texture changes nothing, and reading it would only cost.
void CGlRenderDevice::FlushSpheres()
{
    if(m_Spheres.IsEmpty())
        return;
    glDisable(GL_LIGHTING);
    if(m_Stage.KeepsDiffuseOverWhite())
        glDisable(GL_TEXTURE_2D);
    glLoadMatrixf(m_View.data());
    const CEyeLights Lights = EyeLights();
    m_Spheres.Draw({m_View, m_Projection, Lights});
    glEnable(GL_TEXTURE_2D);
    glEnable(GL_LIGHTING);
    ApplyModelView();
}

// Whether the batch would draw a sphere now as GL draws it. It lights as GL does with normalised normals, no
// highlight and directional lights the game has set; and it draws what reads the white texture, where another
// texture would have to be read at its corner.
bool CGlRenderDevice::BatchReproduces() const
{
    uint32_t uiLightsSet = 0;
    for(const auto& Entry : m_mapLights)
        uiLightsSet |= 1u << Entry.first;
    const bool bHighlight = m_auiStates[RS_SPECULARENABLE] != 0 && !IsBlack(m_Material.m_Specular);
    return m_auiStates[RS_LIGHTING] != 0 && m_auiStates[RS_NORMALIZENORMALS] != 0 && !bHighlight &&
           m_pTexture == m_pWhite && (m_uiLightsOn & ~uiLightsSet) == 0 && CGlSphereBatch::Handles(m_World, m_View);
}

// GL keeps a light's direction as the view turned it when the light or the view was last set, and lights with
// its unit vector.
CEyeLights CGlRenderDevice::EyeLights() const
{
    CEyeLights Lights;
    Lights.m_Ambient = ColourOf(m_auiStates[RS_AMBIENT]);
    for(const auto& [uiIndex, Light] : m_mapLights)
    {
        if(!(m_uiLightsOn & (1u << uiIndex)))
            continue;
        const std::array<float, 3>& d = Light.m_afDirection;
        const CMatrixData& v = m_View;
        CVector3 Towards(-(d[0] * v[0] + d[1] * v[4] + d[2] * v[8]), -(d[0] * v[1] + d[1] * v[5] + d[2] * v[9]),
                         -(d[0] * v[2] + d[1] * v[6] + d[2] * v[10]));
        if(Towards.Length() > 0.0f)
            Towards.Normalize();
        Lights.m_aLights[Lights.m_uiCount++] = {Towards, Light.m_Diffuse, Light.m_Ambient};
    }
    return Lights;
}
