// Lettering in DejaVu Sans, the game's one type family. Text becomes a coverage mask, so that it can be
// filled with gradients and given outlines, glows and shadows like any other shape.
#pragma once

#include "Canvas.h"

#include <string>
#include <vector>

namespace art
{
enum class EFace
{
    Regular,
    Bold,
    Light,
    Oblique
};
enum class EAlign
{
    Left,
    Centre,
    Right
};

// Opens the fonts; throws std::runtime_error naming the missing file. Call once before any text.
void OpenFonts();
void CloseFonts();

// The text's line box has its top-left corner at (iLeft, iTop).
CMask TextMask(EFace eFace, int iSize, const std::string& Text, int iLeft, int iTop);
int TextWidth(EFace eFace, int iSize, const std::string& Text);
int LineHeight(EFace eFace, int iSize);
// Distance from the top of the line box to the top of a capital letter, and to the baseline.
int CapTop(EFace eFace, int iSize);
int Baseline(EFace eFace, int iSize);
// The top of the line box that puts the middle of the capitals at fCapCentre.
float LineTopFor(EFace eFace, int iSize, float fCapCentre);

struct CTextStyle
{
    EFace m_eFace = EFace::Regular;
    int m_iSize = 16;
    CPaint m_fnFill = Solid({1, 1, 1, 1});
    float m_fOutline = 0.0f; // width of a rim around the letters
    CRgba m_OutlineColour{0, 0, 0, 1};
    float m_fShadow = 0.0f; // blur radius of a drop shadow; 0 for none
    int m_iShadowDx = 0, m_iShadowDy = 2;
    CRgba m_ShadowColour{0, 0, 0, 0.7f};
    float m_fGlow = 0.0f; // blur radius of a halo drawn under the letters
    CRgba m_GlowColour{1, 1, 1, 0.5f};
};

CTextStyle Plain(EFace eFace, int iSize, CRgba Colour);

// fX is the left edge, the centre or the right edge of the text, by eAlign; fY is the top of the line box.
void DrawText(CCanvas& Canvas, const std::string& Text, float fX, float fY, const CTextStyle& Style,
              EAlign eAlign = EAlign::Left);
// Draws text so that its capitals are centred on fCy.
void DrawTextCentredOn(CCanvas& Canvas, const std::string& Text, float fCx, float fCy, const CTextStyle& Style);

// Words broken into lines no wider than iMaxWidth.
std::vector<std::string> Wrapped(EFace eFace, int iSize, const std::string& Text, int iMaxWidth);
} // namespace art
