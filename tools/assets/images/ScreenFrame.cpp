#include "ScreenFrame.h"

#include "Backdrop.h"
#include "Filters.h"
#include "Marbles.h"
#include "Text.h"
#include "Theme.h"
#include "Widgets.h"

namespace art
{
CCanvas TitledScreen(const std::string& Title, std::uint64_t ulSeed, int iTitleSize)
{
    CCanvas Canvas = MenuBackdrop(ulSeed);
    ScreenTitle(Canvas, Title, theme::MARGIN, 10, iTitleSize);
    // Under the title, and short of the return button at x 440.
    Rule(Canvas, theme::MARGIN - 10, 430, 12.0f + LineHeight(EFace::Bold, iTitleSize), 0.7f);
    return Canvas;
}

void NameMark(CCanvas& Canvas, float fCy, int iSize)
{
    ScreenTitle(Canvas, "Trelvane", SCREEN_WIDTH / 2.0f, fCy - LineHeight(EFace::Bold, iSize) / 2.0f, iSize, true);
}

void DecorativeChain(CCanvas& Canvas, const std::vector<CPoint>& vThrough, float fRadius, std::uint64_t ulSeed,
                     float fOpacity)
{
    std::vector<CPoint> vPath = SmoothCurve(vThrough, 24);
    CChainLook Look;
    Look.m_fRadius = fRadius;
    Look.m_fOpacity = fOpacity;
    Look.m_ulSeed = ulSeed;
    // The chain stops short of the pit, as a chain does while the player still has a chance.
    std::vector<CPoint> vRolling(vPath.begin(), vPath.end() - static_cast<long>(vPath.size() / 5));
    DrawGroove(Canvas, vPath, fRadius, 0.6f * fOpacity);
    DrawPit(Canvas, vThrough.back().m_fX, vThrough.back().m_fY, fRadius * 1.15f, fOpacity);
    Look.m_fGrooveOpacity = 0.0f;
    DrawChain(Canvas, vRolling, Look);
}

void StartGlow(CCanvas& Canvas, float fStrength)
{
    Canvas.Paint(Blurred(Rasterize(RoundRect(603, 494, 173, 78, 39)), 14), Solid(WithAlpha(theme::Gold(), fStrength)),
                 EBlend::Add);
}

float BulletLine(CCanvas& Canvas, const std::string& Text, float fX, float fY, int iWidth, int iColour)
{
    auto aPalette = theme::Balls();
    int iCap = CapTop(EFace::Regular, theme::BODY_SIZE), iBase = Baseline(EFace::Regular, theme::BODY_SIZE);
    DrawMarble(Canvas, fX + 6, fY + (iCap + iBase) / 2.0f, 5.5f, aPalette[static_cast<std::size_t>(iColour % 6)]);
    return Paragraph(Canvas, Text, fX + 20, fY, iWidth - 20, theme::BODY_SIZE, theme::Cream()) + 6.0f;
}
} // namespace art
