#include "level/PreviewMap.h"

#include "Shapes.h"
#include "Text.h"
#include "tracks/Level.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace
{
constexpr float MARGIN = 0.09f;         // of the picture, all round
constexpr float LOW_BRIGHTNESS = 0.45f; // of a track at the lowest height of the level
constexpr int ARROWS_PER_TRACK = 6;
const uint32_t TRACK_COLOURS[] = {0xff6b6b, 0x4dabf7, 0xffd43b, 0x69db7c, 0xda77f2, 0xff922b, 0x3bc9db, 0xf783ac};

// World x and z to pixels: a uniform scale, x to the right and z upwards.
struct CMapping
{
    float m_fMinX = 0.0f, m_fMaxZ = 0.0f, m_fScale = 1.0f, m_fLeft = 0.0f, m_fTop = 0.0f;
    float m_fMinY = 0.0f, m_fMaxY = 1.0f;

    art::CPoint At(const CPoint3& p) const
    {
        return {m_fLeft + (p.x() - m_fMinX) * m_fScale, m_fTop + (m_fMaxZ - p.z()) * m_fScale};
    }
    float Brightness(float y) const
    {
        const float fHigh = m_fMaxY > m_fMinY ? (y - m_fMinY) / (m_fMaxY - m_fMinY) : 1.0f;
        return LOW_BRIGHTNESS + (1.0f - LOW_BRIGHTNESS) * fHigh;
    }
};

std::vector<const std::vector<CPoint3>*> AllCurves(const CLevel& Level)
{
    std::vector<const std::vector<CPoint3>*> vCurves;
    for(const CTrack& Track : Level.m_vTracks)
        vCurves.push_back(&Track.m_Spline.m_vSamples);
    for(const CCameraPath& Path : Level.m_vCameraPaths)
        vCurves.push_back(&Path.m_Spline.m_vPoints);
    return vCurves;
}

CMapping FitMap(const CLevel& Level, const CPoint3& Eye, int iSize)
{
    float fMinX = Eye.x(), fMaxX = Eye.x(), fMinZ = Eye.z(), fMaxZ = Eye.z();
    CMapping Map;
    Map.m_fMinY = Map.m_fMaxY = Eye.y();
    for(const std::vector<CPoint3>* pCurve : AllCurves(Level))
    {
        for(const CPoint3& p : *pCurve)
        {
            fMinX = std::min(fMinX, p.x()), fMaxX = std::max(fMaxX, p.x());
            fMinZ = std::min(fMinZ, p.z()), fMaxZ = std::max(fMaxZ, p.z());
            Map.m_fMinY = std::min(Map.m_fMinY, p.y()), Map.m_fMaxY = std::max(Map.m_fMaxY, p.y());
        }
    }
    const float fInner = static_cast<float>(iSize) * (1.0f - 2.0f * MARGIN);
    const float fSpan = std::max({fMaxX - fMinX, fMaxZ - fMinZ, 1.0f});
    Map.m_fScale = fInner / fSpan;
    Map.m_fMinX = fMinX;
    Map.m_fMaxZ = fMaxZ;
    Map.m_fLeft = static_cast<float>(iSize) * MARGIN + (fInner - (fMaxX - fMinX) * Map.m_fScale) / 2.0f;
    Map.m_fTop = static_cast<float>(iSize) * MARGIN + (fInner - (fMaxZ - fMinZ) * Map.m_fScale) / 2.0f;
    return Map;
}

void Stroke(art::CCanvas& Canvas, art::CPoint a, art::CPoint b, float fWidth, art::CRgba Colour)
{
    art::FillShape(Canvas, art::Capsule(a, b, fWidth / 2.0f), art::Solid(Colour));
}

void Arrowhead(art::CCanvas& Canvas, art::CPoint Tip, float fDx, float fDy, float fSize, art::CRgba Colour)
{
    const float fLength = std::max(std::hypot(fDx, fDy), 1e-6f);
    const float ux = fDx / fLength, uy = fDy / fLength;
    art::FillShape(
        Canvas,
        art::Polygon({Tip,
                      {Tip.m_fX - fSize * ux + fSize * 0.55f * uy, Tip.m_fY - fSize * uy - fSize * 0.55f * ux},
                      {Tip.m_fX - fSize * ux - fSize * 0.55f * uy, Tip.m_fY - fSize * uy + fSize * 0.55f * ux}}),
        art::Solid(Colour));
}

// A label kept whole inside the picture, with a dark rim so that it reads over any line.
void Label(art::CCanvas& Canvas, const std::string& Text, float x, float y, art::CRgba Colour, int iSize)
{
    art::CTextStyle Style = art::Plain(art::EFace::Bold, iSize, Colour);
    Style.m_fOutline = 2.5f;
    const float fWidth = static_cast<float>(art::TextWidth(art::EFace::Bold, iSize, Text));
    const float fHeight = static_cast<float>(art::LineHeight(art::EFace::Bold, iSize));
    x = std::clamp(x, 2.0f, static_cast<float>(Canvas.Width()) - fWidth - 2.0f);
    y = std::clamp(y, 2.0f, static_cast<float>(Canvas.Height()) - fHeight - 2.0f);
    art::DrawText(Canvas, Text, x, y, Style);
}

struct CSegment
{
    art::CPoint m_A, m_B;
    float m_fHeight;
    art::CRgba m_Colour;
};

// Every track's stretches, lowest first, so that a track passing over another is drawn on top of it.
void DrawTrackLines(art::CCanvas& Canvas, const CLevel& Level, const CMapping& Map, float fWidth)
{
    std::vector<CSegment> vSegments;
    for(size_t i = 0; i < Level.m_vTracks.size(); i++)
    {
        const std::vector<CPoint3>& vSamples = Level.m_vTracks[i].m_Spline.m_vSamples;
        for(size_t j = 1; j < vSamples.size(); j++)
        {
            const float fHeight = (vSamples[j - 1].y() + vSamples[j].y()) / 2.0f;
            vSegments.push_back({Map.At(vSamples[j - 1]), Map.At(vSamples[j]), fHeight,
                                 art::Scaled(TrackColour(i), Map.Brightness(fHeight))});
        }
    }
    std::stable_sort(vSegments.begin(), vSegments.end(),
                     [](const CSegment& a, const CSegment& b) { return a.m_fHeight < b.m_fHeight; });
    for(const CSegment& Segment : vSegments)
        Stroke(Canvas, Segment.m_A, Segment.m_B, fWidth, Segment.m_Colour);
}

void MarkTrack(art::CCanvas& Canvas, const CTrack& Track, size_t Index, const CMapping& Map, float fUnit,
               std::vector<CMapMark>& vMarks)
{
    const std::vector<CPoint3>& vPoints = Track.m_Spline.m_vPoints;
    if(vPoints.size() < 2)
        return;
    const art::CRgba Colour = TrackColour(Index);
    const std::string Name = "T" + std::to_string(Index + 1);
    for(int k = 1; k <= ARROWS_PER_TRACK; k++)
    {
        const size_t At = vPoints.size() * static_cast<size_t>(k) / (ARROWS_PER_TRACK + 1);
        const art::CPoint Tip = Map.At(vPoints[At]), Back = Map.At(vPoints[At - 1]);
        Arrowhead(Canvas, Tip, Tip.m_fX - Back.m_fX, Tip.m_fY - Back.m_fY, 2.6f * fUnit, Colour);
    }
    const art::CPoint Start = Map.At(vPoints.front()), End = Map.At(vPoints.back());
    art::FillShape(Canvas, art::Outline(art::Circle(Start.m_fX, Start.m_fY, 2.4f * fUnit), 1.2f * fUnit),
                   art::Solid(Colour));
    art::FillShape(Canvas,
                   art::RoundRect(End.m_fX - 1.8f * fUnit, End.m_fY - 1.8f * fUnit, 3.6f * fUnit, 3.6f * fUnit, 0.5f),
                   art::Solid(Colour));
    vMarks.push_back({Name + " start", Start.m_fX, Start.m_fY, Colour});
    vMarks.push_back({Name + " end", End.m_fX, End.m_fY, Colour});
    Label(Canvas, Name + " " + std::to_string(Track.m_vColourQueue.size()) + " balls", Start.m_fX + 3.0f * fUnit,
          Start.m_fY - 6.0f * fUnit, Colour, static_cast<int>(4.2f * fUnit));
}

void DrawCameraPaths(art::CCanvas& Canvas, const CLevel& Level, const CMapping& Map, float fUnit,
                     std::vector<CMapMark>& vMarks)
{
    const art::CRgba White = art::Hex(0xf1f3f5);
    for(size_t i = 0; i < Level.m_vCameraPaths.size(); i++)
    {
        const std::vector<CPoint3>& vPoints = Level.m_vCameraPaths[i].m_Spline.m_vPoints;
        if(vPoints.empty())
            continue;
        const art::CPoint Start = Map.At(vPoints.front()), End = Map.At(vPoints.back());
        const size_t Step = std::max<size_t>(1, vPoints.size() / 200);
        for(size_t j = Step; j < vPoints.size(); j += Step)
            Stroke(Canvas, Map.At(vPoints[j - Step]), Map.At(vPoints[j]), 0.8f * fUnit, White);
        art::FillShape(Canvas, art::Circle(Start.m_fX, Start.m_fY, 1.6f * fUnit), art::Solid(White));
        if(std::hypot(End.m_fX - Start.m_fX, End.m_fY - Start.m_fY) > 4.0f * fUnit)
        {
            const art::CPoint Back = Map.At(vPoints[vPoints.size() - 1 - std::min<size_t>(vPoints.size() - 1, 20)]);
            Arrowhead(Canvas, End, End.m_fX - Back.m_fX, End.m_fY - Back.m_fY, 3.0f * fUnit, White);
        }
        const std::string Name = "C" + std::to_string(i + 1);
        vMarks.push_back({Name + " start", Start.m_fX, Start.m_fY, White});
        Label(Canvas, Name, Start.m_fX + 2.5f * fUnit, Start.m_fY + 1.5f * fUnit, White,
              static_cast<int>(4.0f * fUnit));
    }
}

void DrawSight(art::CCanvas& Canvas, const CPoint3& Eye, float fYaw, float fPitch, const CMapping& Map, float fUnit)
{
    const art::CRgba Sight = art::Hex(0xadb5bd);
    const float fRadians = fYaw * 3.14159265f / 180.0f;
    const art::CPoint From = Map.At(Eye);
    const float fLength = 0.22f * static_cast<float>(Canvas.Width());
    const art::CPoint To = {From.m_fX + std::sin(fRadians) * fLength, From.m_fY - std::cos(fRadians) * fLength};
    const int iDashes = 9;
    for(int i = 0; i < iDashes; i += 2)
    {
        const float a = static_cast<float>(i) / iDashes, b = static_cast<float>(i + 1) / iDashes;
        Stroke(Canvas, {From.m_fX + (To.m_fX - From.m_fX) * a, From.m_fY + (To.m_fY - From.m_fY) * a},
               {From.m_fX + (To.m_fX - From.m_fX) * b, From.m_fY + (To.m_fY - From.m_fY) * b}, 0.7f * fUnit, Sight);
    }
    Arrowhead(Canvas, To, To.m_fX - From.m_fX, To.m_fY - From.m_fY, 2.6f * fUnit, Sight);
    char szText[48];
    std::snprintf(szText, sizeof(szText), "first view, pitch %.0f", fPitch);
    Label(Canvas, szText, To.m_fX + 1.5f * fUnit, To.m_fY, Sight, static_cast<int>(3.6f * fUnit));
}

void DrawLegend(art::CCanvas& Canvas, const CMapping& Map, float fUnit)
{
    char szText[96];
    std::snprintf(szText, sizeof(szText), "seen from above: x to the right, z up; brighter is higher (y %.0f to %.0f)",
                  Map.m_fMinY, Map.m_fMaxY);
    const int iSize = static_cast<int>(3.3f * fUnit);
    Label(Canvas, szText, 1.5f * fUnit, static_cast<float>(Canvas.Height()), art::Hex(0x868e96), iSize);
}
} // namespace

art::CRgba TrackColour(size_t Index)
{
    return art::Hex(TRACK_COLOURS[Index % (sizeof(TRACK_COLOURS) / sizeof(TRACK_COLOURS[0]))]);
}

art::CCanvas DrawLevelMap(const CLevel& Level, float fYaw, float fPitch, int iSize, std::vector<CMapMark>& vMarks)
{
    art::CCanvas Canvas(iSize, iSize);
    Canvas.Fill(art::Solid(art::Hex(0x101418)));
    const bool bHasEye = !Level.m_vCameraPaths.empty() && !Level.m_vCameraPaths[0].m_Spline.m_vPoints.empty();
    const CPoint3 Eye = bHasEye ? Level.m_vCameraPaths[0].m_Spline.m_vPoints[0] : CPoint3(0.0f, 0.0f, 0.0f);
    const CMapping Map = FitMap(Level, Eye, iSize);
    const float fUnit = static_cast<float>(iSize) / 200.0f; // sizes of marks and letters grow with the picture
    DrawTrackLines(Canvas, Level, Map, 1.1f * fUnit);
    DrawCameraPaths(Canvas, Level, Map, fUnit, vMarks);
    for(size_t i = 0; i < Level.m_vTracks.size(); i++)
        MarkTrack(Canvas, Level.m_vTracks[i], i, Map, fUnit, vMarks);
    DrawSight(Canvas, Eye, fYaw, fPitch, Map, fUnit);
    DrawLegend(Canvas, Map, fUnit);
    return Canvas;
}
