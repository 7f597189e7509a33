#include "tracks/Level.h"

#include "gfx/GraphicsEngine.h"

#include <cstdlib>

namespace
{
uint8_t RandomColour()
{
    return static_cast<uint8_t>(std::rand() % NUM_BALL_COLOURS);
}
} // namespace

CLevel::CLevel() : m_ucShotColour(RandomColour()), m_ucNextColour(RandomColour()) {}

CLevel::~CLevel()
{
    for(CBall* pShot : m_lstShots)
        delete pShot;
}

void CLevel::Clear()
{
    // The tracks free their balls and the paths drop their lines as the records go.
    m_vCameraPaths.clear();
    m_vTracks.clear();
    m_ucNumCameraPaths = 0;
    m_ucNumTracks = 0;
}

void CLevel::CountColours()
{
    m_vColoursLeft.clear();
    m_bColoursLeft = false;
    for(int iColour = 0; iColour < NUM_BALL_COLOURS; iColour++)
    {
        uint32_t uiSum = 0;
        for(const CTrack& Track : m_vTracks)
            uiSum += Track.m_vColourCounts.size() > static_cast<size_t>(iColour) ? Track.m_vColourCounts[iColour] : 0;
        m_vColoursLeft.push_back(uiSum);
        if(uiSum != 0)
            m_bColoursLeft = true;
    }
}

CCameraPath* CLevel::CurrentPath()
{
    if(m_ucNumCameraPaths == 0 || m_ucCurrentPath >= m_vCameraPaths.size())
        return nullptr;
    return &m_vCameraPaths[m_ucCurrentPath];
}

void CLevel::MoveForward(uint32_t uiSteps)
{
    CCameraPath* pPath = CurrentPath();
    if(!pPath)
        return;
    const uint32_t uiNumPoints = pPath->m_Spline.m_uiNumPoints;
    // Added in 64 bits so that a huge step cannot wrap round to the start of the path.
    const uint64_t ulTarget = static_cast<uint64_t>(pPath->m_uiPosition) + uiSteps;
    pPath->m_uiPosition =
        ulTarget >= uiNumPoints ? (uiNumPoints > 0 ? uiNumPoints - 1 : 0) : static_cast<uint32_t>(ulTarget);
}

void CLevel::MoveBack(uint32_t uiSteps)
{
    CCameraPath* pPath = CurrentPath();
    if(!pPath)
        return;
    pPath->m_uiPosition = uiSteps <= pPath->m_uiPosition ? pPath->m_uiPosition - uiSteps : 0;
}

void CLevel::NextCameraPath()
{
    CCameraPath* pPath = CurrentPath();
    if(!pPath)
        return;
    if(m_pGraphics)
    {
        pPath->m_fYaw = m_pGraphics->m_fYaw;
        pPath->m_fPitch = m_pGraphics->m_fPitch;
    }
    m_ucCurrentPath++;
    if(m_ucCurrentPath >= m_ucNumCameraPaths)
        m_ucCurrentPath = 0;
    if(m_pGraphics)
    {
        m_pGraphics->m_fYaw = m_vCameraPaths[m_ucCurrentPath].m_fYaw;
        m_pGraphics->m_fPitch = m_vCameraPaths[m_ucCurrentPath].m_fPitch;
    }
}

uint32_t CLevel::BallsToClear() const
{
    size_t uCount = 0;
    for(const CTrack& Track : m_vTracks)
        uCount += Track.m_lstBalls.size() + Track.m_vColourQueue.size();
    return static_cast<uint32_t>(uCount);
}

void CLevel::BuildAllLines()
{
    for(CCameraPath& Path : m_vCameraPaths)
        BuildCurveLines(Path.m_Spline, Path.m_Lines);
    for(CTrack& Track : m_vTracks)
        BuildCurveLines(Track.m_Spline, Track.m_Lines);
}

void CLevel::BuildCurveLines(const CBSpline& Spline, CCurveLines& Lines)
{
    BuildLines(Spline, Lines);
    if(m_pGraphics)
        m_pGraphics->CreateCurveBuffer(Lines);
}

void CLevel::FinishLoad()
{
    BuildAllLines();
    m_ucNumCameraPaths = static_cast<uint8_t>(m_vCameraPaths.size());
    m_ucNumTracks = static_cast<uint8_t>(m_vTracks.size());
    m_bWon = false;
    // The path in use survives from level to level; a level with fewer paths starts on its first.
    if(m_ucCurrentPath >= m_ucNumCameraPaths)
        m_ucCurrentPath = 0;
    if(m_pGraphics)
    {
        const bool bHasEye = !m_vCameraPaths.empty() && !m_vCameraPaths[0].m_Spline.m_vPoints.empty();
        m_pGraphics->m_vEye = bHasEye ? m_vCameraPaths[0].m_Spline.m_vPoints[0] : CPoint3(0.0f, 0.0f, 0.0f);
    }
    CountColours();
}
