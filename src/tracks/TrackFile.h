#pragma once
#include "tracks/CameraPath.h"
#include "tracks/Track.h"

#include <cstdint>
#include <istream>

class CLevel;

// Reads a level file into a level, byte by byte: single bytes are skipped until a tag letter comes up, then
// that section's labels, numbers and one-byte separators are taken in their fixed order. Each section is
// kept only when it is read whole.
class CTrackFileReader
{
public:
    // No track asks for more balls than this; a larger count is taken as this many.
    static constexpr uint32_t MAX_BALLS_PER_TRACK = 10000;

    CTrackFileReader(std::istream& Stream, CLevel& Level, uint32_t uiRound);
    // True when the reading stopped at the end tag; false when the file ended or broke off before it.
    bool Read();

private:
    bool ReadSection(char cTag);
    bool ReadBackground();
    bool ReadCameraPath();
    bool ReadInitialCamera();
    bool ReadPlayTime();
    bool ReadTrack();

    bool SkipLabels(int iCount);
    bool ReadWord(char* pBuffer, size_t BufferSize);
    bool ReadSeparator();
    bool ReadControlPoints(uint32_t uiCount, CBSpline& Spline);
    template <typename T> bool ReadNumber(T& Value) { return static_cast<bool>(m_Stream >> Value); }

    std::istream& m_Stream;
    CLevel& m_Level;
    uint32_t m_uiRound;
    int m_iCurrent = ' ';
    CCameraPath m_WorkPath;
    CTrack m_WorkTrack;
};

// Milliseconds per ball length in a round: the file's value times 0.83 to the power of the round, truncated.
uint32_t ScaleInterval(uint32_t uiFileValue, uint32_t uiRound);
