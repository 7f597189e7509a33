#include "gfx/Fonts.h"

#include "app/Game.h"

#include <cstdio>

std::unique_ptr<IFont> g_pFontSmall;
std::unique_ptr<IFont> g_pFontMedium;
std::unique_ptr<IFont> g_pFontLarge;

namespace
{
constexpr uint32_t NORMAL_WEIGHT = 400;
constexpr char FACE_NAME[] = "Tahoma";
constexpr int32_t LINE_HEIGHT = 30;
constexpr int32_t LETTER_HEIGHT = 33;
constexpr int32_t TEXT_RIGHT = 800;
constexpr int32_t LETTER_RIGHT = 42;

struct CFontRow
{
    std::unique_ptr<IFont>* m_ppFont;
    int32_t m_iHeight;
};
const CFontRow FONT_TABLE[] = {{&g_pFontSmall, 15}, {&g_pFontMedium, 26}, {&g_pFontLarge, 30}};
} // namespace

bool InitFonts()
{
    IRenderDevice* pDevice = g_pGame->m_Graphics.m_pDevice;
    if(!pDevice)
        return false;
    for(const CFontRow& Row : FONT_TABLE)
    {
        *Row.m_ppFont = pDevice->CreateFont(Row.m_iHeight, NORMAL_WEIGHT, FACE_NAME);
        if(!*Row.m_ppFont)
            return false;
    }
    return true;
}

void ReleaseFonts()
{
    for(const CFontRow& Row : FONT_TABLE)
        Row.m_ppFont->reset();
}

void DrawGameText(const char* pText, int32_t iX, int32_t iY, uint32_t uiColour, int iFont)
{
    if(iFont < FONT_SMALL || iFont > FONT_LARGE || !*FONT_TABLE[iFont].m_ppFont)
        return;
    IFont& Font = **FONT_TABLE[iFont].m_ppFont;
    if(iFont == FONT_LARGE)
        Font.DrawText(pText, 1, CRect{iX, iY, LETTER_RIGHT, iY + LETTER_HEIGHT}, DT_CENTER | DT_NOCLIP, uiColour);
    else
        Font.DrawText(pText, -1, CRect{iX, iY, TEXT_RIGHT, iY + LINE_HEIGHT}, DT_NOCLIP, uiColour);
}

void DrawGameNumber(uint32_t uiValue, int32_t iX, int32_t iY, uint32_t uiColour, int iFont)
{
    char szText[12];
    std::snprintf(szText, sizeof(szText), "%u", uiValue);
    DrawGameText(szText, iX, iY, uiColour, iFont);
}
