#include "gfx/GraphicsEngine.h"

#include "app/Game.h"
#include "gfx/Fonts.h"
#include "platform/interfaces/ErrorBox.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace
{
constexpr uint32_t AMBIENT_LIGHT = 0xFFD2D2D2;
constexpr float MATERIAL_POWER = 8.0f;
constexpr uint32_t SPHERE_SLICES = 10;
constexpr uint32_t SPHERE_STACKS = 10;

// Diffuse, ambient and emissive of the six ball colours.
struct CBallColour
{
    CColourValue m_Diffuse, m_Ambient, m_Emissive;
};
const CBallColour BALL_COLOURS[6] = {
    {{0.8f, 0.0f, 0.0f, 1.0f}, {1.0f, 0.0f, 0.0f, 1.0f}, {0.0f, 0.0f, 0.0f, 1.0f}},     // red
    {{0.0f, 0.7f, 0.0f, 1.0f}, {0.0f, 1.0f, 0.0f, 1.0f}, {0.0f, 0.0f, 0.0f, 1.0f}},     // green
    {{0.0f, 0.0f, 0.8f, 1.0f}, {0.0f, 0.0f, 0.5f, 1.0f}, {0.0f, 0.0f, 0.0f, 1.0f}},     // blue
    {{1.0f, 1.0f, 0.0f, 1.0f}, {0.5f, 0.5f, 0.0f, 1.0f}, {0.1f, 0.1f, 0.0f, 1.0f}},     // yellow
    {{1.0f, 0.5f, 0.25f, 1.0f}, {1.0f, 0.5f, 0.25f, 1.0f}, {0.0f, 0.0f, 0.0f, 1.0f}},   // orange
    {{0.65f, 0.0f, 0.65f, 1.0f}, {0.65f, 0.0f, 0.65f, 1.0f}, {0.0f, 0.0f, 0.0f, 1.0f}}, // purple
};
} // namespace

CGraphicsEngine::~CGraphicsEngine()
{
    ReleaseResources();
}

bool CGraphicsEngine::Init()
{
    m_pDevice = m_fnOpenDevice ? m_fnOpenDevice() : nullptr;
    if(!m_pDevice)
        return false;
    m_pSphereMesh = m_pDevice->CreateSphere(1.0f, SPHERE_SLICES, SPHERE_STACKS);
    SetupRenderStates();
    SetupMaterials();
    LoadImages();
    SetupLineSets();
    SetupLight();
    return true;
}

void CGraphicsEngine::SetupRenderStates()
{
    m_pDevice->SetRenderState(RS_FILLMODE, FILL_SOLID);
    m_pDevice->SetRenderState(RS_SHADEMODE, SHADE_GOURAUD);
    m_pDevice->SetRenderState(RS_LIGHTING, true);
    m_pDevice->SetRenderState(RS_AMBIENT, AMBIENT_LIGHT);
    m_pDevice->SetRenderState(RS_SPECULARENABLE, true);
    m_pDevice->SetRenderState(RS_NORMALIZENORMALS, true);
    m_pDevice->SetRenderState(RS_ZENABLE, true);
    // Blending stays on for the whole run, for the 3D and the 2D alike.
    m_pDevice->SetRenderState(RS_ALPHABLENDENABLE, true);
    m_pDevice->SetRenderState(RS_SRCBLEND, BLEND_SRCALPHA);
    m_pDevice->SetRenderState(RS_DESTBLEND, BLEND_INVSRCALPHA);
    m_pDevice->SetTextureStageState(0, TSS_ALPHAOP, TOP_MODULATE);
    m_pDevice->SetTextureStageState(0, TSS_COLORARG1, TA_TEXTURE);
    m_pDevice->SetTextureStageState(0, TSS_COLORARG2, TA_DIFFUSE);
}

void CGraphicsEngine::SetupMaterials()
{
    for(size_t i = 0; i < m_aMaterials.size(); i++)
    {
        CMaterial& Material = m_aMaterials[i];
        Material.m_Diffuse = BALL_COLOURS[i].m_Diffuse;
        Material.m_Ambient = BALL_COLOURS[i].m_Ambient;
        Material.m_Emissive = BALL_COLOURS[i].m_Emissive;
        Material.m_Specular = {0.0f, 0.0f, 0.0f, 1.0f};
        Material.m_fPower = MATERIAL_POWER;
    }
}

// One white light shining along (1, 1, 1): down, right and away from an eye that looks along +z.
void CGraphicsEngine::SetupLight()
{
    CLight Light;
    Light.m_Diffuse = {0.8f, 0.8f, 0.8f, 0.0f};
    Light.m_Specular = {0.3f, 0.3f, 0.3f, 0.0f};
    Light.m_Ambient = {0.0f, 0.0f, 0.0f, 0.0f};
    CVector3 Direction(1.0f, 1.0f, 1.0f);
    Direction.Normalize();
    Light.m_afDirection = {Direction.x(), Direction.y(), Direction.z()};
    Light.m_afPosition = {-100.0f, -100.0f, -100.0f};
    Light.m_fRange = std::sqrt(std::numeric_limits<float>::max());
    Light.m_fAttenuation0 = Light.m_fAttenuation1 = Light.m_fAttenuation2 = 0.3f;
    m_pDevice->SetLight(LIGHT_INDEX, Light);
    m_pDevice->LightEnable(LIGHT_INDEX, true);
}

void CGraphicsEngine::ReleaseResources()
{
    for(CImage& Image : m_aImages)
        Image.m_pTexture.reset();
    m_pSphereMesh.reset();
    m_lstLineSets.clear();
    m_pBackgroundVB.reset();
    m_pBackgroundTexture.reset();
    m_pDevice = nullptr;
}

void CGraphicsEngine::RenderMenuFrame()
{
    if(!m_pDevice)
        return;
    m_pDevice->Clear(MENU_CLEAR_COLOUR, 1.0f);
    m_pDevice->BeginScene();
    DrawScreen();
    DrawCursor(); // last, above everything, on every screen
    m_pDevice->EndScene();
    m_pDevice->Present();
}

void CGraphicsEngine::DrawScreen()
{
    switch(m_nScreenState)
    {
    case SCREEN_MAIN_MENU: DrawMainMenu(); break;
    case SCREEN_SINGLE_PLAYER: DrawSinglePlayerMenu(); break;
    case SCREEN_LOBBY: DrawLobby(); break;
    case SCREEN_CONNECT: DrawConnectScreen(); break;
    case SCREEN_OPTIONS: DrawOptionsScreen(); break;
    case SCREEN_CREDITS: DrawCreditsScreen(); break;
    case SCREEN_LOGO: DrawLogoScreen(); break;
    case SCREEN_RESULTS: DrawResultsScreen(); break;
    default: break; // the reserved screens are white
    }
}

void CGraphicsEngine::DrawLogoScreen()
{
    DrawSprite(m_aSprites[SPR_LOGO]);
}

void CGraphicsEngine::RenderPlayFrame()
{
    if(!m_pDevice)
        return;
    const uint32_t uiDelta = g_pGame->m_Clock.GetDelta();
    m_Pulse.Tick(uiDelta);
    CParticleSystem& Particles = g_pGame->m_Particles;
    if(Particles.m_bActive)
    {
        Particles.Update(static_cast<float>(uiDelta) * 0.001f);
        // Once every flare is out the list is emptied: bursts would otherwise pile up, dead, for as long as
        // the game runs, and every later burst would walk them all.
        if(Particles.IsDead())
        {
            Particles.RemoveDeadParticles();
            Particles.m_bActive = false;
        }
    }
    m_pDevice->Clear(PLAY_CLEAR_COLOUR, 1.0f);
    m_pDevice->BeginScene();
    SetupCamera(NEAR_PLANE, FAR_PLANE);
    RenderWorld();
    RenderHud();
    RenderAimBall();
    m_pDevice->EndScene();
    m_pDevice->Present();
}

const CMaterial* CGraphicsEngine::GetBallMaterial(uint8_t ucColour, bool bPowerup)
{
    if(ucColour >= m_aMaterials.size())
        return nullptr;
    if(!bPowerup)
        return &m_aMaterials[ucColour];
    m_PulseMaterial = m_aMaterials[ucColour];
    m_PulseMaterial.m_Diffuse.a = m_Pulse.m_fAlpha;
    return &m_PulseMaterial;
}

std::unique_ptr<IVertexBuffer> CGraphicsEngine::CreateVertexBuffer(uint32_t uiLength, uint32_t uiFVF)
{
    return m_pDevice ? m_pDevice->CreateVertexBuffer(uiLength, uiFVF) : nullptr;
}

bool CGraphicsEngine::FillVertexBuffer(IVertexBuffer* pBuffer, const void* pData, uint32_t uiLength,
                                       const char* pLockError)
{
    void* pTarget = pBuffer ? pBuffer->Lock() : nullptr;
    if(!pTarget)
    {
        ShowError(pLockError);
        return false;
    }
    std::memcpy(pTarget, pData, std::min(uiLength, pBuffer->GetLength()));
    pBuffer->Unlock();
    return true;
}
