#include "Widgets.h"

#include "Filters.h"
#include "Gradients.h"
#include "Shapes.h"
#include "Text.h"
#include "Theme.h"

#include <algorithm>
#include <cmath>

namespace art
{
namespace
{
CShape Pill(float fWidth, float fHeight)
{
    return RoundRect(0.5f, 0.5f, fWidth - 1.0f, fHeight - 1.0f, fHeight / 2.0f - 1.0f);
}

void ButtonBody(CCanvas& Canvas, const CShape& Body, ELit eLit)
{
    float fH = static_cast<float>(Canvas.Height());
    CRgba Top = eLit == ELit::Yes ? theme::ButtonLitTop() : theme::ButtonTop();
    CRgba Low = eLit == ELit::Yes ? theme::ButtonLitLow() : theme::ButtonLow();
    Canvas.Paint(Rasterize(Body), Vertical(0, fH, {{0.0f, Top}, {1.0f, Low}}));
    // Glass sheen on the upper half.
    CShape Sheen = Intersect(Inset(Body, 2.0f), RoundRect(0, 0, static_cast<float>(Canvas.Width()), fH * 0.48f, 0));
    Canvas.Paint(
        Rasterize(Sheen),
        Vertical(0, fH * 0.5f, {{0.0f, {1, 1, 1, eLit == ELit::Yes ? 0.28f : 0.14f}}, {1.0f, {1, 1, 1, 0.03f}}}));
}

void ButtonGlow(CCanvas& Canvas, const CShape& Body)
{
    // Light gathered inside the rim, kept within the body so that the picture's edge stays clean.
    CMask Ring = Blurred(Rasterize(Outline(Body, 2.0f)), 6.0f);
    Canvas.Paint(Multiplied(Ring, Rasterize(Body)), Solid(WithAlpha(theme::Gold(), 0.55f)), EBlend::Add);
}

void ButtonRim(CCanvas& Canvas, const CShape& Body, ELit eLit)
{
    float fH = static_cast<float>(Canvas.Height());
    CRgba Hi = eLit == ELit::Yes ? theme::GoldLight() : theme::Gold();
    CRgba Lo = eLit == ELit::Yes ? theme::Gold() : theme::GoldDeep();
    Canvas.Paint(Rasterize(Outline(Inset(Body, 1.0f), 1.6f)), Vertical(0, fH, {{0.0f, Hi}, {1.0f, Lo}}), EBlend::Over,
                 eLit == ELit::Yes ? 1.0f : 0.8f);
}

void ButtonGems(CCanvas& Canvas, ELit eLit)
{
    float fH = static_cast<float>(Canvas.Height()), fR = std::max(2.0f, fH * 0.09f);
    for(float fCx : {fH / 2.0f, Canvas.Width() - fH / 2.0f})
    {
        CShape Gem =
            Polygon({{fCx, fH / 2 - fR * 1.6f}, {fCx + fR, fH / 2}, {fCx, fH / 2 + fR * 1.6f}, {fCx - fR, fH / 2}});
        CRgba Colour = eLit == ELit::Yes ? theme::GoldLight() : WithAlpha(theme::Gold(), 0.55f);
        Canvas.Paint(Rasterize(Gem), Solid(Colour));
    }
}
} // namespace

CCanvas Button(int iWidth, int iHeight, const std::string& Label, ELit eLit, int iLabelSize)
{
    CCanvas Canvas(iWidth, iHeight);
    CShape Body = Pill(static_cast<float>(iWidth), static_cast<float>(iHeight));
    ButtonBody(Canvas, Body, eLit);
    if(eLit == ELit::Yes)
        ButtonGlow(Canvas, Body);
    ButtonRim(Canvas, Body, eLit);
    if(iWidth > 3 * iHeight)
        ButtonGems(Canvas, eLit);

    CTextStyle Style = Plain(EFace::Bold, iLabelSize, eLit == ELit::Yes ? CRgba{1, 1, 1, 1} : theme::Cream());
    Style.m_fShadow = 1.5f;
    Style.m_iShadowDy = 1;
    if(eLit == ELit::Yes)
    {
        Style.m_fGlow = 5.0f;
        Style.m_GlowColour = WithAlpha(theme::Gold(), 0.8f);
    }
    DrawTextCentredOn(Canvas, Label, iWidth / 2.0f, iHeight / 2.0f, Style);
    return Canvas;
}

void PaperPanel(CCanvas& Canvas, float fLeft, float fTop, float fWidth, float fHeight)
{
    CShape Body = RoundRect(fLeft, fTop, fWidth, fHeight, 6.0f);
    Canvas.Paint(Shifted(Blurred(Rasterize(Body), 8.0f), 0, 4), Solid({0, 0, 0, 0.55f}));
    Canvas.Paint(Rasterize(Body),
                 Vertical(fTop, fTop + fHeight, {{0.0f, theme::Paper()}, {1.0f, theme::PaperShade()}}));
    Canvas.Paint(Rasterize(Outline(Inset(Body, 0.5f), 1.2f)), Solid(theme::PaperEdge()));
    Canvas.Paint(Rasterize(Outline(Inset(Body, 3.5f), 1.0f)), Solid(WithAlpha(theme::PaperEdge(), 0.35f)));
}

void PaperField(CCanvas& Canvas, float fLeft, float fTop, float fWidth, float fHeight)
{
    CShape Body = RoundRect(fLeft, fTop, fWidth, fHeight, 4.0f);
    Canvas.Paint(Rasterize(Body), Solid(theme::Paper()));
    // Shade cast by the upper edge makes the field read as sunken.
    CMask Inner = Multiplied(Shifted(Blurred(Rasterize(Outline(Body, 2.0f)), 4.0f), 0, 2), Rasterize(Body));
    Canvas.Paint(Inner, Solid({0.25f, 0.2f, 0.1f, 0.5f}));
    Canvas.Paint(Rasterize(Outline(Inset(Body, 0.5f), 1.4f)), Solid(theme::Gold()));
}

void GlassPanel(CCanvas& Canvas, float fLeft, float fTop, float fWidth, float fHeight, float fOpacity)
{
    CShape Body = RoundRect(fLeft, fTop, fWidth, fHeight, 10.0f);
    Canvas.Paint(Shifted(Blurred(Rasterize(Body), 10.0f), 0, 5), Solid({0, 0, 0, 0.5f}), EBlend::Over, fOpacity);
    Canvas.Paint(Rasterize(Body),
                 Vertical(fTop, fTop + fHeight, {{0.0f, Hex(0x131c44, 0.78f)}, {1.0f, Hex(0x080c22, 0.82f)}}),
                 EBlend::Over, fOpacity);
    Canvas.Paint(Rasterize(Outline(Inset(Body, 0.5f), 1.2f)), Solid(WithAlpha(theme::Gold(), 0.55f)), EBlend::Over,
                 fOpacity);
}

void Caption(CCanvas& Canvas, const std::string& Text, float fX, float fY)
{
    CTextStyle Style = Plain(EFace::Bold, theme::HEAD_SIZE, theme::Gold());
    Style.m_fShadow = 1.5f;
    Style.m_iShadowDy = 1;
    DrawText(Canvas, Text, fX, fY, Style);
}

void ScreenTitle(CCanvas& Canvas, const std::string& Text, float fX, float fY, int iSize, bool bCentred)
{
    float fH = static_cast<float>(LineHeight(EFace::Bold, iSize));
    float fCapY = fY + CapTop(EFace::Bold, iSize), fBaseY = fY + Baseline(EFace::Bold, iSize);
    CTextStyle Style;
    Style.m_eFace = EFace::Bold;
    Style.m_iSize = iSize;
    Style.m_fnFill =
        Vertical(fCapY, fBaseY, {{0.0f, theme::GoldLight()}, {0.55f, theme::Gold()}, {1.0f, Hex(0xc4862c)}});
    Style.m_fOutline = std::max(1.0f, iSize / 28.0f);
    Style.m_OutlineColour = Hex(0x2a1a08, 0.9f);
    Style.m_fShadow = iSize / 8.0f;
    Style.m_iShadowDy = static_cast<int>(fH / 14.0f) + 1;
    Style.m_fGlow = iSize / 3.0f;
    Style.m_GlowColour = WithAlpha(theme::Gold(), 0.22f);
    DrawText(Canvas, Text, fX, fY, Style, bCentred ? EAlign::Centre : EAlign::Left);
}

void Rule(CCanvas& Canvas, float fLeft, float fRight, float fY, float fOpacity)
{
    CRgba Clear = WithAlpha(theme::Gold(), 0.0f);
    Canvas.Paint(
        Rasterize(RoundRect(fLeft, fY - 0.6f, fRight - fLeft, 1.2f, 0.6f)),
        Linear(fLeft, 0, fRight, 0, {{0.0f, Clear}, {0.2f, theme::Gold()}, {0.8f, theme::Gold()}, {1.0f, Clear}}),
        EBlend::Over, fOpacity);
}

float Paragraph(CCanvas& Canvas, const std::string& Text, float fX, float fY, int iWidth, int iSize, CRgba Colour)
{
    CTextStyle Style = Plain(EFace::Regular, iSize, Colour);
    Style.m_fShadow = 1.5f;
    Style.m_iShadowDy = 1;
    float fStep = std::round(LineHeight(EFace::Regular, iSize) * 1.08f);
    for(const std::string& Line : Wrapped(EFace::Regular, iSize, Text, iWidth))
    {
        DrawText(Canvas, Line, fX, fY, Style);
        fY += fStep;
    }
    return fY;
}
} // namespace art
