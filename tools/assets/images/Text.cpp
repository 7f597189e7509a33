#include "Text.h"

#include "Filters.h"

#include <SDL.h>
#include <SDL_ttf.h>

#include <cmath>
#include <cstddef>
#include <map>
#include <stdexcept>
#include <utility>

namespace art
{
namespace
{
// Where Debian installs the DejaVu family (package fonts-dejavu-core).
const char* const FONT_FOLDER = "/usr/share/fonts/truetype/dejavu/";

const char* FileOf(EFace eFace)
{
    switch(eFace)
    {
    case EFace::Bold: return "DejaVuSans-Bold.ttf";
    case EFace::Light: return "DejaVuSans-ExtraLight.ttf";
    case EFace::Oblique: return "DejaVuSans-Oblique.ttf";
    case EFace::Regular: break;
    }
    return "DejaVuSans.ttf";
}

std::map<std::pair<EFace, int>, TTF_Font*>& Cache()
{
    static std::map<std::pair<EFace, int>, TTF_Font*> mapFonts;
    return mapFonts;
}

TTF_Font* Font(EFace eFace, int iSize)
{
    auto Key = std::make_pair(eFace, iSize);
    auto Found = Cache().find(Key);
    if(Found != Cache().end())
        return Found->second;
    std::string Path = std::string(FONT_FOLDER) + FileOf(eFace);
    TTF_Font* pFont = TTF_OpenFont(Path.c_str(), iSize);
    if(!pFont)
        throw std::runtime_error("cannot open font " + Path + ": " + TTF_GetError());
    Cache()[Key] = pFont;
    return pFont;
}
} // namespace

void OpenFonts()
{
    if(TTF_Init() != 0)
        throw std::runtime_error(std::string("cannot start the font library: ") + TTF_GetError());
    for(EFace eFace : {EFace::Regular, EFace::Bold, EFace::Light, EFace::Oblique})
        Font(eFace, 12);
}

void CloseFonts()
{
    for(auto& Entry : Cache())
        TTF_CloseFont(Entry.second);
    Cache().clear();
    TTF_Quit();
}

CMask TextMask(EFace eFace, int iSize, const std::string& Text, int iLeft, int iTop)
{
    if(Text.empty())
        return CMask(iLeft, iTop, 0, 0);
    SDL_Surface* pRaw = TTF_RenderUTF8_Blended(Font(eFace, iSize), Text.c_str(), SDL_Color{255, 255, 255, 255});
    if(!pRaw)
        throw std::runtime_error(std::string("cannot render text: ") + TTF_GetError());
    // The font library's surface may have a padded pitch and its own layout; a known format reads safely.
    SDL_Surface* pSurface = SDL_ConvertSurfaceFormat(pRaw, SDL_PIXELFORMAT_ARGB8888, 0);
    SDL_FreeSurface(pRaw);
    if(!pSurface)
        throw std::runtime_error(std::string("cannot convert text: ") + SDL_GetError());
    CMask Mask(iLeft, iTop, pSurface->w, pSurface->h);
    for(int iY = 0; iY < pSurface->h; ++iY)
    {
        const auto* pRow = reinterpret_cast<const Uint32*>(static_cast<const Uint8*>(pSurface->pixels) +
                                                           static_cast<std::ptrdiff_t>(iY) * pSurface->pitch);
        for(int iX = 0; iX < pSurface->w; ++iX)
            Mask.Cell(iLeft + iX, iTop + iY) = static_cast<float>(pRow[iX] >> 24) / 255.0f;
    }
    SDL_FreeSurface(pSurface);
    return Mask;
}

int TextWidth(EFace eFace, int iSize, const std::string& Text)
{
    int iW = 0, iH = 0;
    TTF_SizeUTF8(Font(eFace, iSize), Text.c_str(), &iW, &iH);
    return iW;
}

int LineHeight(EFace eFace, int iSize)
{
    return TTF_FontHeight(Font(eFace, iSize));
}

int Baseline(EFace eFace, int iSize)
{
    return TTF_FontAscent(Font(eFace, iSize));
}

int CapTop(EFace eFace, int iSize)
{
    int iMinX, iMaxX, iMinY, iMaxY, iAdvance;
    TTF_GlyphMetrics(Font(eFace, iSize), 'H', &iMinX, &iMaxX, &iMinY, &iMaxY, &iAdvance);
    return Baseline(eFace, iSize) - iMaxY;
}

float LineTopFor(EFace eFace, int iSize, float fCapCentre)
{
    return fCapCentre - (CapTop(eFace, iSize) + Baseline(eFace, iSize)) / 2.0f;
}

CTextStyle Plain(EFace eFace, int iSize, CRgba Colour)
{
    CTextStyle Style;
    Style.m_eFace = eFace;
    Style.m_iSize = iSize;
    Style.m_fnFill = Solid(Colour);
    return Style;
}

void DrawText(CCanvas& Canvas, const std::string& Text, float fX, float fY, const CTextStyle& Style, EAlign eAlign)
{
    int iW = TextWidth(Style.m_eFace, Style.m_iSize, Text);
    float fLeft = eAlign == EAlign::Left ? fX : eAlign == EAlign::Centre ? fX - iW / 2.0f : fX - iW;
    CMask Letters = TextMask(Style.m_eFace, Style.m_iSize, Text, static_cast<int>(std::lround(fLeft)),
                             static_cast<int>(std::lround(fY)));
    CMask Body = Style.m_fOutline > 0.0f ? Dilated(Letters, Style.m_fOutline) : Letters;
    if(Style.m_fGlow > 0.0f)
        Canvas.Paint(Blurred(Body, Style.m_fGlow), Solid(Style.m_GlowColour));
    if(Style.m_fShadow > 0.0f)
        Canvas.Paint(Shifted(Blurred(Body, Style.m_fShadow), Style.m_iShadowDx, Style.m_iShadowDy),
                     Solid(Style.m_ShadowColour));
    if(Style.m_fOutline > 0.0f)
        Canvas.Paint(Body, Solid(Style.m_OutlineColour));
    Canvas.Paint(Letters, Style.m_fnFill);
}

void DrawTextCentredOn(CCanvas& Canvas, const std::string& Text, float fCx, float fCy, const CTextStyle& Style)
{
    DrawText(Canvas, Text, fCx, LineTopFor(Style.m_eFace, Style.m_iSize, fCy), Style, EAlign::Centre);
}

std::vector<std::string> Wrapped(EFace eFace, int iSize, const std::string& Text, int iMaxWidth)
{
    std::vector<std::string> vLines;
    std::string Line, Word;
    auto FlushWord = [&]() {
        if(Word.empty())
            return;
        std::string Candidate = Line.empty() ? Word : Line + " " + Word;
        if(!Line.empty() && TextWidth(eFace, iSize, Candidate) > iMaxWidth)
        {
            vLines.push_back(Line);
            Line = Word;
        }
        else
        {
            Line = Candidate;
        }
        Word.clear();
    };
    for(char cLetter : Text)
    {
        if(cLetter == ' ')
            FlushWord();
        else
            Word += cLetter;
    }
    FlushWord();
    if(!Line.empty())
        vLines.push_back(Line);
    return vLines;
}
} // namespace art
