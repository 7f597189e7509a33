#pragma once
#include "platform/interfaces/RenderDevice.h"
#include "platform/native/GlFunctions.h"
#include "platform/native/GlSphereBatch.h"
#include "platform/native/GlTexture.h"
#include "platform/native/GlTextureStage.h"
#include "platform/native/GlVertexBuffer.h"
#include "platform/native/GlVertexFormat.h"

#include <map>
#include <string>
#include <vector>

class CGlBackBuffer;
class CGlMesh;
class CSdlWindow;

// The drawing device on OpenGL 2.1's fixed-function pipeline, giving the picture the game is drawn for: its
// left-handed matrices with depth from 0 to 1, clockwise front faces, the device's default states, and an 800x600
// back buffer that is scaled into the window when presented. Objects it hands out may go in any order, all
// before the device, and the device goes before the window's GL context.
// Sphere draws in a row wait in a batch and are drawn together, lit on the CPU as GL would light them, when
// anything else is drawn or any state they were drawn with changes; world matrices and materials change
// between them freely.
class CGlRenderDevice : public IRenderDevice
{
public:
    CGlRenderDevice();
    CGlRenderDevice(const CGlRenderDevice&) = delete;
    CGlRenderDevice& operator=(const CGlRenderDevice&) = delete;
    ~CGlRenderDevice() override;

    // Takes over the window's current GL context; false when the back buffer can't be made. Nothing else may
    // be called before it has succeeded.
    bool Init(CSdlWindow& Window);
    // The back buffer as 800x600 RGBA bytes, top row first.
    bool ReadPixels(std::vector<uint8_t>& vRgba);
    // Waits until everything asked of the driver so far is drawn, for measuring frames.
    void Finish();
    // A mesh's draw with the present world matrix and material: batched when the batch reproduces it, else
    // drawn at once after the batch.
    void DrawSphere(const CGlMesh& Mesh);
    // Draws the sphere draws waiting in the batch, before anything that would come after them.
    void FlushSpheres();

    void Clear(uint32_t uiColour, float fDepth) override;
    void BeginScene() override {}
    void EndScene() override {}
    void Present() override;

    void SetRenderState(ERenderState State, uint32_t uiValue) override;
    void SetTextureStageState(uint32_t uiStage, ETextureStageState State, uint32_t uiValue) override;
    void SetTexture(uint32_t uiStage, ITexture* pTexture) override;
    void SetTransform(ETransform Kind, const CMatrixData& Matrix) override;
    void SetMaterial(const CMaterial& Material) override;
    void SetLight(uint32_t uiIndex, const CLight& Light) override;
    void LightEnable(uint32_t uiIndex, bool bEnable) override;

    void SetFVF(uint32_t uiFVF) override { m_uiFVF = uiFVF; }
    void SetStreamSource(IVertexBuffer* pBuffer, uint32_t uiStride) override;
    void DrawPrimitive(EPrimitive Type, uint32_t uiStartVertex, uint32_t uiPrimitiveCount) override;

    std::unique_ptr<IVertexBuffer> CreateVertexBuffer(uint32_t uiLength, uint32_t uiFVF) override;
    std::unique_ptr<IMesh> CreateSphere(float fRadius, uint32_t uiSlices, uint32_t uiStacks) override;
    std::unique_ptr<ITexture> CreateTextureFromFile(const char* pFileName) override;
    std::unique_ptr<IFont> CreateFont(int32_t iHeight, uint32_t uiWeight, const char* pFaceName) override;
    bool GetImageInfoFromFile(const char* pFileName, uint32_t& uiWidth, uint32_t& uiHeight) override;

private:
    // The value of each render state on a new device with a depth buffer.
    static std::array<uint32_t, RENDER_STATE_COUNT> DefaultRenderStates();
    void SetFixedStates();
    void ApplyRenderState(ERenderState State);
    float StateAsFloat(ERenderState State) const;
    void ApplyModelView();
    void ApplyViewAndLights();
    void ApplyMaterial();
    void DrawWorldVertices(GLenum eMode, const CVertexLayout& Layout, const uint8_t* pFirst, GLsizei iCount);
    void DrawScreenVertices(GLenum eMode, GLsizei iCount);
    void DrawArrays(GLenum eMode, GLsizei iCount);
    void ApplyPointSize();
    float ScaledPointSize(float fDistance) const;
    void DrawScaledPoints(const CVertexLayout& Layout, const uint8_t* pFirst, GLsizei iCount);
    bool BatchReproduces() const;
    CEyeLights EyeLights() const;

    CGlFunctions m_Gl;
    std::unique_ptr<CGlBackBuffer> m_pBackBuffer;
    CSdlWindow* m_pWindow = nullptr;
    std::array<uint32_t, RENDER_STATE_COUNT> m_auiStates;
    CGlTextureStage m_Stage;
    CMatrixData m_View;
    CMatrixData m_World;
    CMatrixData m_Projection;               // the game's, before its depth is remapped
    std::map<uint32_t, CLight> m_mapLights; // by light number, the lights set so far
    uint32_t m_uiLightsOn = 0;              // a bit for each light number that is enabled
    CMaterial m_Material;
    uint32_t m_uiFVF = 0;
    CVertexBytesRef m_pStream;
    uint32_t m_uiStride = 0;
    CGlTextureRef m_pWhite;
    CGlTextureRef m_pTexture; // what stage 0 reads: the set texture, or the white one
    bool m_bFonts = false;
    struct CPictureSize
    {
        std::string m_Path;
        uint32_t m_uiWidth = 0;
        uint32_t m_uiHeight = 0;
    };
    CPictureSize m_LastPicture; // the file of the last texture made, and its size
    CGlSphereBatch m_Spheres;
};
