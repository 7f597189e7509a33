// The fixed-function state of the device: render states, transforms, the light and the material, each turned
// into GL's terms as it is set.
#include "platform/native/GlRenderDevice.h"

#include "math/FloatBits.h"
#include "platform/native/GlBackBuffer.h"
#include "platform/native/GlColour.h"
#include "platform/native/GlLighting.h"

#include <algorithm>

namespace
{
constexpr uint32_t FILL_POINT = 1;
constexpr uint32_t FILL_WIREFRAME = 2;
constexpr uint32_t SHADE_FLAT = 1;
constexpr float MAX_SHININESS = 128.0f;

// The device's blend factors by number, from ZERO (1) to SRCALPHASAT (11).
constexpr GLenum BLEND_FACTORS[] = {GL_ZERO,
                                    GL_ONE,
                                    GL_SRC_COLOR,
                                    GL_ONE_MINUS_SRC_COLOR,
                                    GL_SRC_ALPHA,
                                    GL_ONE_MINUS_SRC_ALPHA,
                                    GL_DST_ALPHA,
                                    GL_ONE_MINUS_DST_ALPHA,
                                    GL_DST_COLOR,
                                    GL_ONE_MINUS_DST_COLOR,
                                    GL_SRC_ALPHA_SATURATE};

GLenum BlendFactor(uint32_t uiBlend)
{
    return uiBlend >= 1 && uiBlend <= std::size(BLEND_FACTORS) ? BLEND_FACTORS[uiBlend - 1] : GL_ONE;
}

void Toggle(GLenum eCapability, bool bOn)
{
    if(bOn)
        glEnable(eCapability);
    else
        glDisable(eCapability);
}

// The game's clip space keeps depth from 0 to w, GL's from -w to w: z' = 2z - w. The game also puts each pixel's
// centre on its whole screen coordinates, GL half a pixel further right and down, so the picture moves by that
// half pixel to be sampled where the game expects it.
const CMatrixData GAME_TO_GL_CLIP = {
    1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 2, 0, 1.0f / CGlBackBuffer::WIDTH, -1.0f / CGlBackBuffer::HEIGHT, -1, 1};
} // namespace

std::array<uint32_t, RENDER_STATE_COUNT> CGlRenderDevice::DefaultRenderStates()
{
    std::array<uint32_t, RENDER_STATE_COUNT> auiStates{};
    auiStates[RS_FILLMODE] = FILL_SOLID;
    auiStates[RS_SHADEMODE] = SHADE_GOURAUD;
    auiStates[RS_LIGHTING] = 1;
    auiStates[RS_ZENABLE] = 1;
    auiStates[RS_ZWRITEENABLE] = 1;
    auiStates[RS_SRCBLEND] = BLEND_ONE;
    auiStates[RS_DESTBLEND] = 1; // zero
    auiStates[RS_POINTSIZE] = FloatToBits(1.0f);
    auiStates[RS_POINTSIZE_MIN] = FloatToBits(1.0f);
    auiStates[RS_POINTSCALE_A] = FloatToBits(1.0f);
    return auiStates;
}

void CGlRenderDevice::SetRenderState(ERenderState State, uint32_t uiValue)
{
    if(State < 0 || State >= RENDER_STATE_COUNT)
        return;
    FlushSpheres();
    m_auiStates[State] = uiValue;
    ApplyRenderState(State);
}

void CGlRenderDevice::ApplyRenderState(ERenderState State)
{
    const uint32_t uiValue = m_auiStates[State];
    switch(State)
    {
    case RS_FILLMODE:
        glPolygonMode(GL_FRONT_AND_BACK, uiValue == FILL_POINT       ? GL_POINT
                                         : uiValue == FILL_WIREFRAME ? GL_LINE
                                                                     : GL_FILL);
        break;
    case RS_SHADEMODE: glShadeModel(uiValue == SHADE_FLAT ? GL_FLAT : GL_SMOOTH); break;
    case RS_LIGHTING: Toggle(GL_LIGHTING, uiValue != 0); break;
    case RS_AMBIENT: glLightModelfv(GL_LIGHT_MODEL_AMBIENT, Rgba(uiValue).data()); break;
    case RS_SPECULARENABLE: ApplyMaterial(); break;
    case RS_NORMALIZENORMALS: Toggle(GL_NORMALIZE, uiValue != 0); break;
    case RS_ZENABLE: Toggle(GL_DEPTH_TEST, uiValue != 0); break;
    case RS_ZWRITEENABLE: glDepthMask(uiValue != 0); break;
    case RS_ALPHABLENDENABLE: Toggle(GL_BLEND, uiValue != 0); break;
    case RS_SRCBLEND:
    case RS_DESTBLEND:
        glBlendFunc(BlendFactor(m_auiStates[RS_SRCBLEND]), BlendFactor(m_auiStates[RS_DESTBLEND]));
        break;
    case RS_POINTSCALEENABLE:
    case RS_POINTSIZE:
    case RS_POINTSIZE_MIN:
    case RS_POINTSCALE_A:
    case RS_POINTSCALE_B:
    case RS_POINTSCALE_C: ApplyPointSize(); break;
    default: break;
    }
}

// Waiting spheres keep the world matrix each was drawn with, but share the view and projection.
void CGlRenderDevice::SetTransform(ETransform Kind, const CMatrixData& Matrix)
{
    if(Kind != TRANSFORM_WORLD)
        FlushSpheres();
    switch(Kind)
    {
    case TRANSFORM_WORLD:
        m_World = Matrix;
        ApplyModelView();
        break;
    case TRANSFORM_VIEW:
        m_View = Matrix;
        ApplyViewAndLights();
        break;
    case TRANSFORM_PROJECTION:
        m_Projection = Matrix;
        glMatrixMode(GL_PROJECTION);
        glLoadMatrixf(GAME_TO_GL_CLIP.data());
        glMultMatrixf(Matrix.data());
        glMatrixMode(GL_MODELVIEW);
        break;
    }
}

// The game's matrices act on row vectors, which is GL's layout for column vectors: they load as they are.
void CGlRenderDevice::ApplyModelView()
{
    glLoadMatrixf(m_View.data());
    glMultMatrixf(m_World.data());
}

// GL keeps a light's position in eye space as it was when set, so the lights follow every change of view.
void CGlRenderDevice::ApplyViewAndLights()
{
    glLoadMatrixf(m_View.data());
    for(const auto& [uiIndex, Light] : m_mapLights)
    {
        const std::array<float, 4> afTowardsLight = {-Light.m_afDirection[0], -Light.m_afDirection[1],
                                                     -Light.m_afDirection[2], 0.0f};
        glLightfv(GL_LIGHT0 + uiIndex, GL_POSITION, afTowardsLight.data());
    }
    glMultMatrixf(m_World.data());
}

// Every light is directional: it shines along its direction from infinitely far away.
void CGlRenderDevice::SetLight(uint32_t uiIndex, const CLight& Light)
{
    if(uiIndex >= MAX_GL_LIGHTS)
        return;
    FlushSpheres();
    const GLenum eLight = GL_LIGHT0 + uiIndex;
    glLightfv(eLight, GL_DIFFUSE, Rgba(Light.m_Diffuse).data());
    glLightfv(eLight, GL_SPECULAR, Rgba(Light.m_Specular).data());
    glLightfv(eLight, GL_AMBIENT, Rgba(Light.m_Ambient).data());
    m_mapLights[uiIndex] = Light;
    ApplyViewAndLights();
}

void CGlRenderDevice::LightEnable(uint32_t uiIndex, bool bEnable)
{
    if(uiIndex >= MAX_GL_LIGHTS)
        return;
    FlushSpheres();
    Toggle(GL_LIGHT0 + uiIndex, bEnable);
    m_uiLightsOn = bEnable ? m_uiLightsOn | 1u << uiIndex : m_uiLightsOn & ~(1u << uiIndex);
}

void CGlRenderDevice::SetMaterial(const CMaterial& Material)
{
    m_Material = Material;
    ApplyMaterial();
}

// Without the specular render state the device adds no highlight at all: the material then reflects none.
void CGlRenderDevice::ApplyMaterial()
{
    const CColourValue NoSpecular;
    const bool bSpecular = m_auiStates[RS_SPECULARENABLE] != 0;
    glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, Rgba(m_Material.m_Diffuse).data());
    glMaterialfv(GL_FRONT_AND_BACK, GL_AMBIENT, Rgba(m_Material.m_Ambient).data());
    glMaterialfv(GL_FRONT_AND_BACK, GL_SPECULAR, Rgba(bSpecular ? m_Material.m_Specular : NoSpecular).data());
    glMaterialfv(GL_FRONT_AND_BACK, GL_EMISSION, Rgba(m_Material.m_Emissive).data());
    glMaterialf(GL_FRONT_AND_BACK, GL_SHININESS, std::clamp(m_Material.m_fPower, 0.0f, MAX_SHININESS));
}

void CGlRenderDevice::SetTextureStageState(uint32_t uiStage, ETextureStageState State, uint32_t uiValue)
{
    if(uiStage != 0 || State < 0 || State >= TEXTURE_STAGE_STATE_COUNT)
        return;
    FlushSpheres();
    m_Stage.Set(State, uiValue);
    m_Stage.Apply();
}
