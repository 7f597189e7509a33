#include "platform/twins/RecordingRenderDevice.h"

#include <cstdio>
#include <cstring>

namespace
{
std::string Hex(uint32_t uiValue)
{
    char szText[16];
    std::snprintf(szText, sizeof(szText), "%x", uiValue);
    return szText;
}
} // namespace

class CRecordingBuffer : public IVertexBuffer
{
public:
    CRecordingBuffer(uint32_t uiLength, CRecordingRenderDevice& Device) : m_vBytes(uiLength), m_Device(Device)
    {
        m_Device.m_uiLiveBuffers++;
    }
    ~CRecordingBuffer() override { m_Device.m_uiLiveBuffers--; }
    void* Lock() override { return m_Device.m_bFailLocks ? nullptr : m_vBytes.data(); }
    void Unlock() override {}
    uint32_t GetLength() const override { return static_cast<uint32_t>(m_vBytes.size()); }

    std::vector<uint8_t> m_vBytes;

private:
    CRecordingRenderDevice& m_Device;
};

class CRecordingTexture : public ITexture
{
public:
    CRecordingTexture(std::string File, CRecordingRenderDevice& Device) : m_File(std::move(File)), m_Device(Device)
    {
        m_Device.m_uiLiveTextures++;
    }
    ~CRecordingTexture() override { m_Device.m_uiLiveTextures--; }

    std::string m_File;

private:
    CRecordingRenderDevice& m_Device;
};

class CRecordingMesh : public IMesh
{
public:
    explicit CRecordingMesh(CRecordingRenderDevice& Device) : m_Device(Device) {}
    void DrawSubset(uint32_t) override { m_Device.RecordMeshDraw(); }

private:
    CRecordingRenderDevice& m_Device;
};

class CRecordingFont : public IFont
{
public:
    CRecordingFont(int32_t iHeight, CRecordingRenderDevice& Device) : m_iHeight(iHeight), m_Device(Device) {}
    void DrawText(const char* pText, int iCount, const CRect& Rect, uint32_t uiFormat, uint32_t uiColour) override
    {
        std::string Text(pText);
        if(iCount >= 0 && static_cast<size_t>(iCount) < Text.size())
            Text.resize(static_cast<size_t>(iCount));
        m_Device.RecordText({Text, m_iHeight, Rect, uiFormat, uiColour});
    }

private:
    int32_t m_iHeight;
    CRecordingRenderDevice& m_Device;
};

void CRecordingRenderDevice::Log(std::string Entry)
{
    if(m_bRecording)
        m_vLog.push_back(std::move(Entry));
}

void CRecordingRenderDevice::Clear(uint32_t uiColour, float)
{
    m_uiClearColour = uiColour;
    Log("Clear " + Hex(uiColour));
}

void CRecordingRenderDevice::BeginScene()
{
    m_uiScenes++;
    Log("BeginScene");
}

void CRecordingRenderDevice::EndScene()
{
    Log("EndScene");
}

void CRecordingRenderDevice::Present()
{
    m_uiPresents++;
    Log("Present");
}

void CRecordingRenderDevice::SetRenderState(ERenderState State, uint32_t uiValue)
{
    m_auiStates[State] = uiValue;
    Log("SetRenderState " + std::to_string(State) + " " + Hex(uiValue));
}

void CRecordingRenderDevice::SetTextureStageState(uint32_t uiStage, ETextureStageState State, uint32_t uiValue)
{
    if(uiStage == 0)
        m_auiStageStates[State] = uiValue;
    Log("SetTextureStageState " + std::to_string(State) + " " + Hex(uiValue));
}

void CRecordingRenderDevice::SetTexture(uint32_t, ITexture* pTexture)
{
    m_pTexture = pTexture;
    Log(pTexture ? "SetTexture " + static_cast<CRecordingTexture*>(pTexture)->m_File : "SetTexture null");
}

void CRecordingRenderDevice::SetTransform(ETransform Kind, const CMatrixData& Matrix)
{
    if(Kind == TRANSFORM_WORLD)
        m_World = Matrix;
    if(m_bRecording)
        m_vTransforms.push_back({Kind, Matrix});
    Log("SetTransform " + std::to_string(Kind));
}

void CRecordingRenderDevice::SetMaterial(const CMaterial& Material)
{
    m_Material = Material;
    Log("SetMaterial");
}

void CRecordingRenderDevice::SetLight(uint32_t uiIndex, const CLight& Light)
{
    m_mapLights[uiIndex] = Light;
    Log("SetLight " + std::to_string(uiIndex));
}

void CRecordingRenderDevice::LightEnable(uint32_t uiIndex, bool bEnable)
{
    m_mapLightsOn[uiIndex] = bEnable;
    Log("LightEnable " + std::to_string(uiIndex) + (bEnable ? " on" : " off"));
}

void CRecordingRenderDevice::SetFVF(uint32_t uiFVF)
{
    m_uiFVF = uiFVF;
    Log("SetFVF " + std::to_string(uiFVF));
}

void CRecordingRenderDevice::SetStreamSource(IVertexBuffer* pBuffer, uint32_t uiStride)
{
    m_pStream = pBuffer;
    m_uiStride = uiStride;
    Log("SetStreamSource " + std::to_string(uiStride));
}

void CRecordingRenderDevice::DrawPrimitive(EPrimitive Type, uint32_t uiStartVertex, uint32_t uiPrimitiveCount)
{
    CDraw Draw = DrawWithStates();
    Draw.m_Type = Type;
    Draw.m_uiStart = uiStartVertex;
    Draw.m_uiCount = uiPrimitiveCount;
    Draw.m_uiFVF = m_uiFVF;
    Draw.m_uiStride = m_uiStride;
    const std::vector<uint8_t> Empty;
    const std::vector<uint8_t>& vBytes = m_pStream ? static_cast<CRecordingBuffer*>(m_pStream)->m_vBytes : Empty;
    const size_t uFirst = static_cast<size_t>(uiStartVertex) * m_uiStride;
    const size_t uEnd = uFirst + static_cast<size_t>(VerticesOf(Type, uiPrimitiveCount)) * m_uiStride;
    Draw.m_bOutsideBuffer = uEnd > vBytes.size();
    if(!Draw.m_bOutsideBuffer)
        Draw.m_vVertices.assign(vBytes.begin() + static_cast<std::ptrdiff_t>(uFirst),
                                vBytes.begin() + static_cast<std::ptrdiff_t>(uEnd));
    if(m_bRecording)
        m_vDraws.push_back(std::move(Draw));
    Log("DrawPrimitive " + std::to_string(Type) + " " + std::to_string(uiPrimitiveCount));
}

// What every draw is drawn with: the world matrix, the material, the states and the bound picture.
CRecordingRenderDevice::CDraw CRecordingRenderDevice::DrawWithStates() const
{
    CDraw Draw;
    Draw.m_World = m_World;
    Draw.m_Material = m_Material;
    Draw.m_auiStates = m_auiStates;
    Draw.m_Texture = m_pTexture ? static_cast<CRecordingTexture*>(m_pTexture)->m_File : "";
    return Draw;
}

void CRecordingRenderDevice::RecordMeshDraw()
{
    if(m_bRecording)
        m_vDraws.push_back(DrawWithStates());
    Log("DrawSubset");
}

void CRecordingRenderDevice::RecordText(const CText& Text)
{
    if(m_bRecording)
        m_vTexts.push_back(Text);
    Log("DrawText " + Text.m_Text);
}

std::unique_ptr<IVertexBuffer> CRecordingRenderDevice::CreateVertexBuffer(uint32_t uiLength, uint32_t)
{
    return std::make_unique<CRecordingBuffer>(uiLength, *this);
}

std::unique_ptr<IMesh> CRecordingRenderDevice::CreateSphere(float, uint32_t, uint32_t)
{
    return std::make_unique<CRecordingMesh>(*this);
}

std::unique_ptr<ITexture> CRecordingRenderDevice::CreateTextureFromFile(const char* pFileName)
{
    m_vTextureFiles.push_back(pFileName);
    uint32_t uiWidth, uiHeight;
    if(!GetImageInfoFromFile(pFileName, uiWidth, uiHeight))
        return nullptr;
    return std::make_unique<CRecordingTexture>(pFileName, *this);
}

std::unique_ptr<IFont> CRecordingRenderDevice::CreateFont(int32_t iHeight, uint32_t, const char*)
{
    return std::make_unique<CRecordingFont>(iHeight, *this);
}

bool CRecordingRenderDevice::GetImageInfoFromFile(const char* pFileName, uint32_t& uiWidth, uint32_t& uiHeight)
{
    if(m_setUnreadable.count(pFileName))
        return false;
    const auto Found = m_mapImageSizes.find(pFileName);
    uiWidth = Found != m_mapImageSizes.end() ? Found->second.first : DEFAULT_IMAGE_SIZE;
    uiHeight = Found != m_mapImageSizes.end() ? Found->second.second : DEFAULT_IMAGE_SIZE;
    return true;
}

void CRecordingRenderDevice::ClearRecords()
{
    m_vLog.clear();
    m_vTransforms.clear();
    m_vDraws.clear();
    m_vTexts.clear();
}

std::vector<CRecordingRenderDevice::CScreenVertex> CRecordingRenderDevice::ScreenVertices(const CDraw& Draw)
{
    std::vector<CScreenVertex> vVertices(Draw.m_vVertices.size() / sizeof(CScreenVertex));
    if(!vVertices.empty())
        std::memcpy(vVertices.data(), Draw.m_vVertices.data(), vVertices.size() * sizeof(CScreenVertex));
    return vVertices;
}
