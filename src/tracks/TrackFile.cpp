#include "tracks/TrackFile.h"

#include "gfx/GraphicsEngine.h"
#include "math/FloatBits.h"
#include "platform/interfaces/ErrorBox.h"
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
            return BrokenOff("the end tag E");
        const bool bTag = IsSectionTag(m_iCurrent) || m_iCurrent == 'E';
        if(m_pObserver && bTag)
            m_pObserver->OnSection(static_cast<char>(m_iCurrent), Offset() - 1);
        else if(m_pObserver && !IsSpace(m_iCurrent))
            m_pObserver->OnStrayByte(static_cast<char>(m_iCurrent), Offset() - 1);
        if(IsSectionTag(m_iCurrent) && !ReadSection(static_cast<char>(m_iCurrent)))
            return false;
    }
    return true;
}

// Where the stream stands, for the observer alone: asking costs the game's own loads nothing.
std::streamoff CTrackFileReader::Offset()
{
    return m_pObserver ? static_cast<std::streamoff>(m_Stream.tellg()) : -1;
}

bool CTrackFileReader::BrokenOff(const std::string& Expected)
{
    if(m_pObserver)
    {
        m_Stream.clear(); // the reading ends here in any case; only the observer still asks where it stood
        m_pObserver->OnBrokenOff(Expected, Offset());
    }
    return false;
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
    size_t Length = 0;
    if(!SkipLabels(1, "the background's label") || !ReadWord(szName, sizeof(szName), "the picture's name", &Length))
        return false;
    if(m_pObserver && Length > BACKGROUND_NAME_CHARS)
        m_pObserver->OnCut("a picture name of " + std::to_string(Length) + " characters: the game takes the first " +
                               std::to_string(BACKGROUND_NAME_CHARS),
                           Offset() - static_cast<std::streamoff>(Length));
    if(!ReadSeparator("the line break behind the picture's name"))
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
    const std::streamoff Start = Offset();
    if(!SkipLabels(1, "the camera path's label") || !ReadNumber(uiCount, "the camera path's count of points") ||
       !SkipLabels(2, "the camera path's labels") ||
       !ReadNumber(m_WorkPath.m_Spline.m_uiDegree, "the camera path's degree") ||
       !SkipLabels(1, "the camera path's label") || !ReadSeparator("the line break behind the camera path's label") ||
       !ReadControlPoints(uiCount, m_WorkPath.m_Spline, "camera path"))
        return false;
    if(m_pObserver && uiCount != 0 && m_Level.m_vCameraPaths.size() >= CLevel::MAX_CURVES)
        m_pObserver->OnCut("more than 255 camera paths: the game keeps no more", Start);
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
    if(!SkipLabels(5, "the initial camera's labels") || !ReadNumber(fYaw, "the initial yaw") ||
       !SkipLabels(1, "the initial camera's label") || !ReadNumber(fPitch, "the initial pitch") ||
       !ReadSeparator("the line break behind the initial pitch"))
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
    if(!SkipLabels(1, "the play time's label") || !ReadNumber(uiMinutes, "the play time's minutes") ||
       !SkipLabels(1, "the play time's label") || !ReadNumber(uiSeconds, "the play time's seconds") ||
       !SkipLabels(1, "the play time's label") || !ReadSeparator("the line break behind the play time"))
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
    const std::streamoff Start = Offset();
    if(!SkipLabels(1, "the track's label") || !ReadNumber(uiCount, "the track's count of points") ||
       !SkipLabels(2, "the track's labels") || !ReadNumber(m_WorkTrack.m_Spline.m_uiDegree, "the track's degree") ||
       !SkipLabels(1, "the track's label"))
        return false;
    const std::streamoff BallsAt = Offset();
    if(!ReadNumber(uiBalls, "the track's number of balls"))
        return false;
    if(m_pObserver && uiBalls > MAX_BALLS_PER_TRACK)
        m_pObserver->OnCut(std::to_string(uiBalls) + " balls: the game takes no more than " +
                               std::to_string(MAX_BALLS_PER_TRACK),
                           BallsAt);
    m_WorkTrack.FillColourQueue(std::min(uiBalls, MAX_BALLS_PER_TRACK));
    if(!SkipLabels(1, "the track's label") || !ReadNumber(uiInterval, "the track's interval"))
        return false;
    m_WorkTrack.m_uiInterval = ScaleInterval(uiInterval, m_uiRound);
    if(!SkipLabels(2, "the track's labels") || !ReadControlPoints(uiCount, m_WorkTrack.m_Spline, "track"))
        return false;
    if(m_pObserver && m_Level.m_vTracks.size() >= CLevel::MAX_CURVES)
        m_pObserver->OnCut("more than 255 tracks: the game keeps no more", Start);
    if(m_Level.m_vTracks.size() < CLevel::MAX_CURVES)
    {
        m_Level.m_vTracks.push_back(m_WorkTrack);
        m_Level.m_vTracks.back().m_Spline.Build();
    }
    return true;
}

bool CTrackFileReader::SkipLabels(int iCount, const char* pExpected)
{
    for(int i = 0; i < iCount; i++)
    {
        if(!ReadWord(nullptr, 0, pExpected))
            return false;
    }
    return true;
}

// One whitespace-delimited word, read whole so that the next token starts behind it; only the first
// BufferSize - 1 characters are kept, and the word's whole length goes to pLength. The whitespace behind the
// word stays for the next token.
bool CTrackFileReader::ReadWord(char* pBuffer, size_t BufferSize, const char* pExpected, size_t* pLength)
{
    const int EOF_CHAR = std::char_traits<char>::eof();
    while(IsSpace(m_Stream.peek()))
        m_Stream.get();
    if(m_Stream.peek() == EOF_CHAR)
    {
        m_Stream.setstate(std::ios::failbit);
        return BrokenOff(pExpected);
    }
    size_t Length = 0, Kept = 0;
    for(int c = m_Stream.peek(); c != EOF_CHAR && !IsSpace(c); c = m_Stream.peek())
    {
        m_Stream.get();
        Length++;
        if(Kept + 1 < BufferSize)
            pBuffer[Kept++] = static_cast<char>(c);
    }
    if(BufferSize > 0)
        pBuffer[Kept] = '\0';
    if(pLength)
        *pLength = Length;
    return true;
}

bool CTrackFileReader::ReadSeparator(const char* pExpected)
{
    const int c = m_Stream.get();
    if(c == std::char_traits<char>::eof())
        return BrokenOff(pExpected);
    m_iCurrent = c;
    return true;
}

// x, separator, y, separator, z; nothing behind z, as the next number skips the line break by itself.
// The separators between the numbers become the current byte, as every separator does. The observer hears
// which coordinate of which point was missing, worded only when one is.
bool CTrackFileReader::ReadControlPoints(uint32_t uiCount, CBSpline& Spline, const char* pCurve)
{
    for(uint32_t i = 0; i < uiCount; i++)
    {
        float afXyz[3];
        for(int iAxis = 0; iAxis < 3; iAxis++)
        {
            const int c = iAxis > 0 ? m_Stream.get() : ' ';
            if(c == std::char_traits<char>::eof() || !(m_Stream >> afXyz[iAxis]))
                return BrokenOff(std::string(1, "xyz"[iAxis]) + " of point " + std::to_string(i + 1) + " of the " +
                                 pCurve + "'s " + std::to_string(uiCount));
            if(iAxis > 0)
                m_iCurrent = c;
        }
        Spline.m_vControlPoints.emplace_back(afXyz[0], afXyz[1], afXyz[2]);
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
