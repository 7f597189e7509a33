#include "PlayFixture.h"

#include <cstring>

namespace
{
const char COLOUR_LETTERS[] = "RGBYOP";
}

CPlayFixture::CPlayFixture() : m_Level(m_Game.m_Level), m_Logic(m_Game.m_Logic)
{
    SetManualClock(0);
    m_Game.m_Clock = CGameClock();
    g_pGame = &m_Game;
    m_Game.m_Sound.m_pAudio = &m_Audio;
    m_Device.m_bRecording = false;
    m_Game.m_Graphics.m_pDevice = &m_Device;
    m_Game.m_bInGame = true;
    m_Logic.m_bActive = true;
    m_Level.m_vTracks.reserve(8); // tests hold references to their tracks
}

CPlayFixture::~CPlayFixture()
{
    g_pGame = nullptr;
    UseSystemClock();
}

CTrack& CPlayFixture::AddTrack(uint32_t uiPoints, float fSpacing, uint32_t uiInterval)
{
    CTrack& Track = m_Level.m_vTracks.emplace_back();
    for(uint32_t i = 0; i < uiPoints; i++)
        Track.m_Spline.m_vPoints.emplace_back(static_cast<float>(i) * fSpacing, 0.0f, 0.0f);
    Track.m_Spline.m_uiNumPoints = uiPoints;
    Track.m_vColourCounts.assign(NUM_COLOURS, 0);
    Track.m_uiInterval = uiInterval;
    m_Level.m_ucNumTracks = static_cast<uint8_t>(m_Level.m_vTracks.size());
    return Track;
}

CBall& CPlayFixture::Place(CTrack& Track, uint32_t uiPoint, uint8_t ucColour)
{
    CBall* pBall = new CBall;
    pBall->m_uiPoint = uiPoint;
    pBall->m_Position = Track.m_Spline.m_vPoints[uiPoint];
    pBall->m_ucColour = ucColour;
    Track.m_lstBalls.push_back(pBall);
    Track.m_vColourCounts[ucColour]++;
    return *pBall;
}

void CPlayFixture::PlaceChain(CTrack& Track, uint32_t uiFirstPoint, const std::string& Letters)
{
    for(size_t i = 0; i < Letters.size(); i++)
        Place(Track, uiFirstPoint + 14 * static_cast<uint32_t>(i),
              static_cast<uint8_t>(std::strchr(COLOUR_LETTERS, Letters[i]) - COLOUR_LETTERS));
    m_Logic.UpdateLinks();
}

std::string CPlayFixture::Colours(const CTrack& Track) const
{
    std::string Letters;
    for(const CBall* pBall : Track.m_lstBalls)
        Letters += COLOUR_LETTERS[pBall->m_ucColour];
    return Letters;
}

void CPlayFixture::Frame(uint32_t uiDelta)
{
    AdvanceManualClock(uiDelta);
    m_Game.Tick();
}

void CPlayFixture::FireAt(float fX, uint8_t ucColour)
{
    m_Game.m_Graphics.m_vEye = CPoint3(fX, 0.0f, -20.0f);
    m_Game.m_Graphics.m_fYaw = 0.0f;
    m_Game.m_Graphics.m_fPitch = 0.0f;
    m_Game.m_Graphics.UpdateLookAt();
    m_Level.m_ucShotColour = ucColour;
    m_Game.m_nFireDelay = 0;
    m_Logic.Fire();
}
