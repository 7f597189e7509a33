#include "level/CheckGeometry.h"

#include "gfx/GraphicsEngine.h"
#include "level/SegmentDistance.h"
#include "platform/interfaces/GameMatrix.h"
#include "play/Ball.h"
#include "play/ChainLogic.h"
#include "tracks/Level.h"

#include <cmath>
#include <cstdio>

namespace
{
constexpr float FAR_PLANE = 750.0f;
constexpr float NEAR_PLANE = 0.1f;
constexpr float SELF_APART = 3.0f * BALL_DIAMETER; // parts of one track further apart along it than this

std::string Place(const CPoint3& p)
{
    char szText[64];
    // Rounded first, and zero added, so that a small negative number reads 0 and not -0.
    const auto Whole = [](float f) { return std::round(f) + 0.0f; };
    std::snprintf(szText, sizeof(szText), "(%.0f, %.0f, %.0f)", Whole(p.x()), Whole(p.y()), Whole(p.z()));
    return szText;
}

std::string Number(float f)
{
    char szText[32];
    std::snprintf(szText, sizeof(szText), "%.2f", f);
    return szText;
}

std::string TrackName(size_t i)
{
    return "track " + std::to_string(i + 1);
}

void CheckCurve(const CBSpline& Spline, const std::string& Name, int64_t Offset, std::vector<CDiagnostic>& vOut)
{
    const size_t Points = Spline.m_vControlPoints.size();
    if(Spline.m_uiDegree > CBSpline::MAX_DEGREE)
        vOut.push_back({Offset, true,
                        "degree " + std::to_string(Spline.m_uiDegree) + " of " + Name +
                            ": the game takes no more than " + std::to_string(CBSpline::MAX_DEGREE)});
    if(Points < 4)
        vOut.push_back({Offset, true, Name + " has " + std::to_string(Points) + " points: a curve needs at least 4"});
    else if(Spline.m_vPoints.size() < 2)
        vOut.push_back({Offset, true,
                        "degree " + std::to_string(Spline.m_uiDegree) + " is too high for the " +
                            std::to_string(Points) + " points of " + Name + ": its curve stays empty"});
}

float LengthOf(const CBSpline& Spline)
{
    return Spline.m_vDistances.empty() ? 0.0f : Spline.m_vDistances.back();
}

// Pushed balls stand a whole number of points apart; on a straight that is the least count that reaches a
// diameter, and where it comes out at the link distance or more, no two neighbours ever touch.
void CheckSpacing(const CTrack& Track, const std::string& Name, int64_t Offset, std::vector<CDiagnostic>& vOut)
{
    const size_t Points = Track.m_Spline.m_vPoints.size();
    if(Points < 2)
        return;
    const float fStep = LengthOf(Track.m_Spline) / static_cast<float>(Points - 1);
    const float fApart = std::ceil(BALL_DIAMETER / fStep) * fStep;
    if(fStep > 0.0f && fApart >= LINK_DISTANCE)
        vOut.push_back({Offset, false,
                        "the balls of " + Name + " stand " + Number(fApart) +
                            " apart on its straights and never touch: lengths of 102 to 141, 205 to 282, 410 "
                            "to 564 or 820 to 1128 always work"});
}

void CheckTrack(const CTrack& Track, const std::string& Name, int64_t Offset, std::vector<CDiagnostic>& vOut)
{
    CheckCurve(Track.m_Spline, Name, Offset, vOut);
    if(Track.m_uiInterval == 0)
        vOut.push_back({Offset, true, "the interval of " + Name + " comes to 0 ms in round 1: give it at least 2"});
    const size_t Balls = Track.m_vColourQueue.size();
    const float fChain = static_cast<float>(Balls) * BALL_DIAMETER;
    if(Balls == 0)
        vOut.push_back({Offset, false, Name + " has no balls"});
    else if(Track.m_Spline.m_vPoints.size() >= 2 && fChain > LengthOf(Track.m_Spline))
        vOut.push_back({Offset, false,
                        Name + " is " + Number(LengthOf(Track.m_Spline)) + " long but its " + std::to_string(Balls) +
                            " balls need " + Number(fChain) + ": it is shorter than its chain"});
    CheckSpacing(Track, Name, Offset, vOut);
}

// The closest approach of two stretches of samples, and where it is.
struct CApproach
{
    float m_fDistance = INFINITY;
    CPoint3 m_Where;
};

CApproach Closest(const std::vector<CPoint3>& a, const std::vector<CPoint3>& b, bool bSelf)
{
    CApproach Best;
    std::vector<float> vAlong(a.size(), 0.0f); // for a track against itself: how far along it each sample is
    for(size_t i = 1; i < a.size(); i++)
        vAlong[i] = vAlong[i - 1] + Distance(a[i - 1], a[i]);
    for(size_t i = 1; i < a.size(); i++)
    {
        for(size_t j = bSelf ? i + 1 : 1; j < b.size(); j++)
        {
            if(bSelf && vAlong[j - 1] - vAlong[i] < SELF_APART)
                continue;
            const CSegmentApproach Near = SegmentApproach(a[i - 1], a[i], b[j - 1], b[j], Best.m_fDistance);
            if(Near.m_fDistance < Best.m_fDistance)
                Best = {Near.m_fDistance, Near.m_Where};
        }
    }
    return Best;
}

bool InFirstView(const CGraphicsEngine& Camera, const CPoint3& p)
{
    const std::array<float, 4> afClip =
        Transformed(Camera.m_matProjection, Transformed(Camera.m_matView, {p.x(), p.y(), p.z(), 1.0f}));
    const float w = afClip[3];
    return w > 0.0f && std::fabs(afClip[0]) <= w && std::fabs(afClip[1]) <= w && afClip[2] >= 0.0f && afClip[2] <= w;
}

float NearestEye(const CLevel& Level, const CPoint3& p)
{
    float fNearest = Level.m_vCameraPaths.empty() ? Distance(CPoint3(0.0f, 0.0f, 0.0f), p) : INFINITY;
    for(const CCameraPath& Path : Level.m_vCameraPaths)
    {
        for(const CPoint3& Eye : Path.m_Spline.m_vPoints)
            fNearest = std::min(fNearest, Distance(Eye, p));
    }
    return fNearest;
}
} // namespace

void CheckCurves(const CLevel& Level, const CSectionPlaces& Places, std::vector<CDiagnostic>& vOut)
{
    for(size_t i = 0; i < Level.m_vCameraPaths.size(); i++)
        CheckCurve(Level.m_vCameraPaths[i].m_Spline, "camera path " + std::to_string(i + 1), Places.m_vPaths[i], vOut);
    for(size_t i = 0; i < Level.m_vTracks.size(); i++)
        CheckTrack(Level.m_vTracks[i], TrackName(i), Places.m_vTracks[i], vOut);
}

void CheckCrossings(const CLevel& Level, const CSectionPlaces& Places, std::vector<CDiagnostic>& vOut)
{
    const std::vector<CTrack>& vTracks = Level.m_vTracks;
    for(size_t i = 0; i < vTracks.size(); i++)
    {
        const int64_t Offset = Places.m_vTracks[i];
        const CApproach Self = Closest(vTracks[i].m_Spline.m_vSamples, vTracks[i].m_Spline.m_vSamples, true);
        if(Self.m_fDistance < BALL_DIAMETER)
            vOut.push_back({Offset, false,
                            TrackName(i) + " comes within " + Number(Self.m_fDistance) + " of itself near " +
                                Place(Self.m_Where) + ": its balls would run through each other"});
        for(size_t j = 0; j < i; j++)
        {
            const CApproach Cross = Closest(vTracks[j].m_Spline.m_vSamples, vTracks[i].m_Spline.m_vSamples, false);
            if(Cross.m_fDistance < BALL_DIAMETER)
                vOut.push_back({Offset, false,
                                "tracks " + std::to_string(j + 1) + " and " + std::to_string(i + 1) + " pass within " +
                                    Number(Cross.m_fDistance) + " of each other near " + Place(Cross.m_Where) +
                                    ": their balls would run through each other"});
        }
    }
}

void CheckSight(const CLevel& Level, CGraphicsEngine& Camera, const CSectionPlaces& Places,
                std::vector<CDiagnostic>& vOut)
{
    Camera.SetupCamera(NEAR_PLANE, FAR_PLANE);
    for(size_t i = 0; i < Level.m_vTracks.size(); i++)
    {
        const std::vector<CPoint3>& vPoints = Level.m_vTracks[i].m_Spline.m_vPoints;
        if(vPoints.size() < 2)
            continue;
        const int64_t Offset = Places.m_vTracks[i];
        for(const auto& [pName, Point] :
            {std::make_pair("start", vPoints.front()), std::make_pair("end", vPoints.back())})
        {
            if(NearestEye(Level, Point) > FAR_PLANE)
                vOut.push_back({Offset, false,
                                TrackName(i) + "'s " + pName +
                                    " is farther than 750 from every camera path: it can't "
                                    "be seen"});
        }
        if(!InFirstView(Camera, vPoints.front()) && !InFirstView(Camera, vPoints.back()))
            vOut.push_back({Offset, false, TrackName(i) + ": neither its start nor its end is in the first view"});
    }
}
