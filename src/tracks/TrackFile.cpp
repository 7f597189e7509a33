#include "tracks/TrackFile.h"

#include "gfx/GraphicsEngine.h"
#include "math/FloatBits.h"
#include "platform/ErrorBox.h"
#include "tracks/GameFile.h"
#include "tracks/Level.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace
{
const float ROUND_FACTOR = FloatFromBits(0x3F547AE1); // 0.83

bool IsSpace(int c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

// Only an upper-case E ends a file; the other tags count in either case.
bool IsSectionTag(int c)
{
    return std::strchr("BbCcIiPpTt", c) != nullptr && c != 0;
}

constexpr uint32_t MS_PER_MINUTE = 60000;
constexpr uint32_t MS_PER_SECOND = 1000;
} // namespace

uint32_t ScaleInterval(uint32_t uiFileValue, uint32_t uiRound)
{
    const float fValue = static_cast<float>(uiFileValue);
    const float fRound = static_cast<float>(uiRound);
    const double dScaled = static_cast<double>(fValue) * std::pow(static_cast<double>(ROUND_FACTOR), fRound);
    return dScaled >= 4294967295.0 ? UINT32_MAX : static_cast<uint32_t>(dScaled);
}

CTrackFileReader::CTrackFileReader(std::istream& Stream, CLevel& Level, uint32_t uiRound)
    : m_Stream(Stream), m_Level(Level), m_uiRound(uiRound)
{
}

// Only the byte taken here selects a section, but a section's separators become the current byte as well:
// a separator that happens to be an E ends the file right after its section.
bool CTrackFileReader::Read()
{
    while(m_iCurrent != 'E')
    {
        m_iCurrent = m_Stream.get();
        if(m_iCurrent == std::char_traits<char>::eof())
            return false;
        if(IsSectionTag(m_iCurrent) && !ReadSection(static_cast<char>(m_iCurrent)))
            return false;
    }
    return true;
}

bool CTrackFileReader::ReadSection(char cTag)
{
    switch(cTag | 0x20) // lower case
    {
    case 'b': return ReadBackground();
    case 'c': return ReadCameraPath();
    case 'i': return ReadInitialCamera();
    case 'p': return ReadPlayTime();
    default: return ReadTrack();
    }
}

bool CTrackFileReader::ReadBackground()
{
    char szName[BACKGROUND_NAME_CHARS + 1];
    if(!SkipLabels(1) || !ReadWord(szName, sizeof(szName)) || !ReadSeparator())
        return false;
    std::memcpy(m_Level.m_szBackground, szName, sizeof(szName));
    if(m_Level.m_pGraphics)
        m_Level.m_pGraphics->LoadBackground(szName);
    return true;
}

bool CTrackFileReader::ReadCameraPath()
{
    m_WorkPath.m_Spline.m_vControlPoints.clear();
    uint32_t uiCount = 0;
    if(!SkipLabels(1) || !ReadNumber(uiCount) || !SkipLabels(2) || !ReadNumber(m_WorkPath.m_Spline.m_uiDegree) ||
       !SkipLabels(1) || !ReadSeparator() || !ReadControlPoints(uiCount, m_WorkPath.m_Spline))
        return false;
    if(uiCount != 0 && m_Level.m_vCameraPaths.size() < CLevel::MAX_CURVES)
    {
        m_Level.m_vCameraPaths.push_back(m_WorkPath);
        m_Level.m_vCameraPaths.back().m_Spline.Build();
    }
    return true;
}

bool CTrackFileReader::ReadInitialCamera()
{
    float fYaw = 0.0f, fPitch = 0.0f;
    if(!SkipLabels(5) || !ReadNumber(fYaw) || !SkipLabels(1) || !ReadNumber(fPitch) || !ReadSeparator())
        return false;
    if(m_Level.m_pGraphics)
    {
        m_Level.m_pGraphics->m_fYaw = fYaw;
        m_Level.m_pGraphics->m_fPitch = fPitch;
    }
    return true;
}

bool CTrackFileReader::ReadPlayTime()
{
    uint32_t uiMinutes = 0, uiSeconds = 0;
    if(!SkipLabels(1) || !ReadNumber(uiMinutes) || !SkipLabels(1) || !ReadNumber(uiSeconds) || !SkipLabels(1) ||
       !ReadSeparator())
        return false;
    m_Level.m_Countdown.Set(uiMinutes * MS_PER_MINUTE + uiSeconds * MS_PER_SECOND);
    return true;
}

bool CTrackFileReader::ReadTrack()
{
    m_WorkTrack.m_Spline.m_vControlPoints.clear();
    m_WorkTrack.m_vColourQueue.clear();
    m_WorkTrack.m_vColourCounts.assign(NUM_BALL_COLOURS, 0);

    uint32_t uiCount = 0, uiBalls = 0, uiInterval = 0;
    if(!SkipLabels(1) || !ReadNumber(uiCount) || !SkipLabels(2) || !ReadNumber(m_WorkTrack.m_Spline.m_uiDegree) ||
       !SkipLabels(1) || !ReadNumber(uiBalls))
        return false;
    m_WorkTrack.FillColourQueue(std::min(uiBalls, MAX_BALLS_PER_TRACK));
    if(!SkipLabels(1) || !ReadNumber(uiInterval))
        return false;
    m_WorkTrack.m_uiInterval = ScaleInterval(uiInterval, m_uiRound);
    if(!SkipLabels(2) || !ReadControlPoints(uiCount, m_WorkTrack.m_Spline))
        return false;
    if(m_Level.m_vTracks.size() < CLevel::MAX_CURVES)
    {
        m_Level.m_vTracks.push_back(m_WorkTrack);
        m_Level.m_vTracks.back().m_Spline.Build();
    }
    return true;
}

bool CTrackFileReader::SkipLabels(int iCount)
{
    for(int i = 0; i < iCount; i++)
    {
        if(!ReadWord(nullptr, 0))
            return false;
    }
    return true;
}

// One whitespace-delimited word, read whole so that the next token starts behind it; only the first
// BufferSize - 1 characters are kept. The whitespace behind the word stays for the next token.
bool CTrackFileReader::ReadWord(char* pBuffer, size_t BufferSize)
{
    const int EOF_CHAR = std::char_traits<char>::eof();
    while(IsSpace(m_Stream.peek()))
        m_Stream.get();
    if(m_Stream.peek() == EOF_CHAR)
    {
        m_Stream.setstate(std::ios::failbit);
        return false;
    }
    size_t Length = 0;
    for(int c = m_Stream.peek(); c != EOF_CHAR && !IsSpace(c); c = m_Stream.peek())
    {
        m_Stream.get();
        if(Length + 1 < BufferSize)
            pBuffer[Length++] = static_cast<char>(c);
    }
    if(BufferSize > 0)
        pBuffer[Length] = '\0';
    return true;
}

bool CTrackFileReader::ReadSeparator()
{
    const int c = m_Stream.get();
    if(c == std::char_traits<char>::eof())
        return false;
    m_iCurrent = c;
    return true;
}

// x, separator, y, separator, z; nothing behind z, as the next number skips the line break by itself.
bool CTrackFileReader::ReadControlPoints(uint32_t uiCount, CBSpline& Spline)
{
    for(uint32_t i = 0; i < uiCount; i++)
    {
        float x, y, z;
        if(!ReadNumber(x) || !ReadSeparator() || !ReadNumber(y) || !ReadSeparator() || !ReadNumber(z))
            return false;
        Spline.m_vControlPoints.emplace_back(x, y, z);
    }
    return true;
}

bool CLevel::Load(const char* pFileName, uint32_t uiRound)
{
    std::ifstream Stream;
    if(!OpenGameFile(pFileName, Stream))
        return false;
    CTrackFileReader Reader(Stream, *this, uiRound);
    const bool bComplete = Reader.Read();
    // A file cut short keeps the sections it held whole, so the level is consistent and playable.
    FinishLoad();
    if(!bComplete)
        ShowErrorf("ERROR: %s is damaged or ends before its E.", pFileName);
    return bComplete;
}
