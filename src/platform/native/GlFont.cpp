#include "platform/native/GlFont.h"

#include "platform/native/GlOverlay.h"
#include "platform/native/GlRenderDevice.h"

#include <SDL_ttf.h>

#include <algorithm>
#include <cmath>

namespace
{
// Where Debian and its kin install DejaVu Sans (package fonts-dejavu-core).
const char* const FONT_FILE = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
constexpr int32_t MAX_CELL_HEIGHT = 1000;
constexpr uint32_t BOLD_WEIGHT = 600;
// Far more strings than any screen shows at once; when full the cache starts again.
constexpr size_t MAX_RENDERED = 256;
// The screens were laid out for a narrower face than DejaVu Sans: at the same cell height its text runs about
// a sixth wider, and labels would run into the numbers placed behind them. Text is squeezed to that width.
constexpr double WIDTH_TO_LAYOUT = 0.85;

int CellHeight(TTF_Font* pFont, int iPoints)
{
    TTF_SetFontSize(pFont, iPoints);
    return TTF_FontHeight(pFont);
}

// The point size whose cell height is nearest to iHeight; of two equally near, the smaller.
int PointsForCell(TTF_Font* pFont, int iHeight)
{
    int iLow = 1, iHigh = 2 * iHeight;
    while(iLow < iHigh)
    {
        const int iMiddle = (iLow + iHigh) / 2;
        if(CellHeight(pFont, iMiddle) < iHeight)
            iLow = iMiddle + 1;
        else
            iHigh = iMiddle;
    }
    if(iLow > 1 && iHeight - CellHeight(pFont, iLow - 1) <= CellHeight(pFont, iLow) - iHeight)
        iLow--;
    return iLow;
}
// The rendered line narrowed to the layout's width, smoothly.
CSurfacePtr Narrowed(SDL_Surface* pLine)
{
    const int iWidth = std::max(1, static_cast<int>(std::lround(pLine->w * WIDTH_TO_LAYOUT)));
    CSurfacePtr pNarrow(SDL_CreateRGBSurfaceWithFormat(0, iWidth, pLine->h, 32, pLine->format->format));
    if(pNarrow && SDL_SoftStretchLinear(pLine, nullptr, pNarrow.get(), nullptr) != 0)
        pNarrow.reset();
    return pNarrow;
}
} // namespace

std::unique_ptr<CGlFont> CGlFont::Create(CGlRenderDevice& Device, int32_t iHeight, uint32_t uiWeight)
{
    if(iHeight <= 0 || iHeight > MAX_CELL_HEIGHT)
        return nullptr;
    TTF_Font* pFont = TTF_OpenFont(FONT_FILE, iHeight);
    if(!pFont)
        return nullptr;
    TTF_SetFontSize(pFont, PointsForCell(pFont, iHeight));
    if(uiWeight >= BOLD_WEIGHT)
        TTF_SetFontStyle(pFont, TTF_STYLE_BOLD);
    return std::unique_ptr<CGlFont>(new CGlFont(Device, pFont));
}

CGlFont::~CGlFont()
{
    TTF_CloseFont(m_pFont);
}

void CGlFont::DrawText(const char* pText, int iCount, const CRect& Rect, uint32_t uiFormat, uint32_t uiColour)
{
    if(!pText)
        return;
    std::string Text(pText);
    if(iCount >= 0 && static_cast<size_t>(iCount) < Text.size())
        Text.resize(static_cast<size_t>(iCount));
    const CRendered* pRendered = Render(Text);
    if(!pRendered)
        return;
    m_Device.FlushSpheres();
    int iX = Rect.m_iLeft;
    if(uiFormat & DT_CENTER)
        iX += (Rect.m_iRight - Rect.m_iLeft - pRendered->m_iWidth) / 2;
    CGlOverlay Overlay;
    if(!(uiFormat & DT_NOCLIP))
        Overlay.ClipTo(Rect);
    Overlay.DrawPicture(pRendered->m_pTexture->Get(), iX, Rect.m_iTop, pRendered->m_iWidth, pRendered->m_iHeight,
                        uiColour);
}

const CGlFont::CRendered* CGlFont::Render(const std::string& Text)
{
    const auto Found = m_mapRendered.find(Text);
    if(Found != m_mapRendered.end())
        return &Found->second;
    if(Text.empty())
        return nullptr;
    const CSurfacePtr pLine(TTF_RenderText_Blended(m_pFont, Text.c_str(), SDL_Color{255, 255, 255, 255}));
    const CSurfacePtr pSurface = pLine ? Narrowed(pLine.get()) : nullptr;
    CGlTextureRef pTexture = pSurface ? TextureFromSurface(pSurface.get()) : nullptr;
    if(!pTexture)
        return nullptr;
    if(m_mapRendered.size() >= MAX_RENDERED)
        m_mapRendered.clear();
    const CRendered Rendered{std::move(pTexture), pSurface->w, pSurface->h};
    return &m_mapRendered.emplace(Text, Rendered).first->second;
}
