#pragma once
#include "app/Clocks.h"
#include "play/Ball.h"
#include "tracks/CameraPath.h"
#include "tracks/Track.h"

#include <cstdint>
#include <list>
#include <vector>

class CGraphicsEngine;

constexpr uint32_t LEVEL_START_TIME_MS = 86400000; // a day: the clock of a level whose file sets no play time
constexpr size_t BACKGROUND_NAME_CHARS = 23;       // what fits behind the pictures' folder in a 40-byte path

// The loaded level: camera paths, tracks with their chains, the level clock and the colour bookkeeping. One
// instance lives for the whole run and is refilled for each level; the chain rules work on it.
class CLevel
{
public:
    // The most camera paths, and the most tracks, that a level holds; further sections of a file are read
    // but not kept, so that the byte counters always tell the truth.
    static constexpr size_t MAX_CURVES = 255;

    CLevel();
    ~CLevel();
    CLevel(const CLevel&) = delete;
    CLevel& operator=(const CLevel&) = delete;

    // Appends what the file holds, scaling every track's interval by the round; the caller clears first.
    bool Load(const char* pFileName, uint32_t uiRound);
    void Clear();
    void CountColours();
    // Balls still to clear: those rolling on the tracks and those waiting to enter them.
    uint32_t BallsToClear() const;
    void MoveForward(uint32_t uiSteps);
    void MoveBack(uint32_t uiSteps);
    void NextCameraPath();
    void BuildAllLines();
    // The end of a load: lines, counters, the eye's first place and the colour count.
    void FinishLoad();

    bool m_bWon = false;
    char m_szBackground[BACKGROUND_NAME_CHARS + 1] = "";
    CCountdown m_Countdown{LEVEL_START_TIME_MS};
    uint8_t m_ucCurrentPath = 0;
    std::vector<CCameraPath> m_vCameraPaths;
    std::vector<CTrack> m_vTracks;
    std::list<CBall*> m_lstShots;
    uint8_t m_ucNumCameraPaths = 0;
    uint8_t m_ucNumTracks = 0;
    uint8_t m_ucShotColour;
    uint8_t m_ucNextColour;
    uint32_t m_uiLiveBalls = 0;
    std::vector<uint32_t> m_vColoursLeft;
    uint32_t m_auiLiveByColour[NUM_BALL_COLOURS] = {};
    bool m_bColoursLeft = false;

    // The camera that a load aims and that changing paths turns; none for a level on its own.
    CGraphicsEngine* m_pGraphics = nullptr;

private:
    CCameraPath* CurrentPath();
    void BuildCurveLines(const CBSpline& Spline, CCurveLines& Lines);
};
