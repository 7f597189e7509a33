#pragma once
#include "platform/native/GlTexture.h"

#include <SDL_ttf.h>

#include <string>
#include <unordered_map>

class CGlRenderDevice;

// Text in DejaVu Sans, the size chosen so that its cell is as tall as the game asked. The game draws the same
// strings every frame, so each string's picture is kept, up to a bound.
class CGlFont : public IFont
{
public:
    // Null when the font file can't be opened or the height is out of reach. Needs SDL_ttf started. Text is
    // drawn over what the device has drawn before it.
    static std::unique_ptr<CGlFont> Create(CGlRenderDevice& Device, int32_t iHeight, uint32_t uiWeight);
    CGlFont(const CGlFont&) = delete;
    CGlFont& operator=(const CGlFont&) = delete;
    ~CGlFont() override;

    // The characters are the game's single bytes (Latin-1). The top of the cell is at the rectangle's top.
    void DrawText(const char* pText, int iCount, const CRect& Rect, uint32_t uiFormat, uint32_t uiColour) override;

private:
    struct CRendered
    {
        CGlTextureRef m_pTexture;
        int m_iWidth;
        int m_iHeight;
    };

    CGlFont(CGlRenderDevice& Device, TTF_Font* pFont) : m_Device(Device), m_pFont(pFont) {}
    // The picture of a string, white with its coverage as alpha; null for nothing to draw.
    const CRendered* Render(const std::string& Text);

    CGlRenderDevice& m_Device;
    TTF_Font* m_pFont;
    std::unordered_map<std::string, CRendered> m_mapRendered;
};
