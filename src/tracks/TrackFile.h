#pragma once
#include "tracks/CameraPath.h"
#include "tracks/Track.h"

#include <cstdint>
#include <istream>
#include <string>

class CLevel;

// What a reader tells a level designer's tools as it goes, by byte offset into the file; the game passes none.
class ITrackFileObserver
{
public:
    virtual ~ITrackFileObserver() = default;
    // A tag letter was taken at this offset, and its section is read next.
    virtual void OnSection(char cTag, std::streamoff Offset) = 0;
    // A byte between sections that starts no section: the game skips it without a word.
    virtual void OnStrayByte(char cByte, std::streamoff Offset) = 0;
    // The reading broke off here, where the named token should have stood; the offset is the end of the file
    // when the file ended first.
    virtual void OnBrokenOff(const std::string& Expected, std::streamoff Offset) = 0;
    // The game takes less than the file says at this offset.
    virtual void OnCut(const std::string& What, std::streamoff Offset) = 0;
};

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
    void SetObserver(ITrackFileObserver* pObserver) { m_pObserver = pObserver; }

private:
    bool ReadSection(char cTag);
    bool ReadBackground();
    bool ReadCameraPath();
    bool ReadInitialCamera();
    bool ReadPlayTime();
    bool ReadTrack();

    bool SkipLabels(int iCount, const char* pExpected);
    bool ReadWord(char* pBuffer, size_t BufferSize, const char* pExpected, size_t* pLength = nullptr);
    bool ReadSeparator(const char* pExpected);
    bool ReadControlPoints(uint32_t uiCount, CBSpline& Spline, const char* pCurve);
    template <typename T> bool ReadNumber(T& Value, const char* pExpected)
    {
        return static_cast<bool>(m_Stream >> Value) || BrokenOff(pExpected);
    }
    // Tells the observer where the reading stopped; always false, so that a read can fail in one statement.
    bool BrokenOff(const std::string& Expected);
    std::streamoff Offset();

    std::istream& m_Stream;
    CLevel& m_Level;
    uint32_t m_uiRound;
    int m_iCurrent = ' ';
    CCameraPath m_WorkPath;
    CTrack m_WorkTrack;
    ITrackFileObserver* m_pObserver = nullptr;
};

// Milliseconds per ball length in a round: the file's value times 0.83 to the power of the round, truncated.
uint32_t ScaleInterval(uint32_t uiFileValue, uint32_t uiRound);
