#pragma once
#include "platform/interfaces/RenderDevice.h"

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

// The device of headless tests and tools: it draws nothing and keeps every call, with the states, the
// world matrix, the material, the bound texture's file name and a copy of the vertices of each draw.
class CRecordingRenderDevice : public IRenderDevice
{
public:
    struct CTransformCall
    {
        ETransform m_Kind;
        CMatrixData m_Matrix;
    };

    struct CDraw
    {
        EPrimitive m_Type = PT_MESH;
        uint32_t m_uiStart = 0;
        uint32_t m_uiCount = 0; // primitives
        uint32_t m_uiFVF = 0;
        uint32_t m_uiStride = 0;
        std::string m_Texture; // file of the bound texture; empty when none
        std::vector<uint8_t> m_vVertices;
        bool m_bOutsideBuffer = false; // the draw reached past the end of its buffer
        CMatrixData m_World{};
        CMaterial m_Material;
        std::array<uint32_t, RENDER_STATE_COUNT> m_auiStates{};
    };

    struct CText
    {
        std::string m_Text; // the characters drawn, after the count
        int32_t m_iFontHeight = 0;
        CRect m_Rect;
        uint32_t m_uiFormat = 0;
        uint32_t m_uiColour = 0;
    };

    // A screen vertex as a draw holds it.
    struct CScreenVertex
    {
        float x, y, z, rhw, u, v;
    };

    void Clear(uint32_t uiColour, float fDepth) override;
    void BeginScene() override;
    void EndScene() override;
    void Present() override;
    void SetRenderState(ERenderState State, uint32_t uiValue) override;
    void SetTextureStageState(uint32_t uiStage, ETextureStageState State, uint32_t uiValue) override;
    void SetTexture(uint32_t uiStage, ITexture* pTexture) override;
    void SetTransform(ETransform Kind, const CMatrixData& Matrix) override;
    void SetMaterial(const CMaterial& Material) override;
    void SetLight(uint32_t uiIndex, const CLight& Light) override;
    void LightEnable(uint32_t uiIndex, bool bEnable) override;
    void SetFVF(uint32_t uiFVF) override;
    void SetStreamSource(IVertexBuffer* pBuffer, uint32_t uiStride) override;
    void DrawPrimitive(EPrimitive Type, uint32_t uiStartVertex, uint32_t uiPrimitiveCount) override;
    std::unique_ptr<IVertexBuffer> CreateVertexBuffer(uint32_t uiLength, uint32_t uiFVF) override;
    std::unique_ptr<IMesh> CreateSphere(float fRadius, uint32_t uiSlices, uint32_t uiStacks) override;
    std::unique_ptr<ITexture> CreateTextureFromFile(const char* pFileName) override;
    std::unique_ptr<IFont> CreateFont(int32_t iHeight, uint32_t uiWeight, const char* pFaceName) override;
    bool GetImageInfoFromFile(const char* pFileName, uint32_t& uiWidth, uint32_t& uiHeight) override;

    // Forgets what was drawn, keeping the states.
    void ClearRecords();
    static std::vector<CScreenVertex> ScreenVertices(const CDraw& Draw);

    // Every picture file loads, without looking at the disk, at the size given here or DEFAULT_IMAGE_SIZE
    // both ways, except the files named unreadable.
    static constexpr uint32_t DEFAULT_IMAGE_SIZE = 64;
    std::map<std::string, std::pair<uint32_t, uint32_t>> m_mapImageSizes;
    std::set<std::string> m_setUnreadable;
    bool m_bFailLocks = false;
    // Off, the device keeps only its present state: for long runs that need the camera but no records.
    bool m_bRecording = true;

    std::vector<std::string> m_vLog; // every call that changes or draws, by name, in order
    std::vector<CTransformCall> m_vTransforms;
    std::vector<CDraw> m_vDraws;
    std::vector<CText> m_vTexts;
    std::vector<std::string> m_vTextureFiles; // every picture asked for, in order
    uint32_t m_uiClearColour = 0;
    uint32_t m_uiScenes = 0;
    uint32_t m_uiPresents = 0;
    std::array<uint32_t, RENDER_STATE_COUNT> m_auiStates{};
    std::array<uint32_t, TEXTURE_STAGE_STATE_COUNT> m_auiStageStates{};
    std::map<uint32_t, CLight> m_mapLights;
    std::map<uint32_t, bool> m_mapLightsOn;
    CMaterial m_Material;
    CMatrixData m_World{};
    uint32_t m_uiFVF = 0;
    uint32_t m_uiStride = 0;
    IVertexBuffer* m_pStream = nullptr;
    ITexture* m_pTexture = nullptr;
    uint32_t m_uiLiveBuffers = 0; // buffers made and not yet destroyed
    uint32_t m_uiLiveTextures = 0;

private:
    friend class CRecordingMesh;
    friend class CRecordingFont;
    void Log(std::string Entry);
    CDraw DrawWithStates() const;
    void RecordMeshDraw();
    void RecordText(const CText& Text);
};
