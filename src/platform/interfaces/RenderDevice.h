#pragma once
#include <array>
#include <cstdint>
#include <memory>

// The drawing device the game draws with: fixed-function states by number, one light, materials,
// vertex buffers of flexible formats, a sphere mesh, textures loaded from files and text in three fonts.
// The real device draws with OpenGL; the recording twin keeps what it was told, for tests and tools that run
// without a display. Everything the game draws goes through this interface.

enum ETransform
{
    TRANSFORM_WORLD,
    TRANSFORM_VIEW,
    TRANSFORM_PROJECTION,
};

// Sixteen floats row after row, for row vectors on the left, as the game builds its matrices; the same
// memory is a column-major matrix for column vectors on the right.
typedef std::array<float, 16> CMatrixData;

enum ERenderState
{
    RS_FILLMODE,
    RS_SHADEMODE,
    RS_LIGHTING,
    RS_AMBIENT, // ARGB
    RS_SPECULARENABLE,
    RS_NORMALIZENORMALS,
    RS_ZENABLE,
    RS_ZWRITEENABLE,
    RS_ALPHABLENDENABLE,
    RS_SRCBLEND,
    RS_DESTBLEND,
    RS_POINTSPRITEENABLE,
    RS_POINTSCALEENABLE,
    RS_POINTSIZE, // the bits of a float, as are the next four
    RS_POINTSIZE_MIN,
    RS_POINTSCALE_A,
    RS_POINTSCALE_B,
    RS_POINTSCALE_C,
    RENDER_STATE_COUNT
};

enum : uint32_t
{
    FILL_SOLID = 3,
    SHADE_GOURAUD = 2,
    BLEND_ONE = 2,
    BLEND_SRCALPHA = 5,
    BLEND_INVSRCALPHA = 6,
};

enum ETextureStageState
{
    TSS_COLOROP,
    TSS_COLORARG1,
    TSS_COLORARG2,
    TSS_ALPHAOP,
    TSS_ALPHAARG1,
    TSS_ALPHAARG2,
    TEXTURE_STAGE_STATE_COUNT
};

enum : uint32_t
{
    TOP_SELECTARG1 = 2,
    TOP_SELECTARG2 = 3,
    TOP_MODULATE = 4,
    TA_DIFFUSE = 0,
    TA_CURRENT = 1,
    TA_TEXTURE = 2,
};

enum EPrimitive
{
    PT_MESH = 0, // what a mesh draws; only the recording device reports it
    PT_POINTLIST = 1,
    PT_LINELIST = 2,
    PT_TRIANGLELIST = 4,
    PT_TRIANGLESTRIP = 5,
};

// The vertices that so many primitives of the type take.
uint64_t VerticesOf(EPrimitive Type, uint32_t uiPrimitives);

// Flexible vertex format bits. The game uses two formats: screen vertices (x, y, z, rhw, u, v: pixels of the
// 800x600 back buffer, already transformed) and line vertices (x, y, z and an ARGB colour).
enum : uint32_t
{
    FVF_XYZ = 0x002,
    FVF_XYZRHW = 0x004,
    FVF_DIFFUSE = 0x040,
    FVF_TEX1 = 0x100,
    SCREEN_FVF = FVF_XYZRHW | FVF_TEX1, // 260
    LINE_FVF = FVF_XYZ | FVF_DIFFUSE,   // 66
};

// Text formats of the font calls.
enum : uint32_t
{
    DT_CENTER = 1,
    DT_NOCLIP = 256,
};

struct CColourValue
{
    float r = 0.0f, g = 0.0f, b = 0.0f, a = 0.0f;
};

struct CMaterial
{
    CColourValue m_Diffuse;
    CColourValue m_Ambient;
    CColourValue m_Specular;
    CColourValue m_Emissive;
    float m_fPower = 0.0f;
};

struct CLight
{
    CColourValue m_Diffuse;
    CColourValue m_Specular;
    CColourValue m_Ambient;
    std::array<float, 3> m_afPosition{};
    std::array<float, 3> m_afDirection{};
    float m_fRange = 0.0f;
    float m_fAttenuation0 = 0.0f, m_fAttenuation1 = 0.0f, m_fAttenuation2 = 0.0f;
};

struct CRect
{
    int32_t m_iLeft = 0, m_iTop = 0, m_iRight = 0, m_iBottom = 0;
};

// A picture on the device. Its own size may differ from the file's; the game never asks for it.
class ITexture
{
public:
    virtual ~ITexture() = default;
};

class IVertexBuffer
{
public:
    virtual ~IVertexBuffer() = default;
    // The whole buffer for writing; null when it can't be had.
    virtual void* Lock() = 0;
    virtual void Unlock() = 0;
    virtual uint32_t GetLength() const = 0;
};

class IMesh
{
public:
    virtual ~IMesh() = default;
    // Draws with the present world matrix and material.
    virtual void DrawSubset(uint32_t uiSubset) = 0;
};

class IFont
{
public:
    virtual ~IFont() = default;
    // iCount characters of pText, or the whole string for -1, in the rectangle with the given format.
    virtual void DrawText(const char* pText, int iCount, const CRect& Rect, uint32_t uiFormat, uint32_t uiColour) = 0;
};

class IRenderDevice
{
public:
    virtual ~IRenderDevice() = default;

    virtual void Clear(uint32_t uiColour, float fDepth) = 0;
    virtual void BeginScene() = 0;
    virtual void EndScene() = 0;
    virtual void Present() = 0;

    virtual void SetRenderState(ERenderState State, uint32_t uiValue) = 0;
    virtual void SetTextureStageState(uint32_t uiStage, ETextureStageState State, uint32_t uiValue) = 0;
    // A null texture switches texturing off.
    virtual void SetTexture(uint32_t uiStage, ITexture* pTexture) = 0;
    virtual void SetTransform(ETransform Kind, const CMatrixData& Matrix) = 0;
    virtual void SetMaterial(const CMaterial& Material) = 0;
    virtual void SetLight(uint32_t uiIndex, const CLight& Light) = 0;
    virtual void LightEnable(uint32_t uiIndex, bool bEnable) = 0;

    virtual void SetFVF(uint32_t uiFVF) = 0;
    virtual void SetStreamSource(IVertexBuffer* pBuffer, uint32_t uiStride) = 0;
    virtual void DrawPrimitive(EPrimitive Type, uint32_t uiStartVertex, uint32_t uiPrimitiveCount) = 0;

    // Null on failure, for each of the four.
    virtual std::unique_ptr<IVertexBuffer> CreateVertexBuffer(uint32_t uiLength, uint32_t uiFVF) = 0;
    // A sphere around the origin whose outside faces are wound clockwise as seen from outside.
    virtual std::unique_ptr<IMesh> CreateSphere(float fRadius, uint32_t uiSlices, uint32_t uiStacks) = 0;
    // PNG and TGA pictures.
    virtual std::unique_ptr<ITexture> CreateTextureFromFile(const char* pFileName) = 0;
    // Text of the given cell height in pixels.
    virtual std::unique_ptr<IFont> CreateFont(int32_t iHeight, uint32_t uiWeight, const char* pFaceName) = 0;
    // The width and height of the picture in a file; false when the file can't be read as a picture.
    virtual bool GetImageInfoFromFile(const char* pFileName, uint32_t& uiWidth, uint32_t& uiHeight) = 0;
};
